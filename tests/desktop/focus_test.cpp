#include <algorithm>
#include <filesystem>

#include "annotate/frmTavrin05.h"
#include "annotate/frmTavrin06.h"
#include "desktop/RealProgram.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/FlexGrid.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/PictureBox.h"
#include "forms/TextBox.h"
#include "forms/VScrollBar.h"
#include "library/frmTavrin01.h"
#include "library/frmTavrin04.h"
#include "library/frmTavrin07.h"
#include "prepare/frmTavrin03.h"
#include "services/frmTavrin08.h"
#include "table/frmTavrin02.h"

namespace {

template <class... Kinds>
bool is_one_of(const forms::Control& control) {
    return (dynamic_cast<const Kinds*>(&control) || ...);
}

// By keys alone, through all screens.
class Focus : public RealProgram {
protected:
    Focus() {
        platform.stick = folder;
        std::filesystem::create_directory(path("QVT_Spellen"));
    }

    // Cards and markers are used at the frame on which they stand.
    static bool holds_cards(const forms::Control& control) {
        const auto* frame = dynamic_cast<const forms::Frame*>(&control);
        return frame && std::ranges::any_of(frame->children(), [](const forms::Control* child) {
                   return is_one_of<forms::Label, forms::PictureBox>(*child) && child->Click &&
                          child->visible_to_user();
               });
    }
    // What a user can use by keys: what lies within the window and isn't a box that hands the focus on.
    std::vector<std::string> usable(const std::vector<std::string>& read_only) {
        std::vector<std::string> names;
        for (const forms::Control* control : window().form().controls()) {
            const bool simple = is_one_of<forms::TextBox, forms::CommandButton, forms::CheckBox, forms::ListBox,
                                          forms::VScrollBar, forms::FlexGrid>(*control);
            if (!(simple || holds_cards(*control)) || !control->visible_to_user() || !control->enabled_for_user() ||
                std::ranges::find(read_only, control->name()) != read_only.end()) {
                continue;
            }
            QWidget& shown = widget(*control);
            if (window().rect().contains(shown.mapTo(&window(), shown.rect().center())))
                names.push_back(control->name());
        }
        return names;
    }
    // Tab and Shift+Tab lead once round what can be used, wherever they start.
    void expect_round(const std::vector<std::string>& read_only = {}) {
        std::vector<std::string> wanted = usable(read_only);
        const auto size = static_cast<int>(wanted.size());
        ASSERT_GT(size, 0);
        std::ranges::sort(wanted);
        for (const auto held : {Qt::NoModifier, Qt::ShiftModifier}) {
            std::vector<std::string> visited;
            for (int i = 0; i < size; ++i) {
                key(held ? Qt::Key_Backtab : Qt::Key_Tab, held);
                visited.push_back(focused());
            }
            key(held ? Qt::Key_Backtab : Qt::Key_Tab, held);
            EXPECT_EQ(focused(), visited.front()) << window().form().name();
            std::ranges::sort(visited);
            EXPECT_EQ(visited, wanted) << window().form().name();
        }
    }
    void choose_first(const forms::ListBox& list) {
        tab_to(list);
        key(Qt::Key_Down);
        EXPECT_EQ(list.ListIndex(), 0);
    }
};

TEST_F(Focus, TabGoesRoundWhatCanBeUsedOnEveryScreen) {
    start_program();
    screen<library::frmTavrin01>();
    expect_round();
    choose_first(screen<library::frmTavrin01>().lstSpellen);
    expect_round();
    accelerator(screen<library::frmTavrin01>().cmdHerbeNoem);
    screen<library::frmTavrin04>();
    expect_round();
    key(Qt::Key_Escape);
    accelerator(screen<library::frmTavrin01>().cmdImportExport);
    screen<library::frmTavrin07>();
    expect_round();
    key(Qt::Key_Escape);
    accelerator(screen<library::frmTavrin01>().cmdNieuwSpel);
    choose_first(screen<prepare::frmTavrin03>().lstRVLX);
    expect_round();
    key(Qt::Key_Escape);
    accelerator(screen<library::frmTavrin01>().cmdKaartenEditor);
    auto& editor = screen<annotate::frmTavrin05>();
    choose_first(editor.lstSpellen);
    expect_round();
    tab_to(editor.txtInformatie);
    type("tekst");
    expect_round();
    accelerator(editor.cmdVoorBeeld);
    expect_round();
    accelerator(editor.cmdSluiten);
    click(editor.cmdToonSpel);
    screen<annotate::frmTavrin06>();
    expect_round();
    key(Qt::Key_Escape);
    key(Qt::Key_Escape);
    choose_first(screen<library::frmTavrin01>().lstSpellen);
    std::filesystem::remove(path("aftavrin/QVT_Spel 001/QVT_Spel 001 aftavrin.txt"));
    accelerator(screen<library::frmTavrin01>().cmdTavrin);
    accelerator(screen<table::frmTavrin02>().cmdStart);
    screen<services::frmTavrin08>();
    expect_round();
}

TEST_F(Focus, TheTableIsPlayedByReturnAndSpace) {
    set("Standaard", "Snelheid", "100");
    start_program();
    choose_first(screen<library::frmTavrin01>().lstSpellen);
    accelerator(screen<library::frmTavrin01>().cmdTavrin);
    auto& table = screen<table::frmTavrin02>();
    const std::vector<std::string> read_only{"txtVraag", "txtInformatie", "txtSnelHeid"};
    expect_round(read_only);
    tab_to(table.cmdStart);
    key(Qt::Key_Return);
    for (const Qt::Key pressed : {Qt::Key_Space, Qt::Key_Return}) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return table.cmdVerder.Visible(); }, 20000));
        EXPECT_EQ(focused(), "cmdVerder");
        const int card = gedeeld().kaartTeller;
        key(pressed);
        EXPECT_GT(gedeeld().kaartTeller, card);
        EXPECT_EQ(focused(), table.cmdVerder.Visible() ? "cmdVerder" : "nothing") << "what a key would press unasked";
    }
    expect_round(read_only);
}

}  // namespace
