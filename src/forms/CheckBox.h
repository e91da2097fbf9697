#pragma once

#include "forms/Control.h"

namespace forms {

// A box to tick. Click is raised whenever Value changes, by the user or by assignment.
class CheckBox final : public Control {
public:
    using Control::Control;
    const char* kind() const override { return "CheckBox"; }

    Property<std::string> Caption{*this, "Caption"};
    // 0 or 1; another value is failure 380.
    ActiveProperty<int> Value{*this, "Value", 0, [this](int value) { assign_value(value); }};

private:
    void assign_value(int value);
};

}  // namespace forms
