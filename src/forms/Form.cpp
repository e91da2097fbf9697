#include "forms/Form.h"

#include <algorithm>
#include <utility>

#include "base/Fout.h"
#include "base/Text.h"
#include "forms/Control.h"
#include "forms/Windows.h"

namespace forms {

std::string property_text(WindowState value) { return std::to_string(static_cast<int>(value)); }
std::string property_text(MousePointer value) { return value == MousePointer::Hourglass ? "11" : "0"; }

Form::Form(Windows& windows, std::string name, const Size& inner)
    : windows_(windows),
      name_(std::move(name)),
      Width(*this, "Width", inner.width),
      Height(*this, "Height", inner.height) {}

void Form::Show() { windows_.show(*this); }
void Form::Hide() { windows_.hide(*this); }
void Form::Unload() { windows_.unload(*this); }
void Form::Refresh() { windows_.host().repaint(*this); }
bool Form::show_pending() const { return windows_.show_pending(*this); }

Control* Form::find_control(const std::string& name, int index) const {
    const auto found = std::ranges::find_if(controls_, [&](const Control* control) {
        return control->index() == index && base::equal_ignoring_case(control->name(), name);
    });
    return found == controls_.end() ? nullptr : *found;
}

Control& Form::control(const std::string& name, int index) const {
    Control* found = find_control(name, index);
    if (!found) throw base::Fout(base::FoutNummer::NoSuchArrayElement, name);
    return *found;
}

Form::Changes Form::take_changes() {
    Changes changes = std::exchange(changes_, {});
    for (Control* control : changes.controls)
        control->mark_drawn();
    return changes;
}

void Form::order_changed(Container& container) {
    if (std::ranges::find(changes_.orders, &container) == changes_.orders.end()) changes_.orders.push_back(&container);
}

void Form::set_focus(Control& control) {
    if (focus_ == &control) return;
    focus_ = &control;
    changed();
    if (control.GotFocus) control.GotFocus();
}

void Form::assign_visible(bool visible) {
    if (visible) {
        windows_.show(*this);
    } else {
        windows_.hide(*this);
    }
}

void Form::assign_window_state(forms::WindowState state) {
    if (state == WindowState()) return;
    if (WindowState() == WindowState::Normal) normal_place_ = {Left, Top, Width, Height};
    WindowState.store(state);
    const Size screen = windows_.host().screen_size(*this);
    const Rect place = state == WindowState::Maximised ? Rect{0, 0, screen.width, screen.height} : normal_place_;
    if (state == WindowState::Minimised) return;
    Left = place.left;
    Top = place.top;
    Width = place.width;
    Height = place.height;
}

}  // namespace forms
