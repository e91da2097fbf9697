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
    bool speaks_for_itself() const override { return false; }
    void show_selection();

    forms::ListBox& list_;
    ListWidget& widget_;
    LineModel* model_;
    int shown_version_ = -1;
    int shown_index_ = -1;
};

}  // namespace desktop::views
