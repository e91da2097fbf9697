#include <algorithm>
#include <filesystem>

#include "annotate/frmTavrin05.h"
#include "annotate/frmTavrin06.h"
#include "desktop/RealProgram.h"
#include "desktop/views/View.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/ListBox.h"
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

    std::string focused() {
        for (const forms::Control* control : window().form().controls()) {
            const desktop::views::View* view = window().view(*control);
            if (view && &view->widget() == window().focusWidget()) return control->name();
        }
        return "nothing";
    }
    // What a user can use by keys: what lies within the window and isn't a box that hands the focus on.
    std::vector<std::string> usable(const std::vector<std::string>& read_only) {
        std::vector<std::string> names;
        for (const forms::Control* control : window().form().controls()) {
            if (!is_one_of<forms::TextBox, forms::CommandButton, forms::CheckBox, forms::ListBox, forms::VScrollBar>(
                    *control) ||
                !control->visible_to_user() || !control->enabled_for_user() ||
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
    void tab_to(const forms::Control& control) {
        for (int i = 0; i < 40 && focused() != control.name(); ++i)
            key(Qt::Key_Tab);
        ASSERT_EQ(focused(), control.name());
    }
    void choose_first(const forms::ListBox& list) {
        tab_to(list);
        key(Qt::Key_Down);
        EXPECT_EQ(list.ListIndex(), 0);
    }
};

TEST_F(Focus, TabGoesRoundWhatCanBeUsedOnEveryScreen) {
    start_program();
    screen<frmTavrin01>();
    expect_round();
    choose_first(screen<frmTavrin01>().lstSpellen);
    expect_round();
    accelerator(screen<frmTavrin01>().cmdHerbeNoem);
    screen<frmTavrin04>();
    expect_round();
    key(Qt::Key_Escape);
    accelerator(screen<frmTavrin01>().cmdImportExport);
    screen<frmTavrin07>();
    expect_round();
    key(Qt::Key_Escape);
    accelerator(screen<frmTavrin01>().cmdNieuwSpel);
    choose_first(screen<frmTavrin03>().lstRVLX);
    expect_round();
    key(Qt::Key_Escape);
    accelerator(screen<frmTavrin01>().cmdKaartenEditor);
    auto& editor = screen<frmTavrin05>();
    choose_first(editor.lstSpellen);
    expect_round();
    tab_to(editor.txtInformatie);
    type("tekst");
    expect_round();
    accelerator(editor.cmdVoorBeeld);
    expect_round();
    accelerator(editor.cmdSluiten);
    click(editor.cmdToonSpel);
    screen<frmTavrin06>();
    expect_round();
    key(Qt::Key_Escape);
    key(Qt::Key_Escape);
    choose_first(screen<frmTavrin01>().lstSpellen);
    std::filesystem::remove(path("aftavrin/QVT_Spel 001/QVT_Spel 001 aftavrin.txt"));
    accelerator(screen<frmTavrin01>().cmdTavrin);
    accelerator(screen<frmTavrin02>().cmdStart);
    screen<frmTavrin08>();
    expect_round();
}

TEST_F(Focus, TheTableIsPlayedByReturnAndSpace) {
    set("Standaard", "Snelheid", "100");
    start_program();
    choose_first(screen<frmTavrin01>().lstSpellen);
    accelerator(screen<frmTavrin01>().cmdTavrin);
    auto& table = screen<frmTavrin02>();
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
    tab_to(table.vscrSnelHeid);
    key(Qt::Key_Up);
    EXPECT_EQ(shown(table.txtSnelHeid), "200");
}

}  // namespace
