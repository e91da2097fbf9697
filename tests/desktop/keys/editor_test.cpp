// The editor by keys alone.
#include <set>

#include "annotate/frmTavrin05.h"
#include "desktop/RealProgram.h"
#include "library/frmTavrin01.h"

namespace {

class EditorKeys : public RealProgram {
protected:
    EditorKeys() {
        tab_to(editor.lstSpellen);
        key(Qt::Key_Down);
    }
    annotate::frmTavrin05& open() {
        start_program();
        accelerator(screen<library::frmTavrin01>().cmdKaartenEditor);
        return screen<annotate::frmTavrin05>();
    }
    void press(Qt::Key code, int times) {
        for (int i = 0; i < times; ++i)
            key(code);
    }
    annotate::frmTavrin05& editor = open();
};

TEST_F(EditorKeys, EveryMarkerIsReachedAndLeadsToItsText) {
    tab_to(editor.fraKaartMetTekst);
    const struct {
        Qt::Key way;
        int times;
        int card;  // as it is numbered on the screen
    } rows[] = {{Qt::Key_Right, 4, 5}, {Qt::Key_Down, 1, 18}, {Qt::Key_End, 1, 26},  {Qt::Key_Right, 1, 26},
                {Qt::Key_Down, 9, 52}, {Qt::Key_Home, 1, 40}, {Qt::Key_Left, 1, 40}, {Qt::Key_Up, 9, 1}};
    for (const auto& row : rows) {
        press(row.way, row.times);
        EXPECT_EQ(marked(), place_of(editor.picYesNo(row.card - 1)));
        key(Qt::Key_Space);
        EXPECT_EQ(editor.lblDezeKaart.Caption(), "Nummer: " + std::to_string(row.card));
        EXPECT_EQ(focused(), "txtInformatie");
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(focused(), "fraKaartMetTekst");
    }
    EXPECT_EQ(editor.focus(), &editor.txtInformatie);
}

TEST_F(EditorKeys, TheCardsOfTheTrickAreChosenAtTheirSeats) {
    tab_to(editor.fraSlag);
    const struct {
        Qt::Key way;
        int seat;
    } rows[] = {{Qt::Key_Home, 1}, {Qt::Key_Down, 4}, {Qt::Key_Right, 2}, {Qt::Key_Down, 3}};
    for (const auto& row : rows) {
        tab_to(editor.fraSlag);
        key(row.way);
        EXPECT_EQ(marked(), place_of(editor.picKaart(row.seat))) << row.seat;
        key(Qt::Key_Return);
        EXPECT_EQ(editor.lblDezeKaart.Caption(), editor.lblKaartNummer(row.seat).Caption());
        EXPECT_EQ(focused(), "txtInformatie");
    }
}

TEST_F(EditorKeys, ArrowsStepThroughTheTricks) {
    tab_to(editor.vscrSlag);
    const struct {
        Qt::Key way;
        const char* trick;
    } rows[] = {{Qt::Key_Up, "2"},   {Qt::Key_Right, "3"}, {Qt::Key_Left, "2"},
                {Qt::Key_Down, "1"}, {Qt::Key_Down, "13"}, {Qt::Key_Up, "1"}};
    for (const auto& row : rows) {
        key(row.way);
        EXPECT_EQ(shown(editor.txtSlag), row.trick);
        EXPECT_EQ(focused(), "vscrSlag");
    }
}

TEST_F(EditorKeys, StoringATextLeavesTheKeyboardInIt) {
    tab_to(editor.fraKaartMetTekst);
    key(Qt::Key_Space);
    type("tekst ");
    accelerator(editor.cmdGebruiken);
    EXPECT_EQ(editor.focus(), &editor.cmdFocus);
    EXPECT_EQ(focused(), "txtInformatie");
    EXPECT_NE(read("aftavrin/QVT_Spel 001/QVT_Spel 001 informatie.txt").find("tekst "), std::string::npos);
}

}  // namespace
