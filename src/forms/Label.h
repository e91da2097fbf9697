#pragma once

#include "forms/Control.h"

namespace forms {

enum class Alignment { Left = 0, Right = 1, Centre = 2 };
std::string property_text(Alignment value);

// Text on a form. With AutoSize it is as wide and high as its text. `&` marks the accelerator letter, `&&` is one `&`.
class Label final : public Control {
public:
    Label(Container& container, std::string name, const Rect& place, int index = kNoIndex);
    const char* kind() const override { return "Label"; }

    ActiveProperty<std::string> Caption{*this, "Caption", "", [this](const std::string& text) {
                                            Caption.store(text);
                                            fit();
                                        }};
    ActiveProperty<bool> AutoSize{*this, "AutoSize", false, [this](bool on) {
                                      AutoSize.store(on);
                                      fit();
                                  }};
    Property<forms::Alignment> Alignment{*this, "Alignment", forms::Alignment::Left};
    // False: what lies behind shows through.
    Property<bool> Opaque{*this, "Opaque", false};

private:
    void fit();
};

}  // namespace forms
