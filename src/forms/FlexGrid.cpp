#include "forms/FlexGrid.h"

#include <utility>

#include "base/Fout.h"

namespace forms {

FlexGrid::FlexGrid(Container& container, std::string name, const Rect& place, int rows, int cols)
    : Control(container, std::move(name), place),
      rows_(rows),
      cols_(cols),
      cells_(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols)) {
    BackColor = kWindowColour;
}

const FlexGrid::Cell& FlexGrid::cell(int row, int col) const {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_) {
        throw base::Fout(base::FoutNummer::NoSuchRowOrColumn, std::to_string(row) + ", " + std::to_string(col));
    }
    return cells_[static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) + static_cast<std::size_t>(col)];
}

FlexGrid::Cell& FlexGrid::at(int row, int col) { return const_cast<Cell&>(std::as_const(*this).cell(row, col)); }

void FlexGrid::SetText(const std::string& text) {
    at(Row, Col).text = text;
    changed();
}

void FlexGrid::SetCellBackColor(int row, int col, base::Colour colour) {
    at(row, col).colour = colour;
    changed();
}

void FlexGrid::SetCellAlignment(CellAlignment alignment) {
    at(Row, Col).alignment = alignment;
    changed();
}

void FlexGrid::user_click(int row, int col) {
    cell(row, col);
    if (row >= FixedRows() && col >= FixedCols()) {
        Row = row;
        Col = col;
    }
    if (Click) Click();
}

void FlexGrid::assign_row(int row) {
    cell(row, 0);
    Row.store(row);
}

void FlexGrid::assign_col(int col) {
    cell(0, col);
    Col.store(col);
}

}  // namespace forms
