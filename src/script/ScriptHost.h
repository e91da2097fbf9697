#pragma once

#include <utility>

#include "script/Stage.h"

namespace script {

// Carries the forms without showing them: what the user does goes straight to the controls.
class ScriptHost final : public Stage {
public:
    explicit ScriptHost(std::string program_folder);

    ScriptPlatform& platform() override { return platform_; }
    void dispatch_ended(forms::Windows& windows) override;

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

private:
    ScriptPlatform platform_;
};

}  // namespace script
