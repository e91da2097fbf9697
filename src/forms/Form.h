#pragma once

#include <string>
#include <vector>

#include "forms/Container.h"
#include "forms/Geometry.h"
#include "forms/Property.h"

namespace forms {

class Control;
class Windows;

enum class WindowState { Normal, Minimised, Maximised };
enum class MousePointer { Default, Hourglass };
inline constexpr int kKeyEscape = 27;

std::string property_text(WindowState value);
std::string property_text(MousePointer value);

// A window: controls on it, and the events that concern it as a whole. Its size is that of the inner area; the frame
// that a window system puts around it lies outside.
class Form : public Container, public PropertyOwner {
public:
    Form(Windows& windows, std::string name, const Size& inner);

    const std::string& name() const { return name_; }
    Windows& windows() const { return windows_; }
    Form& form() override { return *this; }

    // Events.
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_KeyUp(int /*key_code*/) {}
    virtual void Form_QueryUnload() {}
    virtual void Form_Resize() {}

    // A report is shown in front of every form that is shown in the same dispatch.
    virtual bool is_report() const { return false; }
    // True where the user may change the size of the window.
    virtual bool is_sizable() const { return false; }

    // See Windows.
    void Show();
    void Hide();
    void Unload();
    void Refresh();
    bool unloading() const { return unloading_; }
    bool show_pending() const;

    // All controls, in the order in which they were made.
    const std::vector<Control*>& controls() const { return controls_; }
    Control* find_control(const std::string& name, int index = -1) const;  // null if there is none
    Control& control(const std::string& name, int index = -1) const;       // failure 340 if there is none
    Control* focus() const { return focus_; }

    // What a host has to draw anew since the last time it asked; asking empties it.
    struct Changes {
        bool form = false;
        std::vector<Control*> controls;
        std::vector<Container*> orders;  // containers whose controls changed their order from back to front
    };
    Changes take_changes();

    void changed() override { changes_.form = true; }

private:
    friend class Control;
    friend class Windows;
    void add(Control& control) { controls_.push_back(&control); }
    void control_changed(Control& control) { changes_.controls.push_back(&control); }
    void order_changed(Container& container);
    void set_focus(Control& control);
    void assign_visible(bool visible);
    void assign_window_state(WindowState state);

    Windows& windows_;
    std::string name_;
    std::vector<Control*> controls_;
    Control* focus_ = nullptr;
    Changes changes_{.form = true, .controls = {}, .orders = {}};
    bool unloading_ = false;

public:
    Property<std::string> Caption{*this, "Caption"};
    Property<double> Left{*this, "Left", 0};
    Property<double> Top{*this, "Top", 0};
    Property<double> Width;
    Property<double> Height;
    Property<base::Colour> BackColor{*this, "BackColor", base::Colour{0xF0F0F0}};
    ActiveProperty<bool> Visible{*this, "Visible", false, [this](bool visible) { assign_visible(visible); }};
    // Maximising gives the form the size of the screen at once; a form that was normal gets its old place back.
    ActiveProperty<forms::WindowState> WindowState{*this, "WindowState", forms::WindowState::Normal,
                                                   [this](forms::WindowState state) { assign_window_state(state); }};
    Property<forms::MousePointer> MousePointer{*this, "MousePointer", forms::MousePointer::Default};

private:
    Rect normal_place_;
};

}  // namespace forms
