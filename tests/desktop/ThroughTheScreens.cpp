#include "desktop/ThroughTheScreens.h"

#include <filesystem>

#include "annotate/frmTavrin05.h"
#include "annotate/frmTavrin06.h"
#include "forms/User.h"
#include "library/frmTavrin01.h"
#include "library/frmTavrin04.h"
#include "library/frmTavrin07.h"
#include "prepare/frmTavrin03.h"
#include "services/frmTavrin08.h"
#include "table/frmTavrin02.h"

void ThroughTheScreens::through_the_screens(const std::function<void()>& look) {
    set("Standaard", "Snelheid", "100");
    start_program();
    const auto main = [this]() -> library::frmTavrin01& { return screen<library::frmTavrin01>(); };
    main();
    look();

    click(main().cmdNieuwSpel);
    auto& preparation = screen<prepare::frmTavrin03>();
    click_line(preparation.lstRVLX, "Spel 001");
    look();
    click_line(preparation.lstAfTavrin, 0);
    look();
    key(Qt::Key_Escape);

    click(main().cmdKaartenEditor);
    auto& editor = screen<annotate::frmTavrin05>();
    click_line(editor.lstSpellen, 0);
    look();
    click(editor.picYesNo(0));
    type("Duik");
    click(editor.cmdVoorBeeld);
    look();
    click(editor.cmdSluiten);
    click(editor.cmdToonSpel);
    screen<annotate::frmTavrin06>();
    look();
    key(Qt::Key_Escape);
    screen<annotate::frmTavrin05>();
    key(Qt::Key_Escape);

    click(main().cmdImportExport);
    screen<library::frmTavrin07>();
    look();
    key(Qt::Key_Escape);

    click_line(main().lstSpellen, 0);
    click(main().cmdHerbeNoem);
    screen<library::frmTavrin04>();
    look();
    key(Qt::Key_Escape);

    click_line(main().lstSpellen, "QVT_Spel 001");
    click(main().cmdTavrin);
    auto& table = screen<table::frmTavrin02>();
    look();
    host.own_time = false;
    click(table.cmdStart);
    while (!table.cmdVerder.Visible())
        ASSERT_EQ(forms::user::tick(table.timSpeelKaart), forms::Refusal::None);
    look();
    play_to_the_end(table);
    look();
    click(table.cmdTerug);

    std::filesystem::remove(path("aftavrin/QVT_Spel 002/QVT_Spel 002 aftavrin.txt"));
    click_line(main().lstSpellen, "QVT_Spel 002");
    click(main().cmdTavrin);
    click(screen<table::frmTavrin02>().cmdStart);
    screen<services::frmTavrin08>();
    look();
}

void ThroughTheScreens::play_to_the_end(table::frmTavrin02& table) {
    while (gedeeld().kaartTeller < cards::kKaarten || table.cmdVerder.Visible()) {
        if (table.cmdVerder.Visible()) {
            click(table.cmdVerder);
        } else {
            ASSERT_EQ(forms::user::tick(table.timSpeelKaart), forms::Refusal::None);
        }
    }
    while (table.timSpeelKaart.running())
        forms::user::tick(table.timSpeelKaart);
}
