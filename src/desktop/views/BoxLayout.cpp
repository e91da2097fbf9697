#include "desktop/views/BoxLayout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

#include "desktop/Text.h"
#include "forms/Geometry.h"
#include "forms/TextMeasure.h"

namespace desktop::views {

void BoxLayout::set_measures(const Measures& measures) {
    if (measures == measures_) return;
    measures_ = measures;
    formats_.clear();
    laid_.clear();
    documentChanged(0, 0, document()->characterCount());
}

double BoxLayout::line_height() const {
    return forms::line_height({measures_.points, false}) / forms::kTwipsPerPixel * measures_.zoom;
}

double BoxLayout::text_width() const {
    return (measures_.box_width / forms::kTwipsPerPixel - forms::kBoxMarginInPixels) * measures_.zoom;
}

// A block that kept its text keeps its lines: it only moves.
void BoxLayout::documentChanged(int, int, int) {
    double top = 0;
    std::size_t number = 0;
    laid_.resize(static_cast<std::size_t>(document()->blockCount()));
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        Laid& laid = laid_[number++];
        if (block.layout()->lineCount() == 0 || laid.text != block.text()) laid = {block.text(), lay_out(block)};
        block.layout()->setPosition({measures_.left, top});
        top += laid.height;
    }
    const QSizeF size(text_width(), top);
    if (size != size_) {
        size_ = size;
        emit documentSizeChanged(size_);
    }
    emit update();
}

double BoxLayout::lay_out(const QTextBlock& block) const {
    const std::string text = from_qt(block.text());
    QList<QTextLayout::FormatRange> formats;
    for (std::size_t at = 0; at < text.size(); ++at) {
        formats.push_back({static_cast<int>(at), 1, format_of(text[at])});
    }
    std::vector<std::size_t> starts = forms::box_lines(text, measures_.box_width, measures_.points);
    starts.push_back(text.size());

    QTextLayout& layout = *block.layout();
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAnywhere);
    layout.setTextOption(option);
    layout.setFont(measures_.font);
    layout.setFormats(formats);
    layout.setCacheEnabled(true);  // its letters are shaped one by one, so once must do
    layout.beginLayout();
    const double blank = forms::character_width(' ', {measures_.points, false}) * measures_.zoom;
    double height = 0;
    for (std::size_t i = 0; i + 1 < starts.size(); ++i) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) break;
        const auto length = static_cast<int>(starts[i + 1] - starts[i]);
        // By its number of characters, a line of blanks alone would take one too many; by a width that the last of
        // them exceeds, it ends there.
        if (text.find_first_not_of(' ', starts[i]) == starts[i + 1]) {
            line.setLineWidth((length - 0.5) * blank);
        } else {
            line.setNumColumns(length);
        }
        const double spare = text_width() - line.naturalTextWidth();
        const double share = measures_.alignment == forms::Alignment::Left    ? 0
                             : measures_.alignment == forms::Alignment::Right ? 1
                                                                              : 0.5;
        line.setPosition({spare * share, height + (line_height() - line.height()) / 2});
        height += line_height();
    }
    layout.endLayout();
    return height;
}

const QTextCharFormat& BoxLayout::format_of(char character) const {
    if (const auto known = formats_.find(character); known != formats_.end()) return known->second;
    const double wanted = forms::character_width(character, {measures_.points, false}) * measures_.zoom;
    const double own = QFontMetricsF(measures_.font).horizontalAdvance(to_qt(std::string(1, character)));
    QFont font = measures_.font;
    font.setLetterSpacing(QFont::AbsoluteSpacing, wanted - own);
    QTextCharFormat& format = formats_[character];
    format.setFont(font);
    return format;
}

void BoxLayout::draw(QPainter* painter, const PaintContext& context) {
    painter->setPen(context.palette.color(QPalette::Text));
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const int first = block.position();
        QList<QTextLayout::FormatRange> selections;
        for (const Selection& selection : context.selections) {
            const int from = std::max(selection.cursor.selectionStart() - first, 0);
            const int to = std::min(selection.cursor.selectionEnd() - first, block.length());
            if (from < to) selections.push_back({from, to - from, selection.format});
        }
        block.layout()->draw(painter, QPointF(), selections, context.clip);
        const int cursor = context.cursorPosition - first;
        if (cursor >= 0 && cursor < block.length()) block.layout()->drawCursor(painter, QPointF(), cursor, 1);
    }
}

int BoxLayout::hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const {
    if (accuracy == Qt::ExactHit && !QRectF(QPointF(), size_).contains(point)) return -1;
    QTextBlock block = document()->begin();
    while (block.next().isValid() && block.next().layout()->position().y() <= point.y())
        block = block.next();
    const QTextLayout& layout = *block.layout();
    const QPointF inside = point - layout.position();
    const int line = std::clamp(static_cast<int>(inside.y() / line_height()), 0, std::max(0, layout.lineCount() - 1));
    if (layout.lineCount() == 0) return block.position();
    return block.position() + layout.lineAt(line).xToCursor(inside.x());
}

QRectF BoxLayout::blockBoundingRect(const QTextBlock& block) const {
    const QTextLayout& layout = *block.layout();
    return {layout.position(), QSizeF(text_width(), line_height() * layout.lineCount())};
}

}  // namespace desktop::views
