#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QHelpEvent>
#include <QListView>
#include <QMessageBox>
#include <QScreen>
#include <QTableWidget>
#include <QTimer>
#include <QToolTip>
#include <QWindow>
#include <algorithm>

#include "annotate/frmTavrin05.h"
#include "annotate/frmTavrin06.h"
#include "desktop/Text.h"
#include "desktop/ThroughTheScreens.h"
#include "desktop/views/LabelText.h"
#include "desktop/views/View.h"
#include "library/frmTavrin01.h"
#include "table/frmTavrin02.h"

namespace {

constexpr int kHalfGrey = 170;
constexpr int kNearlyWhite = 230;

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
            EXPECT_EQ(cut_words(*control, view->widget()).toStdString(), "") << name << "." << control->name();
        }
    }
    // The edge of a card is one line of the display's own dots, dark all along, and white behind it.
    void expect_sharp_edges(const forms::Control& card) {
        const QImage image = picture(card);
        const QPoint end(image.width() - 1, image.height() - 1);
        const struct {
            const char* side;
            QPoint middle;
            QPoint inwards;
        } sides[] = {{"above", {end.x() / 2, 0}, {0, 1}},
                     {"below", {end.x() / 2, end.y()}, {0, -1}},
                     {"left", {0, end.y() / 2}, {1, 0}},
                     {"right", {end.x(), end.y() / 2}, {-1, 0}}};
        for (const auto& [side, middle, inwards] : sides) {
            const QPoint along(inwards.y(), inwards.x());
            const auto grey = [&](int depth, int step) {
                return qGray(image.pixel(middle + depth * inwards + step * along));
            };
            int line = 0;  // a dot of what lies behind may be seen outside the edge
            while (line < 2 && grey(line + 1, 0) < kHalfGrey)
                ++line;
            for (int step = -5; step <= 5; ++step)
                EXPECT_LT(grey(line, step), kHalfGrey) << side;
            const int white = line + 2 + static_cast<int>(image.devicePixelRatio() * host.table_zoom());
            EXPECT_GT(grey(white, 0), kNearlyWhite) << side;
        }
    }

private:
    // The words that the user does not see whole. A label that has no room for them shows them beside the pointer.
    static QString cut_words(const forms::Control& control, const QWidget& widget) {
        const auto if_wider = [&](const QString& words, int room) {
            return widget.fontMetrics().size(Qt::TextShowMnemonic, words).width() > room ? words : QString();
        };
        if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
            return if_wider(button->text(), widget.width());
        if (const auto* frame = qobject_cast<const QGroupBox*>(&widget))
            return if_wider(frame->title(), widget.width());
        if (const auto* list = qobject_cast<const QListView*>(&widget)) {
            const bool cut = list->sizeHintForColumn(0) > list->viewport()->width();
            return cut ? QStringLiteral("a line") : QString();
        }
        if (const auto* grid = qobject_cast<const QTableWidget*>(&widget)) {
            for (int col = 0; col < grid->columnCount(); ++col) {
                const QString cut = if_wider(grid->item(0, col)->text(), grid->columnWidth(col));
                if (!cut.isEmpty()) return cut;
            }
        }
        const auto* label = dynamic_cast<const forms::Label*>(&control);
        if (!label || !widget.toolTip().isEmpty()) return {};
        for (const desktop::views::LabelLine& line : desktop::views::label_lines(*label)) {
            if (!line.whole) return desktop::to_qt(line.text);
        }
        return {};
    }
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
    for (const int seat : cards::kPlaatsen)
        expect_sharp_edges(table.picKaart(seat)(13));
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

TEST_F(Sizes, OnTheOverviewZoomChangesPixelsAndOnlyTheUsersResizeItsTwips) {
    start_program();
    click(screen<library::frmTavrin01>().cmdKaartenEditor);
    click_line(screen<annotate::frmTavrin05>().lstSpellen, 0);
    click(screen<annotate::frmTavrin05>().cmdToonSpel);
    auto& overview = screen<annotate::frmTavrin06>();
    const auto twips = [&] {
        std::vector<double> all{overview.Width, overview.Height};
        for (const forms::Control* control : overview.controls())
            all.insert(all.end(), {control->Left, control->Top, control->Width, control->Height, control->FontSize});
        return all;
    };
    const std::vector<double> before = twips();
    const QSize usual = window().size();
    key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(twips(), before);
    EXPECT_NEAR(window().width(), 0.9 * usual.width(), 3);
    expect_whole();
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(twips(), before);
    EXPECT_EQ(window().size(), usual);

    window().windowHandle()->resize(usual * 0.8);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window().width() < usual.width(); }));
    EXPECT_NE(twips(), before);
    EXPECT_NEAR(overview.Width, 0.8 * before.front(), 30);

    window().showMaximized();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window().width() > 0.9 * window().screen()->availableSize().width(); }));
    const std::vector<double> maximised = twips();
    const QSize whole = window().size();
    for (const auto step : {Qt::Key_Minus, Qt::Key_Plus, Qt::Key_0}) {
        key(step, Qt::ControlModifier);
        EXPECT_EQ(window().size(), whole);
        EXPECT_EQ(twips(), maximised);
    }
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

TEST_F(Sizes, BoxesAndTipsAreAsLargeAsTheScreenInFrontOfWhichTheyStand) {
    platform.real_boxes = true;
    start_program();
    auto& main = screen<library::frmTavrin01>();
    click_line(main.lstSpellen, 0);
    const int letters = widget(main.cmdWissen).font().pixelSize();
    QTimer look;
    look.callOnTimeout([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return;
        look.stop();
        EXPECT_EQ(box->font().pixelSize(), letters);
        EXPECT_GT(box->iconPixmap().deviceIndependentSize().height(), 3 * letters);
        EXPECT_TRUE(window().screen()->availableGeometry().contains(box->geometry()));
        box->reject();
    });
    look.start(10);
    click(main.cmdWissen);
    EXPECT_FALSE(look.isActive());

    click(main.cmdKaartenEditor);
    auto& editor = screen<annotate::frmTavrin05>();
    click_line(editor.lstSpellen, "QVT_Spel 001");
    QWidget& marker = widget(editor.picYesNo(0));
    ASSERT_FALSE(marker.toolTip().isEmpty());
    QHelpEvent rest(QEvent::ToolTip, marker.rect().center(), marker.mapToGlobal(marker.rect().center()));
    QCoreApplication::sendEvent(&marker, &rest);
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_EQ(QToolTip::font().pixelSize(), widget(editor.cmdToonSpel).font().pixelSize());
    QToolTip::hideText();
}

TEST_F(Sizes, WhereTheSettingsCannotBeWrittenTheSizeHoldsForTheRun) {
    host.zooms().keep_in(folder + "/no such folder/settings.ini");
    start_program();
    screen<library::frmTavrin01>();
    const int usual = window().width();
    key(Qt::Key_Minus, Qt::ControlModifier);
    const int smaller = window().width();
    EXPECT_LT(smaller, usual);
    click(screen<library::frmTavrin01>().cmdKaartenEditor);
    screen<annotate::frmTavrin05>();
    key(Qt::Key_Escape);
    screen<library::frmTavrin01>();
    EXPECT_EQ(window().width(), smaller);
}

}  // namespace
