#include "desktop/ThroughTheScreens.h"

#include "annotate/frmTavrin05.h"
#include "annotate/frmTavrin06.h"
#include "library/frmTavrin01.h"
#include "library/frmTavrin04.h"
#include "library/frmTavrin07.h"
#include "prepare/frmTavrin03.h"
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
    click(table.cmdStart);
    ASSERT_TRUE(QTest::qWaitFor([&] { return table.cmdVerder.Visible(); }, 20000));
    look();
}
