#include "forms/User.h"

#include <algorithm>
#include <functional>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/FlexGrid.h"
#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"
#include "forms/VScrollBar.h"
#include "forms/Windows.h"

namespace forms::user {

namespace {

Refusal act_on(Control& control, const std::function<void()>& action) {
    if (!control.visible_to_user()) return Refusal::Hidden;
    if (!control.enabled_for_user()) return Refusal::Disabled;
    Windows& windows = control.form().windows();
    windows.dispatch([&] {
        windows.activate(control.form());
        if (control.visible_to_user() && control.enabled_for_user()) action();
    });
    return Refusal::None;
}

void act_on(Form& form, const std::function<void()>& action) {
    if (!form.Visible()) return;
    Windows& windows = form.windows();
    windows.dispatch([&] {
        windows.activate(form);
        action();
    });
}

}  // namespace

Refusal click(Control& control) {
    return act_on(control, [&] {
        if (auto* box = dynamic_cast<CheckBox*>(&control)) {
            box->Value = 1 - box->Value;
        } else if (control.Click) {
            control.Click();
        }
    });
}

Refusal click_cell(FlexGrid& grid, int row, int col) {
    return act_on(grid, [&] { grid.user_click(row, col); });
}

Refusal select(ListBox& list, int line) {
    list.List(line);  // what is not there now was never seen
    return act_on(list, [&] { list.user_select(line); });
}

Refusal type(TextBox& box, const std::string& text) {
    return act_on(box, [&] {
        box.SetFocus();
        if (box.form().focus() == &box) box.user_type(text);
    });
}

Refusal type_all(TextBox& box, const std::string& text) {
    return act_on(box, [&] {
        box.SetFocus();
        if (box.form().focus() != &box) return;
        select_text(box, 0, static_cast<int>(box.Text().size()));
        box.user_type(text);
    });
}

void select_text(TextBox& box, int start, int length) {
    box.SelStart = start;
    box.SelLength = length;
}

bool press(TextBox& box, char key) {
    if (box.KeyPress) box.form().windows().dispatch([&] { box.KeyPress(key); });
    return key != 0;
}

Refusal scroll(VScrollBar& bar, int value) {
    return act_on(bar, [&] { bar.Value = std::clamp(value, bar.Min(), std::max(bar.Min(), bar.Max())); });
}

Refusal focus(Control& control) {
    return act_on(control, [&] { control.SetFocus(); });
}

void key(Form& form, int key_code) {
    act_on(form, [&] { form.Form_KeyUp(key_code); });
}

void help(Form& form) {
    act_on(form, [&] {
        if (form.windows().Help) form.windows().Help();
    });
}

void close(Form& form) {
    act_on(form, [&] { form.Unload(); });
}

void activate(Form& form) {
    act_on(form, [] {});
}

void resize(Form& form, double width, double height) {
    form.windows().dispatch([&] {
        if (form.Width() == width && form.Height() == height) return;
        form.Width.store(width);
        form.Height.store(height);
        form.Form_Resize();
    });
}

void change_state(Form& form, WindowState state) {
    form.windows().dispatch([&] {
        if (form.WindowState() == state) return;
        form.WindowState = state;
        form.Form_Resize();
    });
}

Refusal tick(Timer& timer) {
    if (!timer.running()) return Refusal::TimerOff;
    timer.form().windows().dispatch([&] {
        if (timer.Tick) timer.Tick();
    });
    return Refusal::None;
}

}  // namespace forms::user
