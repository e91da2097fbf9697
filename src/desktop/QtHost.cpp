#include "desktop/QtHost.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <algorithm>
#include <exception>
#include <utility>

#include "desktop/FormWindow.h"
#include "desktop/system/ForegroundWindow.h"
#include "forms/Form.h"
#include "forms/User.h"

namespace desktop {

namespace {

constexpr QSize kUsualFrame{2, 30};
// How long a window manager may take to activate the window that was asked for.
constexpr int kActivationMilliseconds = 1000;

QScreen* screen_of_pointer() {
    QScreen* there = QGuiApplication::screenAt(QCursor::pos());
    return there ? there : QGuiApplication::primaryScreen();
}

}  // namespace

QtHost::QtHost(std::optional<double> zoom) : zooms_(zoom), screen_(screen_of_pointer()), frame_(kUsualFrame) {
    first_painted_.setSingleShot(true);
    for (const QScreen* screen : QGuiApplication::screens())
        follow_screen(*screen);
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &first_painted_,
                     [this](const QScreen* screen) { follow_screen(*screen); });
    input_.Changed = [this] {
        for (const auto& [form, window] : form_windows_)
            window->keyboard().show_mark();
    };
    input_.Pressed = [this](const QWidget& widget) {
        for (const auto& [form, window] : form_windows_) {
            if (widget.window() == window.get()) window->keyboard().let_go();
        }
    };
}

QtHost::~QtHost() {
    close_all();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtHost::follow_screen(const QScreen& screen) {
    QObject::connect(&screen, &QScreen::availableGeometryChanged, &first_painted_, [this, &screen] {
        for (const auto& [form, window] : form_windows_) {
            if (window->screen() == &screen) window->screen_changed();
        }
    });
}

QScreen& QtHost::next_screen() const {
    if (raised_) return *raised_->screen();
    return screen_ ? *screen_ : *QGuiApplication::primaryScreen();
}

const QScreen& QtHost::screen_of(const forms::Form& form) const {
    const FormWindow* shown = window(&form);
    return shown ? *shown->screen() : next_screen();
}

QSize QtHost::largest_inner_area(const QScreen& screen) const { return screen.availableSize() - frame_; }

double QtHost::zoom_of(const forms::Form& form) const { return zooms_.of(form, largest_inner_area(screen_of(form))); }
double QtHost::table_zoom() const { return zooms_.of_table(largest_inner_area(next_screen())); }

QPoint QtHost::nearest_place(const QScreen& screen, const QPoint& corner, const QSize& inner) const {
    const QRect room = screen.availableGeometry();
    const QPoint last = room.bottomRight() + QPoint(1, 1) - QPoint((inner + frame_).width(), (inner + frame_).height());
    return {std::max(room.left(), std::min(corner.x(), last.x())),
            std::max(room.top(), std::min(corner.y(), last.y()))};
}

// Without the title, so that a maximised form has the size that it is told.
forms::Size QtHost::screen_size(const forms::Form& form) const {
    const Scale scale(zoom_of(form));
    const QSize inner = largest_inner_area(screen_of(form));
    return {scale.twips(inner.width()), scale.twips(inner.height())};
}

void QtHost::change_zoom(FormWindow& window, Zooms::Step step) {
    if (window.has_users_size()) return;
    zooms_.take(step, window.form(), largest_inner_area(*window.screen()));
    window.set_zoom(zoom_of(window.form()));
}

void QtHost::act(const std::function<void()>& event) {
    if (!windows_ || (windows_->dispatching() && !within_event_)) return;
    try {
        Run(event);
    } catch (const std::exception& failure) {
        windows_ = nullptr;  // no timer goes on behind the message
        if (Failed) Failed(failure.what());
    }
}

void QtHost::act_within_event(const std::function<void()>& event) {
    within_event_ = true;
    event();
    within_event_ = false;
}

void QtHost::dispatch_ended(forms::Windows& windows) {
    windows_ = &windows;
    if (windows.ended()) {
        close_all();
        if (Ended) Ended();
        return;
    }
    flush();
    raise_active();
    close_retired();
}

void QtHost::flush() {
    if (!windows_) return;
    for (forms::Form* form : windows_->loaded()) {
        OwnedWindow& window = form_windows_[form];
        if (!window) window.reset(new FormWindow(*this, *form));
        window->flush();
    }
}

// A long copy asks for it a thousand times; more often than the eye can follow it would only take time.
void QtHost::repaint(forms::Form& form) {
    constexpr int kShortest = 40;  // milliseconds between two of them
    windows_ = &form.windows();
    if (repainted_ == &form && repainted_since_.isValid() && repainted_since_.elapsed() < kShortest) return;
    repainted_ = &form;
    repainted_since_.start();
    flush();
    FormWindow* shown = window(&form);
    if (!shown || !shown->isVisible()) return;
    QEvent what_is_due(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(shown, &what_is_due);
}

void QtHost::closing(forms::Form& form) {
    const auto found = form_windows_.find(&form);
    if (found == form_windows_.end()) return;
    if (raised_ == found->second.get()) {
        screen_ = raised_->screen();
        raised_ = nullptr;
    }
    if (repainted_ == &form) repainted_ = nullptr;
    system::put_in_front(*found->second);
    found->second->retire();
    retired_.push_back(std::move(found->second));
    form_windows_.erase(found);
}

void QtHost::process_events(forms::Windows& windows) {
    windows_ = &windows;
    flush();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtHost::close_all() {
    for (auto& [form, window] : form_windows_) {
        window->retire();
        retired_.push_back(std::move(window));
    }
    form_windows_.clear();
    raised_ = nullptr;
    close_retired();
}

// They vanish only when the window that takes their place stands.
void QtHost::close_retired() {
    for (const OwnedWindow& window : std::exchange(retired_, {}))
        window->hide();
}

void QtHost::DeleteLater::operator()(FormWindow* window) const { window->deleteLater(); }

FormWindow* QtHost::window(const forms::Form* form) const {
    const auto found = form_windows_.find(form);
    return found == form_windows_.end() ? nullptr : found->second.get();
}

FormWindow* QtHost::front() const { return windows_ ? window(windows_->active()) : nullptr; }

void QtHost::raise_active() {
    FormWindow* active = front();
    if (!active || active == raised_) return;
    raised_ = active;
    raised_since_.start();
    active->raise();
    active->activateWindow();
}

void QtHost::painted() {
    if (!std::exchange(a_window_was_painted_, true)) first_painted_.start(0);
}

// A window manager answers late: a window that was the active one for a moment, on the way to the one that was asked
// for, was not brought in front by the user.
void QtHost::activated(FormWindow& window) {
    // A maximised window may have no borders, and one that is not managed has no frame at all.
    const QSize frame = window.frameGeometry().size() - window.size();
    if (frame.height() > 0 && !window.isMaximized()) frame_ = frame;
    if (&window == raised_) {
        raised_since_.invalidate();
        return;
    }
    if (raised_since_.isValid() && raised_since_.elapsed() < kActivationMilliseconds) return;
    if (!windows_ || windows_->dispatching()) return;
    raised_ = &window;
    act([&] { forms::user::activate(window.form()); });
}

}  // namespace desktop
