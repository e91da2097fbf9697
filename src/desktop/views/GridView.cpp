#include "desktop/views/GridView.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QTableWidget>

#include "desktop/Text.h"
#include "forms/User.h"

namespace desktop::views {

namespace {
// The heading column, as a share of an ordinary one.
constexpr double kHeadingColumn = 0.7;

// The current cell is the program's own affair: it looks like the others, whoever has the keyboard.
class CellDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

private:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
    }
};

}  // namespace

// A table whose cells fill it; the heading row and column are cells like the others, so that they can be clicked.
class GridWidget final : public QTableWidget {
public:
    GridWidget(int rows, int cols, QWidget* parent) : QTableWidget(rows, cols, parent) {
        horizontalHeader()->hide();
        verticalHeader()->hide();
        horizontalHeader()->setMinimumSectionSize(1);
        verticalHeader()->setMinimumSectionSize(1);
        setEditTriggers(NoEditTriggers);
        setSelectionMode(NoSelection);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setTabKeyNavigation(false);
        setItemDelegate(new CellDelegate(this));
        for (int row = 0; row < rows; ++row) {
            for (int col = 0; col < cols; ++col)
                setItem(row, col, new QTableWidgetItem);
        }
    }

    std::function<void(int row, int col)> Clicked;

private:
    void mousePressEvent(QMouseEvent* event) override { pressed_ = event->button() == Qt::LeftButton; }
    void mouseMoveEvent(QMouseEvent*) override {}
    void mouseReleaseEvent(QMouseEvent* event) override {
        const QModelIndex cell = indexAt(event->pos());
        if (std::exchange(pressed_, false) && cell.isValid() && Clicked) Clicked(cell.row(), cell.column());
    }
    // The current cell is the program's to choose.
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }

    void resizeEvent(QResizeEvent* event) override {
        QTableWidget::resizeEvent(event);
        const QSize room = viewport()->size();
        const double ordinary = room.width() / (columnCount() - 1 + kHeadingColumn);
        const auto edge = [&](int col) { return col == 0 ? 0.0 : ordinary * (col - 1 + kHeadingColumn); };
        for (int col = 0; col < columnCount(); ++col) {
            setColumnWidth(col, static_cast<int>(edge(col + 1)) - static_cast<int>(edge(col)));
        }
        for (int row = 0; row < rowCount(); ++row) {
            setRowHeight(row, room.height() * (row + 1) / rowCount() - room.height() * row / rowCount());
        }
    }

    bool pressed_ = false;
};

GridView::GridView(FormWindow& window, forms::FlexGrid& grid, QWidget* parent)
    : View(window, grid, new GridWidget(grid.Rows(), grid.Cols(), parent)),
      grid_(grid),
      widget_(static_cast<GridWidget&>(widget())) {
    widget_.Clicked = [this](int row, int col) {
        user_did([this, row, col] { forms::user::click_cell(grid_, row, col); });
    };
}

void GridView::show_state() {
    if (!grid_.Redraw) return;
    for (int row = 0; row < grid_.Rows(); ++row) {
        for (int col = 0; col < grid_.Cols(); ++col) {
            const forms::FlexGrid::Cell& cell = grid_.cell(row, col);
            const bool heading = row < grid_.FixedRows() || col < grid_.FixedCols();
            const bool centred = cell.alignment == forms::FlexGrid::CellAlignment::Centre || row < grid_.FixedRows();
            QTableWidgetItem& item = *widget_.item(row, col);
            const QString text = to_qt(cell.text);
            if (item.text() != text) item.setText(text);
            const bool plain = heading && cell.colour == forms::kWindowColour;
            const QBrush background(colour(plain ? forms::kFaceColour : cell.colour));
            if (item.background() != background) item.setBackground(background);
            const Qt::Alignment alignment = Qt::AlignVCenter | (centred ? Qt::AlignHCenter : Qt::AlignLeft);
            if (item.textAlignment() != static_cast<int>(alignment)) item.setTextAlignment(alignment);
        }
    }
    widget_.setCurrentCell(grid_.Row, grid_.Col, QItemSelectionModel::NoUpdate);
}

}  // namespace desktop::views
