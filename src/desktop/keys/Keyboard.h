#pragma once

#include <QPointer>
#include <memory>
#include <set>
#include <unordered_map>

#include "desktop/keys/FocusMark.h"
#include "desktop/keys/ScreenKeys.h"
#include "desktop/keys/Stop.h"

class QKeyEvent;

namespace desktop {
class FormWindow;
namespace views {
class View;
}
}  // namespace desktop

namespace desktop::keys {

// The keys of one window, and where the keyboard is in it. As a rule it is at the control that has the focus in the
// core. Where the user brought it by a key it stays when the core parks its focus out of sight, and at a Stop wherever
// the core has it, until the core moves its focus to a control that the user sees, or the mouse is used.
class Keyboard {
public:
    // `canvas` is what all widgets of the window stand on.
    Keyboard(FormWindow& window, QWidget& canvas);

    // A control got its widget.
    void added(const views::View& view);
    // The window was brought up to its form.
    void follow();
    // Tells of a key; true if its widget shall not see it any more.
    bool key_event(const QWidget& receiver, const QKeyEvent& event);
    // Tab brought the keyboard to a control. False if it is one of those that the core never learns of.
    bool came_to(const views::View& view);
    // A list's line was clicked twice.
    void line_opened(const forms::Control& list) { screen_->line_opened(list); }
    // The mouse is used in the window.
    void let_go() { place_ = nullptr; }

    // The control that the keyboard is at; null for none.
    const forms::Control* control() const;
    // See ScreenKeys.
    const forms::Control* refuge() const { return screen_->refuge(); }
    void show_mark();

private:
    struct Place {
        forms::Control* control;
        std::unique_ptr<Stop> stop;  // null where the core has the focus as well
    };
    void renew_stops();
    void order_tab_stops();
    void give_focus();
    QWidget* usable_widget(const forms::Control* control) const;
    const Place* place_of(const QWidget* widget) const;
    void note_place(const QKeyEvent& event);
    bool pressed(const QKeyEvent& event);
    bool pressed_at(Stop& stop, const QKeyEvent& event);
    bool zoom_key(const QKeyEvent& event);
    QRect marked() const;

    FormWindow& window_;
    FocusMark& mark_;
    std::unique_ptr<ScreenKeys> screen_;
    std::unordered_map<QWidget*, Place> places_;  // what the keyboard can be at
    bool tab_stops_changed_ = false;
    QPointer<QWidget> place_;                // where the user brought the keyboard by a key
    const forms::Control* focus_ = nullptr;  // of the core, when the keyboard followed last
    QWidget* refuge_ = nullptr;              // of the screen, at that time
    std::set<int> keys_down_;
};

}  // namespace desktop::keys
