#include "script_desktop/DesktopStage.h"

#include <QAbstractScrollArea>
#include <QListView>
#include <QScrollBar>
#include <QTableWidget>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "desktop/FormWindow.h"
#include "desktop/Text.h"
#include "desktop/views/View.h"
#include "forms/FlexGrid.h"
#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/VScrollBar.h"
#include "script/Names.h"
#include "script_desktop/Difference.h"
#include "script_desktop/Input.h"

namespace script_desktop {

namespace {

using forms::Refusal;

// Rounds of the event loop in which the window in front must become the active one.
constexpr int kMostRounds = 20;

void click_free_point(const forms::Control& control, QWidget& widget, const QRect& part) {
    auto* area = qobject_cast<QAbstractScrollArea*>(&widget);
    if (!input::click(area ? *area->viewport() : widget, part)) {
        throw script::CommandError("covered: " + control.form().name() + "." + control.name());
    }
}

}  // namespace

DesktopStage::DesktopStage(const std::string& program_folder) : platform_(host_, program_folder) {
    host_.own_time = false;
    host_.Run = [this](const std::function<void()>& event) {
        try {
            event();
        } catch (...) {  // on its way it must not go through Qt
            thrown_ = std::current_exception();
        }
    };
}

void DesktopStage::attached() { host_.attach(windows()); }

void DesktopStage::dispatch_ended(forms::Windows& windows) {
    host_.dispatch_ended(windows);
    Stage::dispatch_ended(windows);
}

void DesktopStage::settle() {
    input::settle();
    for (int round = 0; round < kMostRounds && host_.front() && !host_.front()->isActiveWindow(); ++round)
        input::settle();
    if (thrown_) std::rethrow_exception(std::exchange(thrown_, nullptr));
}

QWidget* DesktopStage::window_in_front(forms::Form& form) {
    desktop::FormWindow* window = host_.window(&form);
    if (!window || !window->isVisible()) return nullptr;
    if (window != host_.front()) {
        window->raise();
        window->activateWindow();
        settle();
    }
    return host_.window(&form);
}

QWidget* DesktopStage::widget(const forms::Control& control) {
    const desktop::FormWindow* window = host_.window(&control.form());
    const desktop::views::View* view = window ? window->view(control) : nullptr;
    return view ? &view->widget() : nullptr;
}

Refusal DesktopStage::act_on(forms::Control& control, const std::function<void(QWidget&)>& action) {
    QWidget* shown = widget(control);
    if (!shown || !shown->isVisible()) return Refusal::Hidden;
    if (!shown->isEnabled()) return Refusal::Disabled;
    if (!window_in_front(control.form())) return Refusal::Hidden;
    action(*shown);
    settle();
    return Refusal::None;
}

Refusal DesktopStage::click(forms::Control& control) {
    return act_on(control, [&](QWidget& shown) { click_free_point(control, shown, shown.rect()); });
}

Refusal DesktopStage::click_cell(forms::FlexGrid& grid, int row, int col) {
    return act_on(grid, [&](QWidget& shown) {
        grid.cell(row, col);
        auto& table = dynamic_cast<QTableWidget&>(shown);
        click_free_point(grid, table, table.visualItemRect(table.item(row, col)));
    });
}

Refusal DesktopStage::select(forms::ListBox& list, int line) {
    if (widget(list) && widget(list)->isVisible()) list.List(line);
    return act_on(list, [&](QWidget& shown) {
        if (line >= list.ListCount()) return;  // it went when its window came in front
        auto& view = dynamic_cast<QListView&>(shown);
        const QModelIndex index = view.model()->index(line, 0);
        view.scrollTo(index);
        click_free_point(list, view, view.visualRect(index) & view.viewport()->rect());
    });
}

// By a click at the caret, which leaves the selection alone where the box has the focus already.
void DesktopStage::give_focus(QWidget& box) {
    if (!box.hasFocus()) box.setFocus(Qt::MouseFocusReason);
}

void DesktopStage::type_into_focus(const std::string& text) {
    QString characters = desktop::to_qt(text);
    characters.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QChar character : characters) {
        if (host_.front()) input::type(*host_.front(), character);
    }
}

Refusal DesktopStage::type(forms::TextBox& box, const std::string& text) {
    return act_on(box, [&](QWidget& shown) {
        give_focus(shown);
        type_into_focus(text);
    });
}

Refusal DesktopStage::type_all(forms::TextBox& box, const std::string& text) {
    return act_on(box, [&](QWidget& shown) {
        give_focus(shown);
        QWidget& window = *shown.window();
        input::key(window, Qt::Key_A, Qt::ControlModifier);
        if (text.empty()) input::key(window, Qt::Key_Delete);
        type_into_focus(text);
    });
}

Refusal DesktopStage::scroll(forms::VScrollBar& bar, int value) {
    return act_on(bar, [&](QWidget& shown) {
        input::scroll(dynamic_cast<QScrollBar&>(shown), std::clamp(value, bar.Min(), std::max(bar.Min(), bar.Max())));
    });
}

void DesktopStage::escape(forms::Form& form) {
    if (QWidget* window = window_in_front(form)) input::key(*window, Qt::Key_Escape);
    settle();
}

void DesktopStage::help(forms::Form& form) {
    if (QWidget* window = window_in_front(form)) input::key(*window, Qt::Key_F1);
    settle();
}

void DesktopStage::close(forms::Form& form) {
    if (QWidget* window = window_in_front(form)) window->close();
    settle();
}

void DesktopStage::activate(forms::Form& form) {
    window_in_front(form);
    settle();
}

void DesktopStage::resize(forms::Form& form, double width, double height) {
    desktop::FormWindow* window = host_.window(&form);
    if (window && form.is_sizable()) {
        const desktop::Scale& scale = window->scale();
        window->windowHandle()->resize(scale.pixels(width), scale.pixels(height));
    } else {
        forms::user::resize(form, width, height);  // no user can, but a window manager may
    }
    settle();
}

void DesktopStage::change_state(forms::Form& form, forms::WindowState state) {
    forms::user::change_state(form, state);
    settle();
}

std::string DesktopStage::difference() {
    settle();
    const std::string of_box = platform_.take_difference();
    return of_box.empty() ? script_desktop::difference(host_, windows()) : of_box;
}

void DesktopStage::broken_off() {
    thrown_ = nullptr;
    host_.flush();
    input::settle();
}

}  // namespace script_desktop
