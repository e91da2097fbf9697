// The table by keys alone.
#include <QScrollBar>
#include <QTextEdit>
#include <QWindow>
#include <fstream>

#include "desktop/RealProgram.h"
#include "library/frmTavrin01.h"
#include "table/frmTavrin02.h"

namespace {

class TableKeys : public RealProgram {
protected:
    table::frmTavrin02& open(const std::string& speed) {
        set("Standaard", "Snelheid", speed);
        start_program();
        auto& main = screen<library::frmTavrin01>();
        tab_to(main.lstSpellen);
        key(Qt::Key_Down);
        key(Qt::Key_Return);
        return screen<table::frmTavrin02>();
    }
    // The key, and then as often as that once more as long as it is held down.
    void hold(Qt::Key code, int repeats) {
        QTest::keyPress(window().windowHandle(), code);
        for (int i = 0; i < repeats; ++i) {
            QKeyEvent repeated(QEvent::KeyPress, code, {}, QString(), true);
            QCoreApplication::sendEvent(window().focusWidget() ? window().focusWidget() : &window(), &repeated);
        }
        QTest::keyRelease(window().windowHandle(), code);
    }
};

TEST_F(TableKeys, ArrowsChangeTheSpeedWhereverTheKeyboardIs) {
    auto& table = open("1000");
    const struct {
        Qt::Key code;
        int repeats;
        const char* speed;
    } rows[] = {{Qt::Key_Right, 0, "900"}, {Qt::Key_Up, 0, "800"},     {Qt::Key_Left, 0, "900"},
                {Qt::Key_Down, 0, "1000"}, {Qt::Key_Right, 40, "100"}, {Qt::Key_Up, 0, "3000"},
                {Qt::Key_Down, 0, "100"},  {Qt::Key_Left, 40, "3000"}, {Qt::Key_Left, 3, "400"}};
    for (const auto& row : rows) {
        tab_to(table.cmdTerug);
        hold(row.code, row.repeats);
        EXPECT_EQ(shown(table.txtSnelHeid), row.speed) << row.code;
        EXPECT_EQ(focused(), "cmdTerug");
    }
    EXPECT_NE(read("standaardtavrin.ini").find("Snelheid=400"), std::string::npos);
}

TEST_F(TableKeys, SpaceGoesOnToTheEndWhereTheWayBackHasTheFocus) {
    auto& table = open("100");
    EXPECT_EQ(focused(), "cmdStart");
    tab_to(table.vscrSnelHeid);
    key(Qt::Key_Space);
    EXPECT_FALSE(table.cmdStart.Visible());
    for (int texts = 0; texts < 30 && gedeeld().kaartTeller < 52; ++texts) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return table.cmdVerder.Visible() || gedeeld().kaartTeller == 52; }, 20000));
        if (!table.cmdVerder.Visible()) break;
        if (texts % 2 == 0) tab_to(table.vscrSnelHeid);
        const int card = gedeeld().kaartTeller;
        key(Qt::Key_Space);
        ASSERT_GT(gedeeld().kaartTeller, card);
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return !table.timSpeelKaart.running(); }, 20000));
    EXPECT_EQ(gedeeld().kaartTeller, 52);
    EXPECT_EQ(focused(), "cmdTerug");
    EXPECT_EQ(marked(), place_of(table.cmdTerug));
    key(Qt::Key_Space);
    screen<library::frmTavrin01>();
}

TEST_F(TableKeys, ALongQuestionIsTurnedOverPageByPage) {
    {
        std::ofstream question(path("aftavrin/QVT_Spel 001/QVT_Spel 001 vraag.txt"));
        question << "\r\n";
        for (int i = 0; i < 60; ++i)
            question << "Regel " << i << "\r\n";
    }
    auto& table = open("1000");
    const QScrollBar& bar = *widget_as<QTextEdit>(table.txtVraag).verticalScrollBar();
    ASSERT_GT(bar.maximum(), 0);
    const QImage first = picture(table.txtVraag);
    key(Qt::Key_PageDown);
    EXPECT_GT(bar.value(), 0);
    EXPECT_NE(picture(table.txtVraag), first);
    EXPECT_EQ(focused(), "cmdStart");
    for (int i = 0; i < 20; ++i)
        key(Qt::Key_PageDown);
    EXPECT_EQ(bar.value(), bar.maximum());
    const QWidget& surface = widget(table.picBack);
    EXPECT_TRUE(surface.rect().contains(widget(table.txtVraag).geometry())) << "the last line can be read";
    for (int i = 0; i < 20; ++i)
        key(Qt::Key_PageUp);
    EXPECT_EQ(bar.value(), 0);
    EXPECT_EQ(picture(table.txtVraag), first);
}

}  // namespace
