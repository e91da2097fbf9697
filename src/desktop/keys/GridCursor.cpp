#include "desktop/keys/GridCursor.h"

#include <QTableWidget>
#include <algorithm>

#include "desktop/FormWindow.h"
#include "desktop/Text.h"
#include "forms/User.h"

namespace desktop::keys {

void GridCursor::begin() {
    if (row_ != 0) return;
    col_ = grid_.FixedCols();
    const auto filled = [this](int row) {
        for (int col = grid_.FixedCols(); col < grid_.Cols(); ++col) {
            if (!grid_.cell(row, col).text.empty()) return true;
        }
        return false;
    };
    row_ = grid_.Rows() - 1;
    while (row_ > grid_.FixedRows() && !filled(row_))
        --row_;
}

bool GridCursor::move(int key) {
    begin();
    const int last_row = grid_.Rows() - 1;
    const int last_col = grid_.Cols() - 1;
    switch (key) {
        case Qt::Key_Left:
            col_ = std::max(grid_.FixedCols(), col_ - 1);
            return true;
        case Qt::Key_Right:
            col_ = std::min(last_col, col_ + 1);
            return true;
        case Qt::Key_Up:
            row_ = std::max(grid_.FixedRows(), row_ - 1);
            return true;
        case Qt::Key_Down:
            row_ = std::min(last_row, row_ + 1);
            return true;
        case Qt::Key_Home:
            row_ = grid_.FixedRows();
            return true;
        case Qt::Key_End:
            row_ = last_row;
            return true;
        default:
            return false;
    }
}

void GridCursor::click() {
    begin();
    window_.act([this] { forms::user::click_cell(grid_, row_, col_); });
}

QRect GridCursor::mark(const QWidget& canvas) {
    begin();
    const QRect cell = table_.visualItemRect(table_.item(row_, col_));
    return {table_.viewport()->mapTo(&canvas, cell.topLeft()), cell.size()};
}

QString GridCursor::spoken() {
    begin();
    QStringList words;
    for (const auto& [row, col] : {std::pair(0, col_), std::pair(row_, 0), std::pair(row_, col_)}) {
        const QString text = to_qt(grid_.cell(row, col).text);
        if (!text.isEmpty()) words << text;
    }
    return words.join(QStringLiteral(", "));
}

}  // namespace desktop::keys
