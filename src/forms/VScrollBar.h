#pragma once

#include "forms/Control.h"

namespace forms {

// A vertical scroll bar; its upper arrow lowers the value by one. Change is raised whenever Value changes.
class VScrollBar final : public Control {
public:
    using Control::Control;
    const char* kind() const override { return "VScrollBar"; }

    Property<int> Min{*this, "Min", 0};
    Property<int> Max{*this, "Max", 32767};
    // A value outside Min to Max is failure 380.
    ActiveProperty<int> Value{*this, "Value", 0, [this](int value) { assign_value(value); }};

    std::function<void()> Change;

private:
    void assign_value(int value);
};

}  // namespace forms
