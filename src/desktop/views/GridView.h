#pragma once

#include "desktop/views/View.h"
#include "forms/FlexGrid.h"

namespace desktop::views {

class GridWidget;

class GridView final : public View {
public:
    GridView(FormWindow& window, forms::FlexGrid& grid, QWidget* parent);

private:
    void show_state() override;
    bool speaks_for_itself() const override { return false; }

    forms::FlexGrid& grid_;
    GridWidget& widget_;
};

}  // namespace desktop::views
