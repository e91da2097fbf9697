#pragma once

#include <QObject>
#include <QWidget>
#include <functional>

#include "desktop/Look.h"
#include "forms/Control.h"

namespace desktop {
class FormWindow;
}

namespace desktop::views {

// Shows one control by a widget, and tells the control what the user does with the widget. The widget belongs to the
// widget it stands on; it holds copies of what it shows, so that it never looks at a control that is gone.
class View : public QObject {
public:
    // Takes over nothing of the control yet: whoever made the view calls refresh().
    View(FormWindow& window, forms::Control& control, QWidget* widget);

    forms::Control& control() const { return control_; }
    QWidget& widget() const { return *widget_; }

    // Brings the widget up to the control.
    void refresh();
    // The form is about to be destroyed.
    virtual void retire() {}

    // What a screen reader says of it: the control's own name for that, or else the words that stand beside it.
    virtual QString spoken_name() const;

protected:
    // What the kind of control adds to place, visibility, font and colours.
    virtual void show_state() = 0;
    virtual QFont font() const;
    // Whether what it shows is its name as well; a list, a box or a bar takes the words beside it for one.
    virtual bool speaks_for_itself() const { return true; }
    // Where the widget stands: as a rule the control's own place.
    virtual QRect place() const;

    FormWindow& window() const { return window_; }
    const Scale& scale() const;
    // True while the widget is brought up to the control: what it then signals was not done by the user.
    bool refreshing() const { return refreshing_; }
    // Runs what the user did as an event of the core, if the core takes events now, and brings the widget up to the
    // control after it, even where nothing changed there. After it the form may be gone.
    void user_did(const std::function<void()>& event);

    // Has a screen reader say the words.
    void speak(const QString& words);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show_common();
    bool focus_came(Qt::FocusReason reason);

    FormWindow& window_;
    forms::Control& control_;
    QWidget* widget_;
    bool refreshing_ = false;
};

}  // namespace desktop::views
