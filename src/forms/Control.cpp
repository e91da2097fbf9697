#include "forms/Control.h"

#include <algorithm>
#include <utility>

#include "forms/Form.h"

namespace forms {

Control::Control(Container& container, std::string name, const Rect& place, int index)
    : name_(std::move(name)),
      index_(index),
      container_(container),
      Left(*this, "Left", place.left),
      Top(*this, "Top", place.top),
      Width(*this, "Width", place.width),
      Height(*this, "Height", place.height) {
    container.children_.push_back(this);
    container.form().add(*this);
}

void Control::Move(double left, double top) {
    Left = left;
    Top = top;
}

void Control::Move(double left, double top, double width, double height) {
    Move(left, top);
    Width = width;
    Height = height;
}

void Control::ZOrder() {
    auto& siblings = container_.children_;
    const auto here = std::ranges::find(siblings, this);
    if (here + 1 == siblings.end()) return;
    std::rotate(here, here + 1, siblings.end());
    form().order_changed(container_);
}

void Control::SetFocus() { form().set_focus(*this); }
void Control::Refresh() { form().Refresh(); }

bool Control::visible_to_user() const {
    const Control* parent = container_.as_control();
    return Visible && (parent ? parent->visible_to_user() : form().Visible());
}

bool Control::enabled_for_user() const {
    const Control* parent = container_.as_control();
    return Enabled && (!parent || parent->enabled_for_user());
}

void Control::changed() {
    if (changed_) return;
    changed_ = true;
    form().control_changed(*this);
}

}  // namespace forms
