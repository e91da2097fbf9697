#include <QCheckBox>
#include <QListView>
#include <QScrollBar>
#include <QStyle>
#include <QTableWidget>

#include "desktop/TestWindows.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/FlexGrid.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/PictureBox.h"
#include "forms/TextBox.h"
#include "forms/VScrollBar.h"

namespace {

class ControlsForm final : public forms::Form {
public:
    explicit ControlsForm(forms::Windows& windows) : Form(windows, "controls", {9000, 7500}) {
        for (const char* line : {"Aas", "Boer", "Heer", "Harten", "Vrouw"})
            list.AddItem(line);
        many.MultiSelect = true;
        area.MultiLine = true;
        for (int line = 0; line < 20; ++line)
            many.AddItem("Stok " + std::to_string(line));
        bar.Min = -1;
        bar.Max = 4;
        bar.Change = [this] {
            if (bar.Value == -1) bar.Value = 3;
            if (bar.Value == 4) bar.Value = 0;
        };
        for (forms::Control* control : controls()) {
            control->Click = [this, control] { clicked.push_back(control->name()); };
        }
        for (forms::PictureBox* card : {&card1, &card2, &card3})
            card->Opaque = true;
    }

    std::vector<std::string> clicked;

    forms::Frame frame{*this, "frame", {150, 150, 3000, 3000}};
    forms::CommandButton button{frame, "button", {150, 300, 1200, 450}};
    forms::Label label{frame, "label", {150, 900, 1200, 300}};
    forms::CheckBox check{*this, "check", {150, 3300, 2000, 300}};
    forms::ListBox list{*this, "list", {3300, 150, 2000, 3000}};
    forms::ListBox many{*this, "many", {5400, 150, 2000, 3000}};
    forms::ListBox lines{*this, "lines"};
    forms::VScrollBar bar{*this, "bar", {2500, 3300, 285, 375}};
    forms::PictureBox card1{*this, "card1", {150, 4500, 1500, 1500}};
    forms::PictureBox card2{*this, "card2", {600, 4500, 1500, 1500}};
    forms::PictureBox card3{*this, "card3", {1050, 4500, 1500, 1500}};
    forms::TextBox area{*this, "area", {150, 6300, 2000, 900}};
    forms::FlexGrid grid{*this, "grid", {3300, 3600, 5000, 3600}, 14, 5};
};

class Controls : public TestWindows {
protected:
    ControlsForm& form = show<ControlsForm>();

    void click_line(const forms::ListBox& list, int line) {
        auto& view = widget_as<QListView>(list);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(view.model()->index(line, 0)).center());
    }
    std::vector<int> highlighted(const forms::ListBox& list) {
        std::vector<int> found;
        for (const QModelIndex& line : widget_as<QListView>(list).selectionModel()->selectedIndexes()) {
            found.push_back(line.row());
        }
        std::ranges::sort(found);
        return found;
    }
    void click_arrow(QStyle::SubControl arrow) {
        auto& bar = widget_as<QScrollBar>(form.bar);
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.orientation = Qt::Vertical;
        const QRect place = bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, arrow, &bar);
        QTest::mouseClick(&bar, Qt::LeftButton, {}, place.center());
    }
};

TEST_F(Controls, AControlThatWasNeverSeenHasNoWidget) {
    EXPECT_EQ(widget(form.lines), nullptr);
    program([&] { form.frame.Visible = false; });
    EXPECT_FALSE(widget(form.button)->isVisible());
}

TEST_F(Controls, KeysMoveThroughAList) {
    for (const Qt::Key first : {Qt::Key_Down, Qt::Key_Home, Qt::Key_Space, Qt::Key_A}) {
        program([&] { form.list.ListIndex = -1; });
        form.clicked.clear();
        widget(form.list)->setFocus();
        QTest::keyClick(widget(form.list), first);
        EXPECT_EQ(highlighted(form.list), std::vector{0}) << "nothing was chosen before";
        EXPECT_EQ(form.clicked.size(), 1U);
    }
    const std::vector<std::pair<Qt::Key, int>> steps{{Qt::Key_Down, 1}, {Qt::Key_H, 2},   {Qt::Key_H, 3},
                                                     {Qt::Key_H, 2},    {Qt::Key_End, 4}, {Qt::Key_Up, 3},
                                                     {Qt::Key_Home, 0}};
    for (const auto& [key, line] : steps) {
        QTest::keyClick(widget(form.list), key);
        EXPECT_EQ(form.list.ListIndex(), line) << key;
        EXPECT_EQ(highlighted(form.list), std::vector{line});
    }
    EXPECT_EQ(form.clicked.size(), steps.size() + 1);
}

TEST_F(Controls, AListOfManyTogglesByClickAndSpace) {
    click_line(form.many, 1);
    click_line(form.many, 3);
    click_line(form.many, 1);
    QTest::keyClick(widget(form.many), Qt::Key_Down);
    QTest::keyClick(widget(form.many), Qt::Key_Space);
    EXPECT_EQ(highlighted(form.many), (std::vector{2, 3}));
    EXPECT_TRUE(form.many.Selected(2) && form.many.Selected(3) && !form.many.Selected(1));
}

