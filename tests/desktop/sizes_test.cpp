#include <QScreen>
#include <algorithm>

#include "annotate/frmTavrin05.h"
#include "desktop/ThroughTheScreens.h"
#include "desktop/views/View.h"
#include "library/frmTavrin01.h"
#include "table/frmTavrin02.h"

namespace {

// Run once for each size of the display and each of its scales.
class Sizes : public ThroughTheScreens {
protected:
    // The screen in front stands on the display with all that is seen of it.
    void expect_whole() {
        const desktop::FormWindow& shown = window();
        const std::string name = shown.form().name();
        QCoreApplication::processEvents();
        const QRect display = QGuiApplication::primaryScreen()->availableGeometry();
        EXPECT_TRUE(display.contains(shown.geometry()))
            << name << ": " << shown.x() << "," << shown.y() << " " << shown.width() << "x" << shown.height() << " on "
            << display.width() << "x" << display.height();
        for (const forms::Control* control : shown.form().controls()) {
            const desktop::views::View* view = shown.view(*control);
            if (!view || !view->widget().isVisible() || reaches_out(*control)) continue;
            const QRect room = view->widget().parentWidget()->rect();
            const QRect place = view->widget().geometry();
            EXPECT_TRUE(room.adjusted(-1, -1, 1, 1).contains(place))
                << name << "." << control->name() << " " << control->index() << ": " << place.x() << "," << place.y()
                << " " << place.width() << "x" << place.height() << " in " << room.width() << "x" << room.height();
        }
    }

private:
    // What reaches past its container on every display: the places that no user sees, and labels that are wider than
    // their words.
    static bool reaches_out(const forms::Control& control) {
        const forms::Control* container = const_cast<forms::Container&>(control.container()).as_control();
        const double width = container ? container->Width() : control.form().Width();
        const double height = container ? container->Height() : control.form().Height();
        return control.right() > width || control.bottom() > height;
    }
};

TEST_F(Sizes, EveryScreenStandsWholeOnTheDisplay) {
    through_the_screens([this] { expect_whole(); });
}

TEST_F(Sizes, TheTableFillsTheDisplay) {
    start_program();
    auto& main = screen<library::frmTavrin01>();
    click_line(main.lstSpellen, 0);
    click(main.cmdTavrin);
    auto& table = screen<table::frmTavrin02>();
    expect_whole();
    const double height = window().height();
    const QWidget& button = widget(table.cmdTerug);
    const double below = height - button.mapTo(&window(), QPoint(0, button.height())).y();
    const double width = static_cast<double>(widget(table.picBack).width()) / window().width();
    EXPECT_TRUE((below >= 0 && below <= 0.02 * height) || width >= 0.98) << below << " below, " << width << " wide";
    const double aside = widget(table.picBack).mapTo(&window(), QPoint()).x();
    EXPECT_NEAR(2 * aside + widget(table.picBack).width(), window().width(), 3);

    // A window that is made small shows the whole table still.
    window().setWindowState(Qt::WindowNoState);
    window().resize(700, 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(window().size(), QSize(700, 320)) << "it has a least height";
    const QWidget& surface = widget(table.picBack);
    EXPECT_TRUE(window().rect().contains(QRect(surface.mapTo(&window(), QPoint()), surface.size())));
    EXPECT_GT(surface.height(), 240);
    EXPECT_LE(button.mapTo(&window(), QPoint(0, button.height())).y(), window().height());
}

TEST_F(Sizes, TheUserMakesAScreenLargerAndSmallerAndItStaysSo) {
    host.zooms().keep_in(services::settings_file(folder));
    start_program();
    screen<library::frmTavrin01>();
    const int usual = window().width();
    key(Qt::Key_Minus, Qt::ControlModifier);
    key(Qt::Key_Minus, Qt::ControlModifier);
    const int smaller = window().width();
    EXPECT_NEAR(smaller, 0.8 * usual, 3);
    click(screen<library::frmTavrin01>().cmdKaartenEditor);
    screen<annotate::frmTavrin05>();
    key(Qt::Key_Escape);
    screen<library::frmTavrin01>();
    EXPECT_EQ(window().width(), smaller);
    EXPECT_NE(read("standaardtavrin.ini").find("frmTavrin01=80"), std::string::npos);
    expect_whole();
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(window().width(), usual);
    for (int i = 0; i < 40; ++i)
        key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(window().width(), usual);
    expect_whole();
}

}  // namespace
