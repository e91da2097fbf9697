#pragma once

#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <unordered_map>

#include "desktop/Look.h"
#include "desktop/keys/Keyboard.h"
#include "forms/Form.h"

namespace forms {
class Timer;
}

namespace desktop {

class QtHost;
class Ticker;

namespace views {
class View;
}

// The window of one form. A control gets its widget when it is first seen by the user; what is never seen costs
// nothing.
class FormWindow final : public QWidget {
public:
    FormWindow(QtHost& host, forms::Form& form);
    ~FormWindow() override;

    QtHost& host() const { return host_; }
    const Scale& scale() const { return scale_; }
    // Of the window in which the widget stands, or in front of which; 1 without one.
    static double zoom_around(const QWidget* widget);
    // Shows the form larger or smaller, about its middle; nothing happens where the user has maximised the window.
    void set_zoom(double zoom);
    bool has_users_size() const { return form_.is_sizable() && isMaximized(); }
    // The window stands on another screen, or its screen has another size: the form's own place there is where it is.
    void screen_changed();
    forms::Form& form() const { return form_; }

    // Brings the window up to the form.
    void flush();
    // The form is about to be destroyed: the window never looks at it again and takes no more events.
    void retire();
    bool retired() const { return retired_; }
    // True while the window is brought up to the form: where the focus then goes was not asked for by the user.
    bool flushing() const { return flushing_; }

    // Runs what the user did as an event of the core, unless the core takes none now.
    void act(const std::function<void()>& event);
    keys::Keyboard& keyboard() { return keyboard_; }
    const keys::Keyboard& keyboard() const { return keyboard_; }

    // Has a screen reader say it: as a description of what has the keyboard, which is what readers listen to.
    void announce(const QString& words);

    // The view of a control; null as long as it has none.
    views::View* view(const forms::Control& control) const;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    // Whether a control got its widget just now, in front of the others of its container.
    enum class Shown { Before, New };
    Shown show_control(forms::Control& control);
    void show_controls(const forms::Container& container);
    void show_form();
    void show_pointer();
    void show_place();
    void show_timer(forms::Timer& timer);
    void restack(const forms::Container& container);
    void say();
    QWidget* surface(const forms::Container& container);

    void place_canvas();
    QRect form_place() const;      // where the form wants its window
    bool zooms_along() const;      // the form cannot change its size, though the window can
    double zoom_for_size() const;  // at which the form fits the window

    QtHost& host_;
    forms::Form& form_;
    Scale scale_;
    QWidget canvas_{this};  // has the form's size: what lies outside it is not seen
    keys::Keyboard keyboard_{*this, canvas_};
    std::unordered_map<const forms::Control*, std::unique_ptr<views::View>> views_;
    std::unordered_map<const forms::Timer*, std::unique_ptr<Ticker>> tickers_;
    QStringList to_say_;  // while the window is brought up to the form, and the keyboard with it
    QTimer at_rest_;      // its timeout comes when the window, moved to another screen, has stood still for a moment
    QMetaObject::Connection follows_screen_;
    QRect shown_place_;
    forms::MousePointer shown_pointer_ = forms::MousePointer::Default;
    forms::WindowState shown_state_ = forms::WindowState::Normal;
    bool built_ = false;
    bool flushing_ = false;
    bool retired_ = false;
};

}  // namespace desktop
