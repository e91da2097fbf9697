// Windows on a display of two screens, a small one and a large one beside it. Skipped on others.
#include <QCursor>
#include <QScreen>

#include "annotate/frmTavrin05.h"
#include "desktop/RealProgram.h"
#include "desktop/views/View.h"
#include "library/frmTavrin01.h"
#include "table/frmTavrin02.h"

namespace {

QScreen& screen_named(const char* name) {
    for (QScreen* screen : QGuiApplication::screens()) {
        if (screen->name() == name) return *screen;
    }
    return *QGuiApplication::primaryScreen();
}
QScreen& small() { return screen_named("small"); }
QScreen& large() { return screen_named("large"); }

// Before the program starts.
struct PointerOnTheLargeScreen {
    PointerOnTheLargeScreen() { QCursor::setPos(large().geometry().center()); }
};

class TwoScreens : PointerOnTheLargeScreen, public RealProgram {
protected:
    void SetUp() override {
        if (QGuiApplication::screens().size() != 2) GTEST_SKIP() << "one screen";
        start_program();
    }
    // As the window manager does for the user.
    void put(const QScreen& screen, const QSize& inner) {
        window().setWindowState(Qt::WindowNoState);
        window().windowHandle()->setGeometry({screen.availableGeometry().topLeft() + QPoint(40, 40), inner});
        ASSERT_TRUE(QTest::qWaitFor([&] { return window().screen() == &screen; }));
    }
    void expect_wholly_on(const QScreen& screen) {
        EXPECT_EQ(window().screen(), &screen);
        EXPECT_TRUE(screen.availableGeometry().contains(window().geometry()));
    }
    double share_of_screen(const QWidget& shown) {
        const QSize room = window().screen()->availableSize();
        return std::max(shown.width() / double(room.width()), shown.height() / double(room.height()));
    }
};

TEST_F(TwoScreens, AWindowOpensBesideTheOneBeforeAndHasTheSizeOfItsScreen) {
    auto& main = screen<library::frmTavrin01>();
    expect_wholly_on(large());
    const QSize on_large = window().size();
    key(Qt::Key_Minus, Qt::ControlModifier);
    expect_wholly_on(large());

    put(small(), window().size());
    ASSERT_TRUE(QTest::qWaitFor([&] { return window().width() < on_large.width() / 2; }));
    expect_wholly_on(small());
    const QPoint place = window().pos();
    click_line(main.lstSpellen, 0);
    EXPECT_EQ(window().pos(), place) << "what happens in it does not move it";

    click(main.cmdTavrin);
    auto& table = screen<table::frmTavrin02>();
    expect_wholly_on(small());
    EXPECT_GT(share_of_screen(widget(table.picBack)), 0.85);
    put(large(), large().availableSize() - QSize(80, 80));
    ASSERT_TRUE(QTest::qWaitFor([&] { return share_of_screen(widget(table.picBack)) > 0.85; }));
    click(table.cmdTerug);
    screen<library::frmTavrin01>();
    expect_wholly_on(large());
    click(screen<library::frmTavrin01>().cmdKaartenEditor);
    screen<annotate::frmTavrin05>();
    expect_wholly_on(large());
}

TEST_F(TwoScreens, AWindowThatIsDraggedOverTheEdgeGetsItsSizeWhenItStandsStill) {
    screen<library::frmTavrin01>();
    const QSize on_large = window().size();
    const int edge = large().geometry().left();
    for (int x = edge + 100; x > edge - on_large.width(); x -= 50) {
        window().windowHandle()->setPosition(x, 200);
        QTest::qWait(5);
        ASSERT_EQ(window().size(), on_large);
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return window().size() != on_large; }));
    expect_wholly_on(small());
    QTest::qWait(400);
    expect_wholly_on(small());
}

}  // namespace
