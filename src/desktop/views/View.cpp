#include "desktop/views/View.h"

#include <QFocusEvent>

#include "desktop/FormWindow.h"
#include "desktop/QtHost.h"
#include "desktop/Text.h"
#include "forms/User.h"

namespace desktop::views {

View::View(FormWindow& window, forms::Control& control, QWidget* widget)
    : window_(window), control_(control), widget_(widget) {
    widget_->setAttribute(Qt::WA_NoMousePropagation);
    widget_->installEventFilter(this);
}

const Scale& View::scale() const { return window_.host().scale(); }

QRect View::place() const { return scale().rect(control_); }

QFont View::font() const { return screen_font(control_, scale().zoom()); }

void View::refresh() {
    refreshing_ = true;
    show_common();
    show_state();
    refreshing_ = false;
}

void View::show_common() {
    const QRect wanted_place = place();
    if (widget_->geometry() != wanted_place) widget_->setGeometry(wanted_place);
    const QFont wanted = font();
    if (widget_->font() != wanted || !widget_->testAttribute(Qt::WA_SetFont)) widget_->setFont(wanted);
    if (!control_.TabStop() && (widget_->focusPolicy() & Qt::TabFocus)) widget_->setFocusPolicy(Qt::ClickFocus);
    if (!control_.AccessibleName().empty()) widget_->setAccessibleName(to_qt(control_.AccessibleName()));
    if (widget_->isEnabledTo(widget_->parentWidget()) != control_.Enabled()) widget_->setEnabled(control_.Enabled());
    if (widget_->isVisibleTo(widget_->parentWidget()) != control_.Visible()) widget_->setVisible(control_.Visible());
}

void View::user_did(const std::function<void()>& event) {
    if (refreshing_) return;
    window_.act(event);
    if (!window_.retired()) refresh();
}

bool View::focus_came(Qt::FocusReason reason) {
    const bool by_user = reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
                         reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    if (!by_user || window_.flushing()) return true;
    window_.act([this] { forms::user::focus(control_); });
    return !window_.retired() && window_.focusWidget() == widget_;
}

bool View::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::FocusIn:
            // A GotFocus may have passed the focus on; the widget then never shows that it had it.
            return !focus_came(static_cast<QFocusEvent*>(event)->reason());
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return window_.key_event(*widget_, *static_cast<QKeyEvent*>(event));
        default:
            return false;
    }
}

}  // namespace desktop::views
