#include "desktop/FormWindow.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "desktop/QtHost.h"
#include "desktop/Text.h"
#include "desktop/Ticker.h"
#include "desktop/views/View.h"
#include "desktop/views/Views.h"
#include "forms/Timer.h"
#include "forms/User.h"
#include "forms/Windows.h"

namespace desktop {

namespace {

constexpr QSize kLeastSize{480, 320};  // of the table that is not maximised
// A window manager gives a maximised window a few pixels more or fewer than the display has without a title.
constexpr double kNearly = 0.99;
constexpr int kRestMilliseconds = 150;

}  // namespace

FormWindow::FormWindow(QtHost& host, forms::Form& form) : host_(host), form_(form), scale_(host.zoom_of(form)) {
    Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                            Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;
    if (form.is_sizable()) flags |= Qt::WindowMaximizeButtonHint;
    setWindowFlags(flags);
    setAutoFillBackground(true);
    setScreen(&host.next_screen());
    at_rest_.setSingleShot(true);
    at_rest_.setInterval(kRestMilliseconds);
    at_rest_.callOnTimeout([this] {
        if (!retired_) set_zoom(zooms_along() ? zoom_for_size() : host_.zoom_of(form_));
    });
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
    if (changes.form) show_form();
    keyboard_.follow();
    say();
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
    keyboard_.added(added);
    return Shown::New;
}

void FormWindow::show_controls(const forms::Container& container) {
    for (forms::Control* control : container.children())
        show_control(*control);
}

QWidget* FormWindow::surface(const forms::Container& container) {
    const forms::Control* control = const_cast<forms::Container&>(container).as_control();
    if (!control) return &canvas_;
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

void FormWindow::show_form() {
    setWindowTitle(to_qt(form_.Caption()));
    QPalette colours = palette();
    if (colours.color(QPalette::Window) != colour(form_.BackColor())) {
        colours.setColor(QPalette::Window, colour(form_.BackColor()));
        setPalette(colours);
    }
    show_pointer();
    show_place();
    place_canvas();
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

QRect FormWindow::form_place() const {
    const QPoint corner = screen()->availableGeometry().topLeft();
    return {scale_.pixels(form_.Left) + corner.x(), scale_.pixels(form_.Top) + corner.y(), scale_.pixels(form_.Width),
            scale_.pixels(form_.Height)};
}

// A maximised form that the window manager gives another size stands in the middle.
void FormWindow::place_canvas() {
    QRect place({}, form_place().size());
    if (zooms_along()) place.moveCenter(rect().center());
    canvas_.setGeometry(place);
}

bool FormWindow::zooms_along() const {
    return form_.WindowState() == forms::WindowState::Maximised && !form_.is_sizable();
}

double FormWindow::zoom_for_size() const {
    const double usual = host_.zoom_of(form_);
    const double fitting = host_.zooms().of_table(size());
    return fitting > usual * kNearly ? usual : fitting;
}

double FormWindow::zoom_around(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        if (const auto* window = dynamic_cast<const FormWindow*>(widget)) return window->scale().zoom();
    }
    return 1;
}

void FormWindow::set_zoom(double zoom) {
    if (zoom == scale_.zoom() || has_users_size()) return;
    const QPoint middle = frameGeometry().center();
    const QSize frame = frameGeometry().size() - size();
    scale_ = Scale(zoom);
    if (form_.WindowState() == forms::WindowState::Normal) {
        shown_place_ = form_place();
        QRect place({}, shown_place_.size() + frame);
        place.moveCenter(middle);
        move(host_.nearest_place(*screen(), place.topLeft(), shown_place_.size()));
        form_.is_sizable() ? resize(shown_place_.size()) : setFixedSize(shown_place_.size());
    }
    place_canvas();
    for (const auto& [control, shown] : views_)
        shown->refresh();
    keyboard_.show_mark();
}

void FormWindow::screen_changed() {
    shown_place_ = form_place();
    at_rest_.start();
}

// Where the form did not move, the window stays where the user put it.
void FormWindow::show_place() {
    const QRect place = form_place();
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
        setMinimumSize(kLeastSize);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        // Nearly what the window manager is about to give it, so that it need not be painted twice.
        if (isHidden()) {
            move(place.topLeft());
            resize(place.size());
        }
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

void FormWindow::announce(const QString& words) {
    if (!words.isEmpty()) to_say_ << words;
    if (!flushing_) say();
}

void FormWindow::say() {
    if (to_say_.isEmpty()) return;
    QWidget* listening = focusWidget() ? focusWidget() : this;
    listening->setAccessibleDescription(to_say_.join(QStringLiteral(". ")));
    to_say_.clear();
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
    if (event->type() == QEvent::ActivationChange) keyboard_.show_mark();
    return taken;
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    act([this] { forms::user::close(form_); });
}

void FormWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    disconnect(follows_screen_);
    follows_screen_ = connect(windowHandle(), &QWindow::screenChanged, this, [this] { screen_changed(); });
}

// While a window is dragged from screen to screen its size stays.
void FormWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (at_rest_.isActive()) at_rest_.start();
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (retired_) return;
    if (zooms_along()) set_zoom(zoom_for_size());
    place_canvas();
    if (!form_.is_sizable() || !event->spontaneous()) return;
    const bool same = scale_.pixels(form_.Width) == width() && scale_.pixels(form_.Height) == height();
    if (!same) act([&] { forms::user::resize(form_, scale_.twips(width()), scale_.twips(height())); });
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    if (!keyboard_.key_event(*this, *event)) QWidget::keyPressEvent(event);
}

void FormWindow::keyReleaseEvent(QKeyEvent* event) {
    if (!keyboard_.key_event(*this, *event)) QWidget::keyReleaseEvent(event);
}

}  // namespace desktop
