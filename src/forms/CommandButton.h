#pragma once

#include "forms/Control.h"

namespace forms {

// A push button. `&` in its caption marks the accelerator letter.
class CommandButton final : public Control {
public:
    using Control::Control;
    const char* kind() const override { return "CommandButton"; }

    Property<std::string> Caption{*this, "Caption"};
};

}  // namespace forms
