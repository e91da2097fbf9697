#include "desktop/keys/Keyboard.h"

#include <QKeyEvent>
#include <QListView>
#include <QTableWidget>
#include <QTimer>
#include <utility>

#include "desktop/FormWindow.h"
#include "desktop/KeyCodes.h"
#include "desktop/QtHost.h"
#include "desktop/keys/ClickGroup.h"
#include "desktop/keys/GridCursor.h"
#include "desktop/views/View.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/User.h"
#include "forms/VScrollBar.h"
#include "forms/Windows.h"

namespace desktop::keys {

namespace {

bool is_enter_or_space(int key) { return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter; }

}  // namespace

Keyboard::Keyboard(FormWindow& window, QWidget& canvas)
    : window_(window), mark_(*new FocusMark(&canvas)), screen_(ScreenKeys::make(window)) {}

void Keyboard::added(const views::View& view) {
    forms::Control& control = view.control();
    QWidget& widget = view.widget();
    if (auto* grid = dynamic_cast<forms::FlexGrid*>(&control)) {
        const auto& table = dynamic_cast<const QTableWidget&>(widget);
        places_[&widget] = {grid, std::make_unique<GridCursor>(window_, *grid, table)};
    } else if (widget.focusPolicy() & Qt::TabFocus) {
        places_[&widget] = {&control, nullptr};
    }
    forms::Control* around = control.container().as_control();
    const views::View* below = around ? window_.view(*around) : nullptr;
    if (below && ClickGroup::takes(control) && !place_of(&below->widget())) {
        places_[&below->widget()] = {around, std::make_unique<ClickGroup>(window_, control.container())};
    }
    tab_stops_changed_ = true;
}

void Keyboard::follow() {
    renew_stops();
    if (tab_stops_changed_) order_tab_stops();
    give_focus();
    show_mark();
}

// Tab passes by what has nothing to click now.
void Keyboard::renew_stops() {
    for (const auto& [widget, place] : places_) {
        if (!place.stop || place.stop->usable() == (widget->focusPolicy() != Qt::NoFocus)) continue;
        widget->setFocusPolicy(place.stop->usable() ? Qt::TabFocus : Qt::NoFocus);
        tab_stops_changed_ = true;
    }
}

void Keyboard::order_tab_stops() {
    tab_stops_changed_ = false;
    QWidget* previous = nullptr;
    for (const forms::Control* control : window_.form().controls()) {
        const views::View* shown = window_.view(*control);
        if (!shown || !(shown->widget().focusPolicy() & Qt::TabFocus)) continue;
        if (previous) QWidget::setTabOrder(previous, &shown->widget());
        previous = &shown->widget();
    }
}

QWidget* Keyboard::usable_widget(const forms::Control* control) const {
    const views::View* shown = control ? window_.view(*control) : nullptr;
    if (!shown) return nullptr;
    QWidget& widget = shown->widget();
    return widget.isVisibleTo(&window_) && widget.isEnabledTo(&window_) ? &widget : nullptr;
}

// A control of the core that cannot have it now leaves it with nobody: the widget that Qt goes on to was chosen by no
// one.
void Keyboard::give_focus() {
    const forms::Control* focus = window_.form().focus();
    const bool moved = std::exchange(focus_, focus) != focus;
    QWidget* wanted = usable_widget(focus);
    const bool seen = wanted && focus->TabStop();
    const bool ended = !window_.form().windows().dispatching();  // what a routine hides on its way may come back
    QWidget* refuge = ended ? usable_widget(screen_->refuge()) : refuge_;
    if (refuge && refuge != refuge_) place_ = refuge;
    refuge_ = refuge;
    const Place* stayed = place_of(place_);
    if (stayed && !(moved && seen) && usable_widget(stayed->control)) {
        wanted = place_;
    } else if (place_ != wanted) {
        place_ = nullptr;
        if (!seen && refuge) wanted = refuge;
    }
    if (window_.focusWidget() == wanted || (!focus && !wanted)) return;
    if (wanted) {
        wanted->setFocus(Qt::OtherFocusReason);
    } else {
        window_.focusWidget()->clearFocus();
    }
}

bool Keyboard::came_to(const views::View& view) {
    place_ = &view.widget();
    const Place* place = place_of(place_);
    show_mark();
    if (!place || !place->stop) return true;
    window_.announce(place->stop->spoken());
    return false;
}

const Keyboard::Place* Keyboard::place_of(const QWidget* widget) const {
    const auto found = places_.find(const_cast<QWidget*>(widget));
    return found == places_.end() ? nullptr : &found->second;
}

const forms::Control* Keyboard::control() const {
    const Place* place = place_of(window_.focusWidget());
    return place ? place->control : nullptr;
}

// A release counts only where its press was seen: the Escape that closed a message box is none of the form's.
bool Keyboard::key_event(const QWidget& receiver, const QKeyEvent& event) {
    const QWidget* first = window_.focusWidget() ? window_.focusWidget() : &window_;
    if (&receiver != first || window_.retired()) return false;
    if (event.type() == QEvent::KeyPress) {
        note_place(event);
        QTimer::singleShot(0, &mark_, [this] { show_mark(); });  // a list may move its mark
        if (pressed(event)) return true;
    }
    if (event.isAutoRepeat()) return false;
    if (event.type() == QEvent::KeyPress) {
        if (zoom_key(event)) return true;
        keys_down_.insert(event.key());
        if (event.key() != Qt::Key_F1) return false;
        window_.act([this] { forms::user::help(window_.form()); });
        return true;
    }
    if (keys_down_.erase(event.key()) == 0) return false;
    const int code = virtual_key(event.key());
    if (code != 0) window_.act([&] { forms::user::key(window_.form(), code); });
    return window_.retired();
}

// What is typed into a box is no choice after which the keyboard would have to stay there. Alt begins one.
void Keyboard::note_place(const QKeyEvent& event) {
    const Place* place = place_of(window_.focusWidget());
    const bool typed = place && dynamic_cast<const forms::TextBox*>(place->control) && event.key() != Qt::Key_Alt;
    const bool of_the_form = event.key() == Qt::Key_Escape || event.key() == Qt::Key_F1;
    if (place && !typed && !of_the_form) place_ = window_.focusWidget();
}

bool Keyboard::pressed(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    const Place* place = place_of(window_.focusWidget());
    if (screen_->pressed(event, place ? place->control : nullptr)) return true;
    if (!place) return false;
    if (place->stop) return pressed_at(*place->stop, event);
    auto* bar = dynamic_cast<forms::VScrollBar*>(place->control);
    const bool back = event.key() == Qt::Key_Up || event.key() == Qt::Key_Right;
    if (!bar || !(back || event.key() == Qt::Key_Down || event.key() == Qt::Key_Left)) return false;
    step(window_, *bar, back ? -1 : 1, event);
    return true;
}

bool Keyboard::pressed_at(Stop& stop, const QKeyEvent& event) {
    if (stop.move(event.key())) {
        window_.announce(stop.spoken());
        return true;
    }
    if (!is_enter_or_space(event.key())) return false;
    if (event.isAutoRepeat()) return true;
    stop.click();
    const forms::Control* next = window_.retired() ? nullptr : screen_->goes_on_at();
    if (next && window_.form().focus() == next) {
        place_ = nullptr;
        follow();
    }
    return true;
}

bool Keyboard::zoom_key(const QKeyEvent& event) {
    if (!event.modifiers().testFlag(Qt::ControlModifier)) return false;
    switch (event.key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            window_.host().change_zoom(window_, Zooms::Step::Larger);
            return true;
        case Qt::Key_Minus:
        case Qt::Key_Underscore:
            window_.host().change_zoom(window_, Zooms::Step::Smaller);
            return true;
        case Qt::Key_0:
            window_.host().change_zoom(window_, Zooms::Step::Usual);
            return true;
        default:
            return false;
    }
}

void Keyboard::show_mark() { mark_.show_around(window_.retired() ? QRect() : marked(), window_.scale().zoom()); }

// Around the cursor of a stop, the line of a list of which several can be chosen, or the whole widget.
QRect Keyboard::marked() const {
    QWidget* widget = window_.focusWidget();
    const Place* place = place_of(widget);
    if (!place || !window_.host().input().by_key() || !window_.isActiveWindow() || !widget->isVisible()) return {};
    const QWidget& canvas = *mark_.parentWidget();
    if (place->stop) return place->stop->mark(canvas);
    const auto* list = dynamic_cast<const forms::ListBox*>(place->control);
    if (list && list->MultiSelect) {
        const auto& lines = dynamic_cast<const QListView&>(*widget);
        const QRect line = lines.visualRect(lines.currentIndex()) & lines.viewport()->rect();
        if (!line.isEmpty()) return {lines.viewport()->mapTo(&canvas, line.topLeft()), line.size()};
    }
    return {widget->mapTo(&canvas, QPoint()), widget->size()};
}

}  // namespace desktop::keys
