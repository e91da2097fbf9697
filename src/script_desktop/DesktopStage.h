#pragma once

#include <exception>

#include "desktop/QtHost.h"
#include "script/Stage.h"
#include "script_desktop/DesktopPlatform.h"

namespace script_desktop {

// Carries the forms in real windows, and does with mouse and keys what the user does. A control that no mouse can reach
// although it is visible and enabled is a CommandError. Needs a QApplication.
class DesktopStage final : public script::Stage {
public:
    explicit DesktopStage(const std::string& program_folder);

    script::ScriptPlatform& platform() override { return platform_; }
    void dispatch_ended(forms::Windows& windows) override;
    void repaint(forms::Form& form) override { host_.repaint(form); }
    void closing(forms::Form& form) override { host_.closing(form); }
    void process_events(forms::Windows& windows) override { host_.process_events(windows); }

    forms::Refusal click(forms::Control& control) override;
    forms::Refusal click_cell(forms::FlexGrid& grid, int row, int col) override;
    forms::Refusal select(forms::ListBox& list, int line) override;
    forms::Refusal type(forms::TextBox& box, const std::string& text) override;
    forms::Refusal type_all(forms::TextBox& box, const std::string& text) override;
    forms::Refusal scroll(forms::VScrollBar& bar, int value) override;
    void escape(forms::Form& form) override;
    void help(forms::Form& form) override;
    void close(forms::Form& form) override;
    void activate(forms::Form& form) override;
    void resize(forms::Form& form, double width, double height) override;
    void change_state(forms::Form& form, forms::WindowState state) override;

    std::string difference() override;
    void broken_off() override;

private:
    void attached() override;
    // The widget of a control, in the window that was brought in front; null if it has none.
    QWidget* widget(const forms::Control& control);
    // Does it to the widget, unless the user cannot.
    forms::Refusal act_on(forms::Control& control, const std::function<void(QWidget&)>& action);
    // The window of the form, in front; null if it is not to be seen.
    QWidget* window_in_front(forms::Form& form);
    void give_focus(QWidget& box);
    void type_into_focus(const std::string& text);
    void settle();

    desktop::QtHost host_{1.0};
    DesktopPlatform platform_;
    std::exception_ptr thrown_;  // by what the user did
};

}  // namespace script_desktop
