#include "desktop/FormWindow.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <algorithm>

#include "desktop/KeyCodes.h"
#include "desktop/QtHost.h"
#include "desktop/Text.h"
#include "desktop/Ticker.h"
#include "desktop/views/View.h"
#include "desktop/views/Views.h"
#include "forms/Timer.h"
#include "forms/User.h"
#include "forms/Windows.h"

namespace desktop {

FormWindow::FormWindow(QtHost& host, forms::Form& form) : host_(host), form_(form) {
    Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                            Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;
    if (form.is_sizable()) flags |= Qt::WindowMaximizeButtonHint;
    setWindowFlags(flags);
    setAutoFillBackground(true);
    for (forms::Control* control : form.controls()) {
        if (auto* timer = dynamic_cast<forms::Timer*>(control)) show_timer(*timer);
    }
}

FormWindow::~FormWindow() = default;

views::View* FormWindow::view(const forms::Control& control) const {
    const auto found = views_.find(&control);
    return found == views_.end() ? nullptr : found->second.get();
}

void FormWindow::flush() {
    if (retired_) return;
    const QScopedValueRollback flushing(flushing_, true);
    forms::Form::Changes changes = form_.take_changes();
    if (built_) {
        for (forms::Control* control : changes.controls) {
            if (show_control(*control) == Shown::New) changes.orders.push_back(&control->container());
        }
        for (const forms::Container* container : changes.orders)
            restack(*container);
    } else {
        for (forms::Control* control : changes.controls) {
            if (auto* timer = dynamic_cast<forms::Timer*>(control)) show_timer(*timer);
        }
        if (!form_.Visible()) return;
        built_ = true;
        show_controls(form_);
    }
    if (tab_stops_changed_) order_tab_stops();
    if (changes.form) show_form();
    give_focus();
}

FormWindow::Shown FormWindow::show_control(forms::Control& control) {
    if (auto* timer = dynamic_cast<forms::Timer*>(&control)) {
        show_timer(*timer);
        return Shown::Before;
    }
    if (views::View* shown = view(control)) {
        shown->refresh();
        return Shown::Before;
    }
    QWidget* parent = surface(control.container());
    if (!control.Visible() || !parent) return Shown::Before;
    std::unique_ptr<views::View> made = views::make_view(*this, control, parent);
    if (!made) return Shown::Before;
    views::View& added = *views_.emplace(&control, std::move(made)).first->second;
    if (auto* container = dynamic_cast<forms::Container*>(&control)) show_controls(*container);
    added.refresh();
    if (added.widget().focusPolicy() & Qt::TabFocus) tab_stops_changed_ = true;
    return Shown::New;
}

void FormWindow::show_controls(const forms::Container& container) {
    for (forms::Control* control : container.children())
        show_control(*control);
}

QWidget* FormWindow::surface(const forms::Container& container) {
    const forms::Control* control = const_cast<forms::Container&>(container).as_control();
    if (!control) return this;
    const views::View* shown = view(*control);
    return shown ? &shown->widget() : nullptr;
}

void FormWindow::show_timer(forms::Timer& timer) {
    auto& ticker = tickers_[&timer];
    if (!ticker && !timer.running()) return;
    if (!ticker) ticker = std::make_unique<Ticker>(*this, timer);
    ticker->refresh();
}

// Moves as few widgets as it can: mostly one control came in front of the others.
void FormWindow::restack(const forms::Container& container) {
    const QWidget* parent = surface(container);
    if (!parent) return;
    std::vector<QWidget*> wanted;
    for (const forms::Control* control : container.children()) {
        if (const views::View* shown = view(*control)) wanted.push_back(&shown->widget());
    }
    std::vector<QWidget*> present;
    for (QObject* child : parent->children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (widget && std::ranges::find(wanted, widget) != wanted.end()) present.push_back(widget);
    }
    for (std::size_t i = wanted.size(); i-- > 0;) {
        if (present[i] == wanted[i]) continue;
        const auto here = std::ranges::find(present, wanted[i]);
        std::rotate(here, here + 1, present.begin() + static_cast<std::ptrdiff_t>(i) + 1);
        if (i + 1 == wanted.size()) {
            wanted[i]->raise();
        } else {
            wanted[i]->stackUnder(wanted[i + 1]);
        }
    }
}

void FormWindow::order_tab_stops() {
    tab_stops_changed_ = false;
    QWidget* previous = nullptr;
    for (const forms::Control* control : form_.controls()) {
        const views::View* shown = view(*control);
        if (!shown || !(shown->widget().focusPolicy() & Qt::TabFocus)) continue;
        if (previous) setTabOrder(previous, &shown->widget());
        previous = &shown->widget();
    }
}

void FormWindow::show_form() {
    setWindowTitle(to_qt(form_.Caption()));
    QPalette colours = palette();
    if (colours.color(QPalette::Window) != colour(form_.BackColor())) {
        colours.setColor(QPalette::Window, colour(form_.BackColor()));
        setPalette(colours);
    }
    show_pointer();
    show_place();
}

void FormWindow::show_pointer() {
    if (form_.MousePointer() == shown_pointer_) return;
    shown_pointer_ = form_.MousePointer;
    if (shown_pointer_ == forms::MousePointer::Hourglass) {
        setCursor(Qt::WaitCursor);
    } else {
        unsetCursor();
    }
}

// Where the form did not move, the window stays where the user put it.
void FormWindow::show_place() {
    const Scale& scale = host_.scale();
    const QPoint corner = host_.screen_corner();
    const QRect place(scale.pixels(form_.Left) + corner.x(), scale.pixels(form_.Top) + corner.y(),
                      scale.pixels(form_.Width), scale.pixels(form_.Height));
    const forms::WindowState state = form_.WindowState();
    const bool state_changed = state != shown_state_ || !form_.Visible() || isHidden();
    shown_state_ = state;
    if (state == forms::WindowState::Normal) {
        if (place.topLeft() != shown_place_.topLeft()) move(place.topLeft());
        if (form_.is_sizable()) {
            if (place.size() != size()) resize(place.size());
        } else if (place.size() != size()) {
            setFixedSize(place.size());
        }
        shown_place_ = place;
    } else if (!form_.is_sizable()) {
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        // Nearly what the window manager is about to give it, so that it need not be painted twice.
        if (isHidden()) resize(place.size());
    }
    if (!form_.Visible()) return hide();
    if (!state_changed) return;
    switch (state) {
        case forms::WindowState::Normal:
            showNormal();
            break;
        case forms::WindowState::Minimised:
            showMinimized();
            break;
        case forms::WindowState::Maximised:
            showMaximized();
            break;
    }
}

// A control that cannot have it now leaves it with nobody: the widget that Qt goes on to was chosen by no one.
void FormWindow::give_focus() {
    if (!form_.focus()) return;
    const views::View* shown = view(*form_.focus());
    QWidget* wanted = shown ? &shown->widget() : nullptr;
    if (wanted && !(wanted->isVisibleTo(this) && wanted->isEnabledTo(this))) wanted = nullptr;
    if (focusWidget() == wanted) return;
    if (wanted) {
        wanted->setFocus(Qt::OtherFocusReason);
    } else {
        focusWidget()->clearFocus();
    }
}

void FormWindow::retire() {
    retired_ = true;
    for (auto& [timer, ticker] : tickers_) {
        if (ticker) ticker->stop();
    }
    for (auto& [control, shown] : views_)
        shown->retire();
}

void FormWindow::act(const std::function<void()>& event) {
    if (!retired_) host_.act(event);
}

bool FormWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && !retired_) host_.activated(*this);
    const bool taken = QWidget::event(event);
    if (event->type() == QEvent::Paint) host_.painted();
    return taken;
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    act([this] { forms::user::close(form_); });
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (retired_ || !form_.is_sizable() || !event->spontaneous()) return;
    const Scale& scale = host_.scale();
    const bool same = scale.pixels(form_.Width) == width() && scale.pixels(form_.Height) == height();
    if (!same) act([&] { forms::user::resize(form_, scale.twips(width()), scale.twips(height())); });
}

// A release counts only where its press was seen: the Escape that closed a message box is none of the form's.
bool FormWindow::key_event(const QWidget& receiver, const QKeyEvent& event) {
    const QWidget* first = focusWidget() ? focusWidget() : this;
    if (&receiver != first || event.isAutoRepeat() || retired_) return false;
    if (event.type() == QEvent::KeyPress) {
        keys_down_.insert(event.key());
        if (event.key() != Qt::Key_F1) return false;
        act([this] { forms::user::help(form_); });
        return true;
    }
    if (keys_down_.erase(event.key()) == 0) return false;
    const int code = virtual_key(event.key());
    if (code != 0) act([&] { forms::user::key(form_, code); });
    return retired_;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    if (!key_event(*this, *event)) QWidget::keyPressEvent(event);
}

void FormWindow::keyReleaseEvent(QKeyEvent* event) {
    if (!key_event(*this, *event)) QWidget::keyReleaseEvent(event);
}

}  // namespace desktop