TEST_F(Controls, TheChosenLineOfALongListIsInView) {
    program([&] {
        form.list.Clear();
        for (int line = 0; line < 10000; ++line)
            form.list.AddItem("Spel " + std::to_string(line));
        form.list.ListIndex = 9000;
    });
    EXPECT_EQ(widget_as<QListView>(form.list).model()->rowCount(), 10000);
    EXPECT_TRUE(widget_as<QListView>(form.list).viewport()->rect().intersects(
        widget_as<QListView>(form.list).visualRect(widget_as<QListView>(form.list).currentIndex())));
}

TEST_F(Controls, TheScrollBarFollowsAHandlerThatWraps) {
    const std::vector<std::pair<QStyle::SubControl, int>> steps{
        {QStyle::SC_ScrollBarAddLine, 1}, {QStyle::SC_ScrollBarSubLine, 0}, {QStyle::SC_ScrollBarSubLine, 3},
        {QStyle::SC_ScrollBarSubLine, 2}, {QStyle::SC_ScrollBarAddLine, 3}, {QStyle::SC_ScrollBarAddLine, 0}};
    for (const auto& [arrow, value] : steps) {
        click_arrow(arrow);
        EXPECT_EQ(form.bar.Value(), value);
        EXPECT_EQ(widget_as<QScrollBar>(form.bar).value(), value);
    }
}

TEST_F(Controls, ControlsStandInTheOrderOfTheForm) {
    QWidget& window = *host.window(&form);
    const QPoint shared = widget(form.card3)->geometry().center() - QPoint(30, 0);  // all three lie there
    const auto front = [&] { return window.childAt(shared); };
    EXPECT_EQ(front(), widget(form.card3));
    program([&] { form.card1.ZOrder(); });
    EXPECT_EQ(front(), widget(form.card1));
    program([&] {
        form.card2.ZOrder();
        form.card3.ZOrder();
        form.card3.Visible = false;
    });
    EXPECT_EQ(front(), widget(form.card2));
}

// Where in its widget something is painted that is no ground; 0 at the left or top, 1 at the right or foot.
QRectF ink_of(QWidget& widget) {
    const QImage image = widget.grab().toImage();
    const QRgb ground = image.pixel(image.width() - 3, image.height() - 3);
    QRect ink;
    for (int y = 2; y < image.height() - 2; ++y) {
        for (int x = 2; x < image.width() - 2; ++x) {
            if (image.pixel(x, y) != ground) ink |= QRect(x, y, 1, 1);
        }
    }
    return {ink.x() * 1.0 / image.width(), ink.y() * 1.0 / image.height(), ink.width() * 1.0 / image.width(),
            ink.height() * 1.0 / image.height()};
}

TEST_F(Controls, WordsStandAtTheirSideAndPicturesHaveTheirBorder) {
    using forms::Alignment;
    for (const auto& [side, middle] :
         {std::pair{Alignment::Left, 0.2}, {Alignment::Centre, 0.5}, {Alignment::Right, 0.8}}) {
        program([&] {
            form.label.Caption = "Aas";
            form.label.Alignment = side;
            form.area.Text = "Aas";
            form.area.Alignment = side;
        });
        EXPECT_NEAR(ink_of(*widget(form.label)).center().x(), middle, 0.16) << middle;
        EXPECT_NEAR(ink_of(*widget(form.area)).center().x(), middle, 0.16) << middle;
    }
    auto& table = widget_as<QTableWidget>(form.grid);
    program([&] {
        form.grid.Row = form.grid.Col = 2;
        form.grid.SetCellAlignment(forms::FlexGrid::CellAlignment::Centre);
    });
    EXPECT_TRUE(table.item(2, 2)->textAlignment() & Qt::AlignHCenter);
    EXPECT_TRUE(table.item(3, 3)->textAlignment() & Qt::AlignLeft);
    const auto edge = [&] { return widget(form.card1)->grab().toImage().pixel(0, 50); };
    const QRgb plain = edge();
    program([&] { form.card1.BorderStyle = 1 - form.card1.BorderStyle; });
    EXPECT_NE(edge(), plain);
}

TEST_F(Controls, AGridShowsItsCellsAndReportsEveryClick) {
    auto& table = widget_as<QTableWidget>(form.grid);
    program([&] {
        form.grid.Row = 3;
        form.grid.Col = 2;
        form.grid.SetText("H Aas");
        form.grid.SetCellBackColor(base::Colour::rgb(255, 255, 0));
    });
    EXPECT_EQ(table.item(3, 2)->text(), "H Aas");
    EXPECT_EQ(table.item(3, 2)->background().color(), QColor(255, 255, 0));
    program([&] {
        form.grid.Col = 0;
        form.grid.SetCellBackColor(base::Colour::rgb(0, 255, 0));
    });
    EXPECT_EQ(table.item(3, 0)->background().color(), QColor(0, 255, 0)) << "a heading may have a colour of its own";
    EXPECT_EQ(table.item(4, 0)->background().color(), QColor(0xF0, 0xF0, 0xF0));
    const auto click_cell = [&](int row, int col) {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualItemRect(table.item(row, col)).center());
    };
    click_cell(13, 4);
    EXPECT_EQ(form.grid.Row(), 13);
    EXPECT_EQ(form.grid.Col(), 4);
    click_cell(0, 1);
    EXPECT_EQ(form.grid.Row(), 13);
    EXPECT_EQ(form.clicked, (std::vector<std::string>{"grid", "grid"}));
    program([&] {
        form.grid.Redraw = false;
        form.grid.SetText("later");
    });
    EXPECT_EQ(table.item(13, 4)->text(), "");
}

}  // namespace
