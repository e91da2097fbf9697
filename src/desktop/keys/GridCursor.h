#pragma once

#include "desktop/keys/Stop.h"
#include "forms/FlexGrid.h"

class QTableWidget;

namespace desktop {
class FormWindow;
}

namespace desktop::keys {

// A cursor over the ordinary cells of a grid, apart from the grid's current cell, which is the program's. It begins
// in the last row with a text.
class GridCursor final : public Stop {
public:
    GridCursor(FormWindow& window, forms::FlexGrid& grid, const QTableWidget& table)
        : window_(window), grid_(grid), table_(table) {}

    bool usable() const override { return grid_.visible_to_user() && grid_.enabled_for_user(); }
    bool move(int key) override;
    void click() override;
    QRect mark(const QWidget& canvas) override;
    // The headings of the cell's column and row, and its text.
    QString spoken() override;

private:
    void begin();

    FormWindow& window_;
    forms::FlexGrid& grid_;
    const QTableWidget& table_;
    int row_ = 0;  // 0 before the keyboard was there
    int col_ = 0;
};

}  // namespace desktop::keys
