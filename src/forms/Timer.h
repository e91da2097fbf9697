#pragma once

#include "forms/Control.h"

namespace forms {

// Ticks every Interval milliseconds while it is enabled; an Interval of 0 or less never fires. Enabling it, and giving
// it another interval, starts its time anew.
class Timer final : public Control {
public:
    Timer(Container& container, std::string name, int index = kNoIndex)
        : Control(container, std::move(name), Rect{}, index) {
        Enabled = false;
        Visible = false;
    }
    const char* kind() const override { return "Timer"; }

    Property<int> Interval{*this, "Interval", 0};
    std::function<void()> Tick;

    bool running() const { return Enabled && Interval > 0; }
};

}  // namespace forms
