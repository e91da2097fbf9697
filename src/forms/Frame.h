#pragma once

#include "forms/Control.h"

namespace forms {

// A titled box with controls on it. Disabled or hidden, it disables or hides them too.
class Frame final : public Control, public Container {
public:
    using Control::Control;
    const char* kind() const override { return "Frame"; }
    Form& form() override { return Control::form(); }
    Control* as_control() override { return this; }

    Property<std::string> Caption{*this, "Caption"};
};

}  // namespace forms
