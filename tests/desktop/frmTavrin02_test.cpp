#include "table/frmTavrin02.h"
#include "desktop/RealProgram.h"
#include "desktop/Text.h"
#include "library/frmTavrin01.h"

namespace {

class TableScreen : public RealProgram {};

TEST_F(TableScreen, TheRealTimerPlaysToATextAndNoTickComesBehindEscape) {
    set("Standaard", "Snelheid", "100");
    start_program();
    click_line(screen<library::frmTavrin01>().lstSpellen, "QVT_Spel 001");
    click(screen<library::frmTavrin01>().cmdTavrin);
    auto& table = screen<table::frmTavrin02>();
    click(table.cmdStart);
    accelerator(table.cmdVerder);
    ASSERT_TRUE(QTest::qWaitFor([&] { return table.cmdVerder.Visible(); }, 20000));
    EXPECT_EQ(gedeeld().kaartTeller, 4);
    QStringList cut;
    for (int i = 0; i < table.lstKnipTekst.ListCount(); ++i)
        cut << desktop::to_qt(table.lstKnipTekst.List(i));
    EXPECT_EQ(drawn_lines(table.txtInformatie), cut << QString()) << "no line that was cut breaks again";

    accelerator(table.cmdVerder);
    EXPECT_TRUE(table.timSpeelKaart.running());
    key(Qt::Key_Escape);
    EXPECT_EQ(programma.windows.find("frmTavrin02"), nullptr);
    QTest::qWait(300);  // a tick that came now would find no table
    screen<library::frmTavrin01>();
    key(Qt::Key_Escape);
    EXPECT_TRUE(ended);
}

}  // namespace
