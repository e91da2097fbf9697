#pragma once

#include <QCheckBox>
#include <QPushButton>

#include "desktop/views/View.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"

namespace desktop::views {

// A button without words: it takes the keyboard where nothing is to be chosen.
class FocusSink final : public QPushButton {
public:
    using QPushButton::QPushButton;
};

class CommandButtonView final : public View {
public:
    CommandButtonView(FormWindow& window, forms::CommandButton& button, QWidget* parent);

private:
    void show_state() override;
    QFont font() const override;

    forms::CommandButton& button_;
    QPushButton& widget_;
};

// A box to tick that never ticks itself: it shows the value of the control.
class CheckBoxView final : public View {
public:
    CheckBoxView(FormWindow& window, forms::CheckBox& box, QWidget* parent);

private:
    void show_state() override;
    QFont font() const override;

    forms::CheckBox& box_;
    QCheckBox& widget_;
};

}  // namespace desktop::views
