#pragma once

#include <memory>

#include "forms/Form.h"

class QKeyEvent;

namespace forms {
class VScrollBar;
}

namespace desktop {
class FormWindow;
}

namespace desktop::keys {

// What keys do on one screen beside what they do everywhere. It finds the screen's controls by their names.
class ScreenKeys {
public:
    // Those of the window's form; most screens have none of their own.
    static std::unique_ptr<ScreenKeys> make(FormWindow& window);

    explicit ScreenKeys(FormWindow& window) : window_(window) {}
    virtual ~ScreenKeys() = default;

    // A key without Control or Alt, pressed while the keyboard is at that control, null for none. True if that was all
    // that it does.
    virtual bool pressed(const QKeyEvent& /*event*/, const forms::Control* /*at*/) { return false; }
    // A line of the list was clicked twice.
    virtual void line_opened(const forms::Control& /*list*/) {}
    // Which control gets the keyboard where the core has the focus on nothing that the user sees; null for none.
    virtual const forms::Control* refuge() const { return nullptr; }
    // Where the keyboard goes after a click at a stop, even if the core has had the focus there before; null for
    // nowhere.
    virtual const forms::Control* goes_on_at() const { return nullptr; }

protected:
    FormWindow& window_;
};

// Moves a bar whose range has one step too many at both ends, which leads round. A key held down stops at the end.
void step(FormWindow& window, forms::VScrollBar& bar, int steps, const QKeyEvent& event);

}  // namespace desktop::keys
