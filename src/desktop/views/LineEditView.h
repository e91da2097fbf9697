#pragma once

#include <QLineEdit>

#include "desktop/views/TextBoxView.h"

namespace desktop::views {

// A text box of one line.
class LineEditView final : public TextBoxView {
public:
    LineEditView(FormWindow& window, forms::TextBox& box, QWidget* parent);

private:
    void show_state() override;
    QString shown_text() const override { return widget_.text(); }
    void show_text(const QString& text) override { widget_.setText(text); }
    TextRange shown_selection() const override;
    void select(const TextRange& range) override;
    int cursor() const override { return widget_.cursorPosition(); }

    QLineEdit& widget_;
};

}  // namespace desktop::views
