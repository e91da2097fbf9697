#pragma once

#include <string>

// What a user does, as both hosts report it: each call is one dispatch, after the form of the control was made the
// active one. What a user cannot do is refused and does nothing.
namespace forms {

class CommandButton;
class Control;
class FlexGrid;
class Form;
class ListBox;
class TextBox;
class Timer;
class VScrollBar;
class Windows;

enum class WindowState;

enum class Refusal { None, Hidden, Disabled, TimerOff };

namespace user {

// A button, label, picture or frame; a check box changes its value.
Refusal click(Control& control);
Refusal click_cell(FlexGrid& grid, int row, int col);
Refusal select(ListBox& list, int line);
// Types at the selection, or over the whole text. A line break is CR LF or LF.
Refusal type(TextBox& box, const std::string& text);
Refusal type_all(TextBox& box, const std::string& text);
// Moves the selection of a box, as its keys and the mouse do; positions are characters from 0.
void select_text(TextBox& box, int start, int length);
// A key that puts no character in, such as Backspace. False if the box's key filter drops it.
bool press(TextBox& box, char key);
// A value beyond the ends of the bar stops there.
Refusal scroll(VScrollBar& bar, int value);
Refusal focus(Control& control);
void key(Form& form, int key_code);
void help(Form& form);
void close(Form& form);
void activate(Form& form);
// The window's inner size became another one, in twips.
void resize(Form& form, double width, double height);
// The user minimises, maximises or restores the window.
void change_state(Form& form, WindowState state);
// The timer's interval has passed.
Refusal tick(Timer& timer);

}  // namespace user
}  // namespace forms
