#pragma once

#include <QElapsedTimer>
#include <QPoint>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "desktop/Look.h"
#include "desktop/PictureCache.h"
#include "desktop/Zoom.h"
#include "desktop/keys/InputWatch.h"
#include "forms/Windows.h"

namespace desktop {

class FormWindow;

// Carries the forms in real windows. Needs a QApplication; is destroyed before it.
class QtHost final : public forms::Host {
public:
    // With a zoom every form has it; see Zooms.
    explicit QtHost(std::optional<double> zoom = {});
    ~QtHost() override;

    // Whose windows it carries; without it, those of the first dispatch that ends.
    void attach(forms::Windows& windows) { windows_ = &windows; }

    forms::Size screen_size(const forms::Form& form) const override;
    void dispatch_ended(forms::Windows& windows) override;
    void repaint(forms::Form& form) override;
    void closing(forms::Form& form) override;
    void process_events(forms::Windows& windows) override;

    // What is called when the program has ended; the windows are closed then.
    std::function<void()> Ended;
    // What is called with the text of a failure that no routine caught.
    std::function<void(const std::string& what)> Failed;

    // How an event is run.
    std::function<void(const std::function<void()>& event)> Run = [](const auto& event) { event(); };
    // False: the timers don't tick by themselves.
    bool own_time = true;

    // Its timeout comes once, when the first window has been painted: what can wait for that waits for it.
    QTimer& first_painted() { return first_painted_; }

    Zooms& zooms() { return zooms_; }
    // How large a form is shown, and the cards of the table.
    double zoom_of(const forms::Form& form) const;
    double table_zoom() const;
    void change_zoom(FormWindow& window, Zooms::Step step);
    PictureCache& pictures() { return pictures_; }
    const keys::InputWatch& input() const { return input_; }
    // Where a new window goes: to the screen of the one that the user worked in last, at first to that of the pointer.
    QScreen& next_screen() const;
    // Where a window of that inner size stands wholly on the screen, as near as can be to a corner for its frame.
    QPoint nearest_place(const QScreen& screen, const QPoint& corner, const QSize& inner) const;

    // Runs what the user did. Nothing happens while an event is running.
    void act(const std::function<void()>& event);
    // Runs it although an event is running: keys that the program itself sends.
    void act_within_event(const std::function<void()>& event);
    // A window was painted.
    void painted();
    // The window system made the window the active one.
    void activated(FormWindow& window);

    // Brings all windows up to their forms.
    void flush();
    // The window of a form; null if it has none.
    FormWindow* window(const forms::Form* form) const;
    // The window of the active form.
    FormWindow* front() const;
    // Closes all windows without asking anybody.
    void close_all();

private:
    // A window is never deleted while an event is under way in it.
    struct DeleteLater {
        void operator()(FormWindow* window) const;
    };
    using OwnedWindow = std::unique_ptr<FormWindow, DeleteLater>;

    QSize largest_inner_area(const QScreen& screen) const;  // of a window with its title, logical pixels
    const QScreen& screen_of(const forms::Form& form) const;
    void follow_screen(const QScreen& screen);
    void raise_active();
    void close_retired();

    // The fonts are looked through while the program sets up its folders and asks the network.
    std::future<void> font_ = std::async(std::launch::async, find_screen_font);
    Zooms zooms_;
    PictureCache pictures_;
    keys::InputWatch input_;
    forms::Windows* windows_ = nullptr;
    std::unordered_map<const forms::Form*, OwnedWindow> form_windows_;
    std::vector<OwnedWindow> retired_;  // of forms that are gone, as long as they are seen
    FormWindow* raised_ = nullptr;
    QPointer<QScreen> screen_;  // of the window that was raised before
    QElapsedTimer raised_since_;
    const forms::Form* repainted_ = nullptr;  // the form that asked for it last
    QElapsedTimer repainted_since_;
    QTimer first_painted_;
    bool a_window_was_painted_ = false;
    bool within_event_ = false;
    QSize frame_;  // what the window manager adds around a window, title and borders
};

}  // namespace desktop
