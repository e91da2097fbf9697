#pragma once

#include <string>

#include "forms/User.h"
#include "forms/Windows.h"
#include "script/Clock.h"
#include "script/ScriptPlatform.h"

namespace script {

// What carries the program for the interpreter, and the hands and eyes of the user before it. Its clock is virtual.
class Stage : public forms::Host {
public:
    forms::Size screen{28800, 15600};  // 1920 by 1040 pixels: a common screen less its task bar
    Clock clock;

    virtual ScriptPlatform& platform() = 0;
    // Whose windows it carries; called once, before anything else.
    void attach(forms::Windows& windows) {
        windows_ = &windows;
        attached();
    }

    forms::Size screen_size(const forms::Form&) const override { return screen; }
    void dispatch_ended(forms::Windows& windows) override { clock.follow(windows); }

    // Hands. What a user cannot do is refused; a line or a cell that is not there is a failure. A click gives the
    // control the focus if its kind takes it. Text goes character by character to what has the focus.
    virtual forms::Refusal click(forms::Control& control) = 0;
    virtual forms::Refusal click_cell(forms::FlexGrid& grid, int row, int col) = 0;
    virtual forms::Refusal select(forms::ListBox& list, int line) = 0;
    virtual forms::Refusal type(forms::TextBox& box, const std::string& text) = 0;
    virtual forms::Refusal type_all(forms::TextBox& box, const std::string& text) = 0;
    virtual forms::Refusal scroll(forms::VScrollBar& bar, int value) = 0;
    virtual void escape(forms::Form& form) = 0;
    virtual void help(forms::Form& form) = 0;
    virtual void close(forms::Form& form) = 0;
    virtual void activate(forms::Form& form) = 0;
    virtual void resize(forms::Form& form, double width, double height) = 0;
    virtual void change_state(forms::Form& form, forms::WindowState state) = 0;

    // Eyes: the first thing that is not shown as the program has it; empty if there is none.
    virtual std::string difference() { return {}; }
    // An error broke an event off.
    virtual void broken_off() {}

protected:
    forms::Windows& windows() const { return *windows_; }
    virtual void attached() {}

private:
    forms::Windows* windows_ = nullptr;
};

}  // namespace script
