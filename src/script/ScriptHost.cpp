#include "script/ScriptHost.h"

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/FlexGrid.h"
#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "script/Keyboard.h"

namespace script {

namespace {

using forms::Refusal;

template <class... Kinds>
bool is_one_of(const forms::Control& control) {
    return (dynamic_cast<const Kinds*>(&control) || ...);
}

bool takes_focus(const forms::Control& control) {
    return is_one_of<forms::CommandButton, forms::CheckBox, forms::ListBox, forms::TextBox, forms::FlexGrid>(control);
}

bool within_reach(const forms::Control& control) { return control.visible_to_user() && control.enabled_for_user(); }

// What a mouse does before the click: the press already gives the focus.
template <class Action>
Refusal pressed(forms::Control& control, Action click) {
    if (!takes_focus(control)) return click();
    const Refusal refusal = forms::user::focus(control);
    if (refusal == Refusal::None) click();
    return refusal;
}

}  // namespace

ScriptHost::ScriptHost(std::string program_folder) : platform_(std::move(program_folder)) {
    platform_.KeysSent = [this](const std::vector<platform::KeyRecord>& records) {
        keyboard::send(windows(), records);
    };
}

void ScriptHost::dispatch_ended(forms::Windows& windows) {
    for (forms::Form* form : windows.loaded())
        form->take_changes();
    Stage::dispatch_ended(windows);
}

Refusal ScriptHost::click(forms::Control& control) {
    return pressed(control, [&] { return forms::user::click(control); });
}

Refusal ScriptHost::click_cell(forms::FlexGrid& grid, int row, int col) {
    if (within_reach(grid)) grid.cell(row, col);
    return pressed(grid, [&] { return forms::user::click_cell(grid, row, col); });
}

Refusal ScriptHost::select(forms::ListBox& list, int line) {
    if (within_reach(list)) list.List(line);
    return pressed(list, [&] {
        // A line that went when its window came in front is clicked by nobody.
        return line < list.ListCount() ? forms::user::select(list, line) : Refusal::None;
    });
}

Refusal ScriptHost::type(forms::TextBox& box, const std::string& text) {
    return pressed(box, [&] {
        keyboard::type(windows(), text);
        return Refusal::None;
    });
}

Refusal ScriptHost::type_all(forms::TextBox& box, const std::string& text) {
    return pressed(box, [&] {
        if (box.form().focus() == &box) forms::user::select_text(box, 0, static_cast<int>(box.Text().size()));
        if (text.empty()) {
            keyboard::erase(windows());
        } else {
            keyboard::type(windows(), text);
        }
        return Refusal::None;
    });
}

Refusal ScriptHost::scroll(forms::VScrollBar& bar, int value) { return forms::user::scroll(bar, value); }
void ScriptHost::escape(forms::Form& form) { forms::user::key(form, forms::kKeyEscape); }
void ScriptHost::help(forms::Form& form) { forms::user::help(form); }
void ScriptHost::close(forms::Form& form) { forms::user::close(form); }
void ScriptHost::activate(forms::Form& form) { forms::user::activate(form); }
void ScriptHost::resize(forms::Form& form, double width, double height) { forms::user::resize(form, width, height); }
void ScriptHost::change_state(forms::Form& form, forms::WindowState state) { forms::user::change_state(form, state); }

}  // namespace script
