#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/Control.h"
#include "forms/Geometry.h"

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

    // Words on the surface itself, each in the middle of its place; all that stands on the box lies over them. They
    // have the box's font and ForeColor, and only decorate: nobody can ask for them or hear them.
    struct Inscription {
        std::string text;
        Rect place;
    };
    const std::vector<Inscription>& inscriptions() const { return inscriptions_; }
    void inscribe(std::vector<Inscription> inscriptions) {
        inscriptions_ = std::move(inscriptions);
        changed();
    }

private:
    std::vector<Inscription> inscriptions_;
};

}  // namespace forms
