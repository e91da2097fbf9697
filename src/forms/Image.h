#pragma once

#include "forms/Control.h"

namespace forms {

// A picture without a surface of its own.
class Image final : public Control {
public:
    using Control::Control;
    const char* kind() const override { return "Image"; }

    Property<forms::Picture> Picture{*this, "Picture"};
};

}  // namespace forms
