#pragma once

#include "desktop/views/View.h"
#include "forms/TextBox.h"

namespace desktop::views {

struct TextRange {
    int start = 0;
    int length = 0;

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

// What a box of one line and one of several have in common: text and selection run both ways between the widget and
// the control. What the user changed is found by comparing, whichever way it came about (typing, pasting, undoing),
// and goes to the control as typed text; what the control refuses vanishes from the widget.
class TextBoxView : public View {
public:
    TextBoxView(FormWindow& window, forms::TextBox& box, QWidget* widget);

protected:
    virtual QString shown_text() const = 0;
    virtual void show_text(const QString& text) = 0;
    virtual TextRange shown_selection() const = 0;
    virtual void select(const TextRange& range) = 0;
    virtual int cursor() const = 0;

    forms::TextBox& box() const { return box_; }
    void show_state() override;
    bool speaks_for_itself() const override { return false; }
    // What subclasses call when the widget's text or selection changed.
    void text_changed();
    void selection_changed();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void tell_if_full();

    bool key_is_dropped(int key);

    forms::TextBox& box_;
};

}  // namespace desktop::views
