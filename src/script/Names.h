#pragma once

#include <stdexcept>
#include <string>

namespace forms {
class Control;
class FlexGrid;
class Form;
class ListBox;
class Windows;
}  // namespace forms

namespace script {

// What is wrong with a command.
struct CommandError : std::runtime_error {
    using runtime_error::runtime_error;
};

// What a name in a command means: frmTavrin03, frmTavrin03.cmdOpslaan, frmTavrin03.lblSchoppenNoord(3),
// frmTavrin03.msfgTavrin[1,2] (a cell), frmTavrin01.lstSpellen[0] (a line). A name that means nothing is a
// CommandError.
struct Target {
    forms::Form* form = nullptr;
    forms::Control* control = nullptr;  // null for the form itself
    bool part = false;                  // a cell or a line of the control
    int row = 0;                        // of the cell, or the line's number
    int col = 0;
};
Target find_target(const forms::Windows& windows, const std::string& name);
forms::Form& find_form(const forms::Windows& windows, const std::string& name);

// The value of NAME.PROPERTY.
std::string property_of(const forms::Windows& windows, const std::string& name);

// One line on a control: name, kind, visible, enabled, place and size, and its text, picture or value.
std::string describe(const forms::Control& control);

// Numbers of a command.
int whole_number(const std::string& text);
double number(const std::string& text);

// Control characters and the backslash as \r, \n, \t and \\, and back.
std::string escaped(const std::string& text);
std::string unescaped(const std::string& text);

}  // namespace script
