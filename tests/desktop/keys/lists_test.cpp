// Lists, boxes and buttons by keys, and the mark at the keyboard's place.
#include <QListView>
#include <QWindow>

#include "desktop/RealProgram.h"
#include "library/frmTavrin01.h"
#include "library/frmTavrin04.h"
#include "library/frmTavrin07.h"
#include "table/frmTavrin02.h"

namespace {

class MainKeys : public RealProgram {
protected:
    MainKeys() { start_program(); }
};

TEST_F(MainKeys, AChoiceByKeyLeavesTheKeyboardInTheList) {
    auto& main = screen<library::frmTavrin01>();
    tab_to(main.lstSpellen);
    for (const int line : {0, 1, 2}) {
        key(Qt::Key_Down);
        EXPECT_EQ(main.lstSpellen.ListIndex(), line);
        EXPECT_EQ(main.focus(), &main.cmdFocus);
        EXPECT_EQ(focused(), "lstSpellen");
    }
    tab_to(main.chkSorteer);
    key(Qt::Key_Space);
    EXPECT_EQ(focused(), "chkSorteer");
    key(Qt::Key_Space);
    EXPECT_EQ(main.chkSorteer.Value(), 0);
    // The mouse leaves it where the program has it.
    click_line(main.lstSpellen, 1);
    EXPECT_EQ(focused(), "cmdFocus");
}

TEST_F(MainKeys, EnterOrADoubleClickOpensTheTable) {
    for (const bool by_key : {true, false}) {
        auto& main = screen<library::frmTavrin01>();
        tab_to(main.lstSpellen);
        key(Qt::Key_Return);
        EXPECT_EQ(programma.windows.active(), &main) << "no line is chosen";
        if (by_key) {
            key(Qt::Key_Down);
            key(Qt::Key_Return);
        } else {
            auto& list = widget_as<QListView>(main.lstSpellen);
            const QPoint line = list.visualRect(list.model()->index(1, 0)).center();
            QTest::mouseDClick(window().windowHandle(), Qt::LeftButton, {}, list.viewport()->mapTo(&window(), line));
        }
        screen<table::frmTavrin02>();
        EXPECT_EQ(gedeeld().spelNaam, by_key ? "QVT_Spel 001" : "QVT_Spel 002");
        key(Qt::Key_Escape);
    }
}

TEST_F(MainKeys, TheMarkComesWithAKeyAndGoesWithTheMouse) {
    auto& main = screen<library::frmTavrin01>();
    click_line(main.lstSpellen, 0);
    EXPECT_EQ(marked(), QRect());
    tab_to(main.lstSpellen);
    EXPECT_EQ(marked(), place_of(main.lstSpellen));
    tab_to(main.cmdAfsluiten);
    EXPECT_EQ(marked(), place_of(main.cmdAfsluiten));
    key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(marked(), place_of(main.cmdAfsluiten)) << "it grows with the screen";
    const QImage with = picture(main.cmdAfsluiten);
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, {2, 2});
    EXPECT_EQ(marked(), QRect());
    EXPECT_NE(picture(main.cmdAfsluiten), with);
}

TEST_F(MainKeys, KeysThatTheProgramSendsAreNoneOfTheUsers) {
    auto& main = screen<library::frmTavrin01>();
    click_line(main.lstSpellen, 0);
    click(main.cmdHerbeNoem);
    EXPECT_EQ(screen<library::frmTavrin04>().focus()->name(), "txtSpelNummer");
    EXPECT_EQ(marked(), QRect());
}

TEST_F(MainKeys, SpaceTogglesTheLineThatArrowsReached) {
    accelerator(screen<library::frmTavrin01>().cmdImportExport);
    auto& exchange = screen<library::frmTavrin07>();
    tab_to(exchange.lstExporteer);
    key(Qt::Key_Space);
    EXPECT_TRUE(exchange.lstExporteer.Selected(0)) << "the first line is reached as well";
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    const QRect third = marked();
    key(Qt::Key_Space);
    EXPECT_TRUE(exchange.lstExporteer.Selected(2));
    EXPECT_FALSE(exchange.lstExporteer.Selected(1));
    EXPECT_EQ(marked(), third);
    EXPECT_LT(third.height(), place_of(exchange.lstExporteer).height() / 4) << "a line, not the list";
}

}  // namespace
