#pragma once

#include <QScrollBar>

#include "desktop/views/View.h"
#include "forms/VScrollBar.h"

namespace desktop::views {

class ScrollBarView final : public View {
public:
    ScrollBarView(FormWindow& window, forms::VScrollBar& bar, QWidget* parent);

private:
    void show_state() override;
    bool speaks_for_itself() const override { return false; }

    forms::VScrollBar& bar_;
    QScrollBar& widget_;
};

}  // namespace desktop::views
