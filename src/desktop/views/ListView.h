#pragma once

#include "desktop/views/View.h"
#include "forms/ListBox.h"

namespace desktop::views {

class LineModel;
class ListWidget;

class ListView final : public View {
public:
    ListView(FormWindow& window, forms::ListBox& list, QWidget* parent);
    void retire() override;

private:
    void show_state() override;
    void show_selection();

    forms::ListBox& list_;
    ListWidget& widget_;
    LineModel* model_;
    int shown_version_ = -1;
    int shown_index_ = -1;
};

}  // namespace desktop::views
