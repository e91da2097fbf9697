#pragma once

#include <vector>

namespace forms {

class Control;
class Form;

// What controls stand on: a form, a frame or a picture box.
class Container {
public:
    virtual ~Container() = default;

    virtual Form& form() = 0;
    // The control that this container is; null for a form.
    virtual Control* as_control() { return nullptr; }

    // The controls on it, the one at the back first.
    const std::vector<Control*>& children() const { return children_; }

private:
    friend class Control;
    std::vector<Control*> children_;
};

}  // namespace forms
