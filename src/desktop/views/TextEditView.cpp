#include "desktop/views/TextEditView.h"

#include <QAbstractTextDocumentLayout>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

#include "desktop/Colours.h"
#include "desktop/views/BoxLayout.h"
#include "forms/Form.h"
#include "forms/TextMeasure.h"

namespace desktop::views {

namespace {

// Of the scroll mark, pixels at zoom 1.
constexpr double kMarkWidth = 3;
constexpr double kMarkMargin = 1;

class EditWidget final : public QTextEdit {
public:
    explicit EditWidget(QWidget* parent) : QTextEdit(parent) {
        setAcceptRichText(false);
        setTabChangesFocus(true);
        setContextMenuPolicy(Qt::NoContextMenu);
        setAcceptDrops(false);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }

    void set_zoom(double zoom) { zoom_ = zoom; }

private:
    void paintEvent(QPaintEvent* event) override {
        QTextEdit::paintEvent(event);
        const QScrollBar& bar = *verticalScrollBar();
        if (bar.maximum() <= 0 || (bar.value() == 0 && end_of_words() <= viewport()->height())) return;
        const double height = viewport()->height();
        const double whole = bar.maximum() + bar.pageStep();
        QColor mark = palette().color(QPalette::Text);
        mark.setAlphaF(colours::kScrollMarkShare);
        QPainter painter(viewport());
        painter.fillRect(QRectF(viewport()->width() - (kMarkWidth + kMarkMargin) * zoom_, height * bar.value() / whole,
                                kMarkWidth * zoom_, height * bar.pageStep() / whole),
                         mark);
    }
    // Empty lines behind the words are nothing that would have to be scrolled to.
    double end_of_words() const {
        QTextBlock block = document()->lastBlock();
        while (block.previous().isValid() && block.text().trimmed().isEmpty())
            block = block.previous();
        return document()->documentLayout()->blockBoundingRect(block).bottom();
    }
    // The widget's own reading of a clipboard asks for the first of its formats, even where it has none.
    bool canInsertFromMimeData(const QMimeData* source) const override { return source && source->hasText(); }
    void insertFromMimeData(const QMimeData* source) override {
        if (!canInsertFromMimeData(source)) return;
        insertPlainText(source->text());
        ensureCursorVisible();
    }
    void scrollContentsBy(int, int) override { viewport()->update(); }

    double zoom_ = 1;
};

}  // namespace

TextEditView::TextEditView(FormWindow& window, forms::TextBox& box, QWidget* parent)
    : TextBoxView(window, box, new EditWidget(parent)),
      widget_(static_cast<QTextEdit&>(widget())),
      layout_(new BoxLayout(widget_.document())) {
    widget_.document()->setDocumentLayout(layout_);
    connect(&widget_, &QTextEdit::textChanged, this, [this] { text_changed(); });
    connect(&widget_, &QTextEdit::selectionChanged, this, [this] { selection_changed(); });
    connect(&widget_, &QTextEdit::cursorPositionChanged, this, [this] { selection_changed(); });
}

void TextEditView::show_state() {
    const bool framed = box().BorderStyle() != 0;
    widget_.setFrameShape(framed ? QFrame::StyledPanel : QFrame::NoFrame);
    BoxLayout::Measures measures;
    measures.box_width = box().Width;
    measures.points = box().FontSize;
    measures.zoom = scale().zoom();
    measures.left = forms::kBoxMarginInPixels / 2 * measures.zoom - widget_.frameWidth();
    measures.right = (kMarkWidth + kMarkMargin) * measures.zoom;
    measures.font = font();
    measures.alignment = box().Alignment();
    static_cast<EditWidget&>(widget_).set_zoom(measures.zoom);
    layout_->set_measures(measures);
    TextBoxView::show_state();
}

QRect TextEditView::place() const {
    QRect place = TextBoxView::place();
    const forms::Control* below = const_cast<forms::Container&>(box().container()).as_control();
    const int end = scale().pixels(below ? below->Height() : box().form().Height());
    if (place.top() < end) place.setBottom(std::min(place.bottom(), end - 1));
    return place;
}

TextRange TextEditView::shown_selection() const {
    const QTextCursor cursor = widget_.textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
}

void TextEditView::select(const TextRange& range) {
    QTextCursor cursor = widget_.textCursor();
    cursor.setPosition(range.start);
    cursor.setPosition(range.start + range.length, QTextCursor::KeepAnchor);
    widget_.setTextCursor(cursor);
}

}  // namespace desktop::views
