#pragma once

#include "forms/Control.h"

namespace forms {

// A surface that shows a picture at its upper left corner and can hold controls. BorderStyle 1 draws a thin frame.
class PictureBox final : public Control, public Container {
public:
    using Control::Control;
    const char* kind() const override { return "PictureBox"; }
    forms::Form& form() override { return Control::form(); }
    Control* as_control() override { return this; }

    Property<forms::Picture> Picture{*this, "Picture"};
    // True: the picture fills the box, in its own proportions; false: it keeps its own size.
    Property<bool> Stretch{*this, "Stretch", false};
    // False: what lies behind shows through where there is no picture.
    Property<bool> Opaque{*this, "Opaque", true};
};

}  // namespace forms
