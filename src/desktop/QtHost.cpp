#include "desktop/QtHost.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <exception>
#include <utility>

#include "desktop/FormWindow.h"
#include "forms/Form.h"
#include "forms/User.h"

namespace desktop {

namespace {

constexpr int kUsualTitleHeight = 30;
// What the table with its row of buttons needs, logical pixels.
constexpr double kNeededWidth = 1290;
constexpr double kNeededHeight = 784;
// How long a window manager may take to activate the window that was asked for.
constexpr int kActivationMilliseconds = 1000;

QRect usable_screen() { return QGuiApplication::primaryScreen()->availableGeometry(); }

double fitting_zoom() {
    const QRect screen = usable_screen();
    return std::min({1.0, screen.width() / kNeededWidth, (screen.height() - kUsualTitleHeight) / kNeededHeight});
}

}  // namespace

QtHost::QtHost(std::optional<double> zoom) : scale_(zoom ? *zoom : fitting_zoom()), title_height_(kUsualTitleHeight) {
    first_painted_.setSingleShot(true);
}

QtHost::~QtHost() {
    close_all();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QPoint QtHost::screen_corner() const { return usable_screen().topLeft(); }

// Without the title, so that a maximised form has the size that it is told.
forms::Size QtHost::screen_size() const {
    const QRect screen = usable_screen();
    return {scale_.twips(screen.width()), scale_.twips(screen.height() - title_height_)};
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
    if (raised_ == found->second.get()) raised_ = nullptr;
    if (repainted_ == &form) repainted_ = nullptr;
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
    if (window.frameGeometry().height() > window.height()) {
        title_height_ = window.frameGeometry().height() - window.height();
    }
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
