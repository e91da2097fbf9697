#pragma once

#include <string>
#include <vector>

#include "forms/Control.h"

namespace forms {

// A table with text and colour a cell, fixed heading rows and columns, and a current cell. Row and Col choose the
// current cell; Text, CellBackColor and CellAlignment are those of that cell. A row or column that does not exist is
// failure 30009.
class FlexGrid final : public Control {
public:
    enum class CellAlignment { Left, Centre };

    FlexGrid(Container& container, std::string name, const Rect& place, int rows, int cols);
    const char* kind() const override { return "FlexGrid"; }

    int Rows() const { return rows_; }
    int Cols() const { return cols_; }
    int FixedRows() const { return 1; }
    int FixedCols() const { return 1; }

    ActiveProperty<int> Row{*this, "Row", 1, [this](int row) { assign_row(row); }};
    ActiveProperty<int> Col{*this, "Col", 1, [this](int col) { assign_col(col); }};
    // False: the host leaves the picture as it is until it is true again.
    Property<bool> Redraw{*this, "Redraw", true};

    const std::string& Text() const { return cell(Row, Col).text; }
    void SetText(const std::string& text);
    base::Colour CellBackColor() const { return cell(Row, Col).colour; }
    void SetCellBackColor(base::Colour colour) { SetCellBackColor(Row, Col, colour); }
    void SetCellBackColor(int row, int col, base::Colour colour);
    void SetCellAlignment(CellAlignment alignment);

    struct Cell {
        std::string text;
        base::Colour colour = kWindowColour;
        CellAlignment alignment = CellAlignment::Left;
    };
    const Cell& cell(int row, int col) const;

    // What a user's click does: makes the cell current unless it is a fixed one, and raises Click.
    void user_click(int row, int col);

private:
    Cell& at(int row, int col);
    void assign_row(int row);
    void assign_col(int col);

    int rows_;
    int cols_;
    std::vector<Cell> cells_;
};

}  // namespace forms
