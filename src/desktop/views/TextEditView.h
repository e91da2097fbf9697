#pragma once

#include <QTextEdit>

#include "desktop/views/TextBoxView.h"

namespace desktop::views {

class BoxLayout;

// A text box of several lines. It scrolls with the cursor and the wheel; a thin mark in its right margin tells how far.
class TextEditView final : public TextBoxView {
public:
    TextEditView(FormWindow& window, forms::TextBox& box, QWidget* parent);

private:
    void show_state() override;
    // A box that reaches past what it stands on ends there, so that its last line can be scrolled into sight.
    QRect place() const override;
    QString shown_text() const override { return widget_.toPlainText(); }
    void show_text(const QString& text) override { widget_.setPlainText(text); }
    TextRange shown_selection() const override;
    void select(const TextRange& range) override;
    int cursor() const override { return widget_.textCursor().position(); }

    QTextEdit& widget_;
    BoxLayout* layout_;
};

}  // namespace desktop::views
