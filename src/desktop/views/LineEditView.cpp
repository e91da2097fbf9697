#include "desktop/views/LineEditView.h"

namespace desktop::views {

LineEditView::LineEditView(FormWindow& window, forms::TextBox& box, QWidget* parent)
    : TextBoxView(window, box, new QLineEdit(parent)), widget_(static_cast<QLineEdit&>(widget())) {
    widget_.setContextMenuPolicy(Qt::NoContextMenu);
    widget_.setAcceptDrops(false);
    connect(&widget_, &QLineEdit::textChanged, this, [this] { text_changed(); });
    connect(&widget_, &QLineEdit::selectionChanged, this, [this] { selection_changed(); });
    connect(&widget_, &QLineEdit::cursorPositionChanged, this, [this] { selection_changed(); });
}

void LineEditView::show_state() {
    widget_.setFrame(box().BorderStyle() != 0);
    widget_.setAlignment(box().Alignment() == forms::Alignment::Right    ? Qt::AlignRight
                         : box().Alignment() == forms::Alignment::Centre ? Qt::AlignHCenter
                                                                         : Qt::AlignLeft);
    TextBoxView::show_state();
}

TextRange LineEditView::shown_selection() const {
    if (!widget_.hasSelectedText()) return {widget_.cursorPosition(), 0};
    return {widget_.selectionStart(), widget_.selectionLength()};
}

void LineEditView::select(const TextRange& range) {
    if (range.length > 0) {
        widget_.setSelection(range.start, range.length);
    } else {
        widget_.setCursorPosition(range.start);
        widget_.deselect();
    }
}

}  // namespace desktop::views
