#pragma once

#include "desktop/views/View.h"
#include "forms/Frame.h"

namespace desktop::views {

class FrameWidget;

class FrameView final : public View {
public:
    FrameView(FormWindow& window, forms::Frame& frame, QWidget* parent);

private:
    void show_state() override;

    forms::Frame& frame_;
    FrameWidget& widget_;
};

}  // namespace desktop::views
