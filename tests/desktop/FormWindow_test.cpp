#include <QElapsedTimer>

#include "desktop/TestWindows.h"
#include "forms/CommandButton.h"
#include "forms/Timer.h"

namespace {

class PlainForm final : public forms::Form {
public:
    explicit PlainForm(forms::Windows& windows) : Form(windows, "plain", {3000, 1500}) { Caption = "Spelen & meer"; }
    void Form_KeyUp(int code) override { codes.push_back(code); }
    void Form_Activate() override { ++activations; }
    void Form_Resize() override { ++resizes; }
    bool is_sizable() const override { return true; }

    std::vector<int> codes;
    int activations = 0;
    int resizes = 0;
    forms::CommandButton button{*this, "button", {150, 150, 1500, 450}};
    forms::Timer timer{*this, "timer"};
};

class WindowsTest : public TestWindows {
protected:
    PlainForm& form = show<PlainForm>();
};

TEST_F(WindowsTest, AWindowHasPlaceTitleAndColourOfItsForm) {
    program([&] {
        form.Left = 600;
        form.Top = 450;
        form.BackColor = base::Colour::rgb(0, 128, 0);
    });
    const desktop::FormWindow& window = *host.window(&form);
    EXPECT_EQ(window.windowTitle(), "Spelen & meer");
    EXPECT_EQ(window.size(), QSize(200, 100));
    EXPECT_EQ(window.palette().color(QPalette::Window), QColor(0, 128, 0));
    EXPECT_EQ(widget(form.button)->geometry(), QRect(10, 10, 100, 30));
    for (const bool waits : {true, false}) {
        program([&] { form.MousePointer = waits ? forms::MousePointer::Hourglass : forms::MousePointer::Default; });
        EXPECT_EQ(window.cursor().shape(), waits ? Qt::WaitCursor : Qt::ArrowCursor);
    }
}

TEST_F(WindowsTest, TheCloseBoxUnloadsOnlyOutsideARunningEvent) {
    auto& second = show<PlainForm>();
    QWidget* window = host.window(&second);
    program([&] { window->close(); });
    EXPECT_EQ(windows.active(), &second);
    window->close();
    EXPECT_EQ(windows.active(), &form);
    EXPECT_TRUE(QTest::qWaitForWindowActive(host.window(&form)));
    EXPECT_EQ(form.activations, 2);
}

TEST_F(WindowsTest, AKeyCountsWhereItWasPressed) {
    QTest::keyClick(widget(form.button), Qt::Key_Escape);
    QTest::keyRelease(widget(form.button), Qt::Key_Escape);  // pressed in a message box
    QTest::keyClick(widget(form.button), Qt::Key_F5);
    EXPECT_EQ(form.codes, (std::vector{27, 0x74}));
    int helps = 0;
    windows.Help = [&] { ++helps; };
    QTest::keyClick(widget(form.button), Qt::Key_F1);
    EXPECT_EQ(helps, 1);
}

TEST_F(WindowsTest, ATimerTicksAtItsIntervalAndStartsAnewWithAnotherOne) {
    std::vector<qint64> times;
    QElapsedTimer clock;
    form.timer.Tick = [&] {
        times.push_back(clock.elapsed());
        if (times.size() == 3) form.timer.Interval = 90;
        if (times.size() == 4) form.timer.Enabled = false;
    };
    program([&] {
        form.timer.Interval = 30;
        form.timer.Enabled = true;
    });
    clock.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return times.size() == 4; }, 2000));
    QTest::qWait(120);
    ASSERT_EQ(times.size(), 4U);
    const qint64 wanted[] = {30, 60, 90, 180};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_GE(times[i], wanted[i] - 5);
        EXPECT_LE(times[i], wanted[i] + 100) << "a busy machine may be late, but not that much";
    }
}

TEST_F(WindowsTest, NothingTicksWithinARunningEvent) {
    int ticks = 0;
    form.timer.Tick = [&] { ++ticks; };
    form.timer.Interval = 10;
    program([&] { form.timer.Enabled = true; });
    program([&] {
        QTest::qWait(50);
        EXPECT_EQ(ticks, 0);
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 0; }, 500));
}

TEST_F(WindowsTest, AFailureThatNobodyCatchesIsToldToTheHost) {
    std::string told;
    host.Failed = [&](const std::string& what) { told = what; };
    form.button.Click = [] { throw std::runtime_error("Geen klembord"); };
    click(form.button);
    EXPECT_EQ(told, "Geen klembord");
}

}  // namespace
