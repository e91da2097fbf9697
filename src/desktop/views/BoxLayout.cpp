#include "desktop/views/BoxLayout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <string>

#include "desktop/Text.h"
#include "forms/Geometry.h"
#include "forms/TextMeasure.h"

namespace desktop::views {

namespace {

// To a pixel, as fine as Qt keeps distances: a line of a hundred letters is less than a pixel off.
constexpr double kSteps = 64;

// Of a word, or of the blanks between two.
std::size_t end_of_word(std::string_view text, std::size_t start) {
    const std::size_t end = text[start] == ' ' ? text.find_first_not_of(' ', start) : text.find(' ', start);
    return std::min(end, text.size());
}

}  // namespace

void BoxLayout::set_measures(const Measures& measures) {
    if (measures == measures_) return;
    measures_ = measures;
    spares_.clear();
    formats_.clear();
    laid_.clear();
    documentChanged(0, 0, document()->characterCount());
}

double BoxLayout::line_height() const {
    return forms::line_height({measures_.points, false}) / forms::kTwipsPerPixel * measures_.zoom;
}

double BoxLayout::text_width() const {
    const double counted = (measures_.box_width / forms::kTwipsPerPixel - forms::kBoxMarginInPixels) * measures_.zoom;
    return std::max(1.0, counted - measures_.right);
}

double BoxLayout::zoom_across() const { return measures_.zoom * text_width() / (text_width() + measures_.right); }

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
    std::vector<std::size_t> starts = forms::box_lines(text, measures_.box_width, measures_.points);
    starts.push_back(text.size());
    QList<QTextLayout::FormatRange> formats;
    for (std::size_t line = 0; line + 1 < starts.size(); ++line) {
        for (std::size_t at = starts[line], end = at; at < starts[line + 1]; at = end) {
            end = std::min(end_of_word(text, at), starts[line + 1]);
            formats.push_back({static_cast<int>(at), static_cast<int>(end - at),
                               format_of(std::string_view(text).substr(at, end - at))});
        }
    }

    QTextLayout& layout = *block.layout();
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAnywhere);
    layout.setTextOption(option);
    layout.setFont(measures_.font);
    layout.setFormats(formats);
    layout.setCacheEnabled(true);  // its words are shaped one by one, so once must do
    layout.beginLayout();
    const double blank = forms::character_width(' ', {measures_.points, false}) * zoom_across();
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

const QTextCharFormat& BoxLayout::format_of(std::string_view word) const {
    double spare = 0;
    for (const char character : word)
        spare += spare_of(character);
    long distance = std::lround(spare / static_cast<double>(word.size()) * kSteps);
    if (distance == 0) distance = 1;  // without any, Qt makes one letter of "ffi", and the line gets two too many
    if (const auto known = formats_.find(distance); known != formats_.end()) return known->second;
    QFont font = measures_.font;
    font.setKerning(false);
    font.setLetterSpacing(QFont::AbsoluteSpacing, static_cast<double>(distance) / kSteps);
    QTextCharFormat& format = formats_[distance];
    format.setFont(font);
    return format;
}

double BoxLayout::spare_of(char character) const {
    if (const auto known = spares_.find(character); known != spares_.end()) return known->second;
    const double wanted = forms::character_width(character, {measures_.points, false}) * zoom_across();
    const double own = QFontMetricsF(measures_.font).horizontalAdvance(to_qt(std::string(1, character)));
    return spares_[character] = wanted - own;
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
        if (cursor < 0 || cursor >= block.length()) continue;
        const int width = std::max(1, static_cast<int>(std::lround(measures_.zoom)));
        block.layout()->drawCursor(painter, QPointF(), cursor, width);
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
