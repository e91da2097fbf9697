#include "desktop/views/View.h"

#include <QFocusEvent>
#include <QToolTip>

#include "desktop/FormWindow.h"
#include "desktop/QtHost.h"
#include "desktop/Text.h"
#include "desktop/Words.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/User.h"

namespace desktop::views {

namespace {

// The words of the nearest label left of the control on its line, otherwise of the frame around it.
std::string words_beside(const forms::Control& control) {
    const forms::Label* nearest = nullptr;
    for (const forms::Control* other : control.container().children()) {
        const auto* label = dynamic_cast<const forms::Label*>(other);
        if (!label || !label->Visible() || label->Caption().empty()) continue;
        const bool on_its_line = label->Top() < control.bottom() && label->bottom() > control.Top();
        if (!on_its_line || label->right() > control.Left() + control.Width() / 2) continue;
        if (!nearest || label->right() > nearest->right()) nearest = label;
    }
    if (nearest) return nearest->Caption();
    const auto* frame = dynamic_cast<const forms::Frame*>(&control.container());
    return frame ? frame->Caption() : std::string();
}

}  // namespace

View::View(FormWindow& window, forms::Control& control, QWidget* widget)
    : window_(window), control_(control), widget_(widget) {
    widget_->setAttribute(Qt::WA_NoMousePropagation);
    widget_->installEventFilter(this);
}

const Scale& View::scale() const { return window_.scale(); }

QRect View::place() const { return scale().rect(control_); }

QFont View::font() const { return screen_font(control_, scale().zoom()); }

void View::refresh() {
    refreshing_ = true;
    show_common();
    show_state();
    const QString name = spoken_name();
    const bool changed = widget_->accessibleName() != name;
    if (changed) widget_->setAccessibleName(name);
    refreshing_ = false;
    if (changed && control_.Spoken()) speak(name);
}

QString View::spoken_name() const {
    if (!control_.AccessibleName().empty()) return to_qt(control_.AccessibleName());
    if (speaks_for_itself()) return {};
    const std::string beside = words_beside(control_);
    return beside.empty() ? words::of_box(control_.name()) : to_qt(without_mark(beside));
}

void View::speak(const QString& words) {
    if (widget_->isVisible()) window_.announce(words);
}

void View::show_common() {
    const QRect wanted_place = place();
    if (widget_->geometry() != wanted_place) widget_->setGeometry(wanted_place);
    const QFont wanted = font();
    if (widget_->font() != wanted || !widget_->testAttribute(Qt::WA_SetFont)) widget_->setFont(wanted);
    if (!control_.TabStop() && (widget_->focusPolicy() & Qt::TabFocus)) widget_->setFocusPolicy(Qt::ClickFocus);
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
    const bool by_tab = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    if (by_tab && !window_.keyboard().came_to(*this)) return true;
    window_.act([this] { forms::user::focus(control_); });
    return !window_.retired() && window_.focusWidget() == widget_;
}

bool View::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::FocusIn:
            // A GotFocus may have passed the focus on; the widget then never shows that it had it.
            return !focus_came(static_cast<QFocusEvent*>(event)->reason());
        case QEvent::ToolTip:
            QToolTip::setFont(screen_font(kUsualPoints, false, scale().zoom()));
            return false;
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return window_.keyboard().key_event(*widget_, *static_cast<QKeyEvent*>(event));
        default:
            return false;
    }
}

}  // namespace desktop::views
