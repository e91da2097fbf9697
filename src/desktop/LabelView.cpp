#include "desktop/LabelView.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "base/Text.h"
#include "desktop/Surface.h"
#include "desktop/Text.h"
#include "forms/TextMeasure.h"
#include "forms/User.h"

namespace desktop {

namespace {

// A line that is a little too wide for its label is drawn narrower rather than cut off.
constexpr double kNarrowest = 0.85;

forms::Font core_font(const forms::Label& label) { return {label.FontSize, label.FontBold}; }

void wrap(const std::string& text, const forms::Label& label, std::vector<std::string>& lines) {
    std::string line;
    for (const std::string& word : split(text, " ")) {
        const std::string longer = line.empty() ? word : line + " " + word;
        if (!line.empty() && forms::text_width(without_mark(longer), core_font(label)) > label.Width) {
            lines.push_back(line);
            line = word;
        } else {
            line = longer;
        }
    }
    lines.push_back(line);
}

}  // namespace

std::vector<std::string> label_lines(const forms::Label& label) {
    std::vector<std::string> lines;
    const bool one_line = label.Height < 2 * forms::line_height(core_font(label));
    for (const std::string& line : forms::hard_lines(label.Caption())) {
        if (label.AutoSize || one_line) {
            lines.push_back(line);
        } else {
            wrap(line, label, lines);
        }
    }
    return lines;
}

// Draws each line as wide as the core counts it, so that a label that grew with its text always holds it.
class LabelWidget final : public Surface {
public:
    using Surface::Surface;

    struct Line {
        QString text;  // with its accelerator mark
        QFont font;
    };
    struct Content {
        std::vector<Line> lines;
        double line_height = 0;
        int alignment = 0;
        QColor colour;
    };
    void set_content(Content content) {
        content_ = std::move(content);
        update();
    }
    const Content& content() const { return content_; }

private:
    void paint_content(QPainter& painter, const QRect& inside) override {
        painter.setPen(isEnabled() ? content_.colour : palette().color(QPalette::Disabled, QPalette::WindowText));
        double top = inside.top();
        for (const Line& line : content_.lines) {
            painter.setFont(line.font);
            const QRectF place(inside.left(), top, inside.width(), content_.line_height);
            painter.drawText(place, content_.alignment, line.text);
            top += content_.line_height;
        }
    }

    Content content_;
};

LabelView::LabelView(FormWindow& window, forms::Label& label, QWidget* parent)
    : View(window, label, new LabelWidget(parent)), label_(label), widget_(static_cast<LabelWidget&>(widget())) {
    widget_.Clicked = [this] { user_did([this] { forms::user::click(label_); }); };
}

QString LabelView::shown_words() const {
    QStringList lines;
    for (const LabelWidget::Line& line : widget_.content().lines)
        lines << line.text;
    return lines.join(u'\n');
}

double LabelView::shown_width(const std::string& line) const {
    const double zoom = scale().zoom();
    const double width = core_width(line, label_, zoom);
    const double room = label_.Width / forms::kTwipsPerPixel * zoom;
    return width > room && width * kNarrowest <= room ? room : width;
}

QRect LabelView::place() const {
    QRect place = View::place();
    if (label_.Opaque() || label_.BorderStyle() != 0 || label_.Alignment() != forms::Alignment::Left) return place;
    for (const std::string& line : label_lines(label_)) {
        place.setWidth(std::max(place.width(), static_cast<int>(std::ceil(shown_width(line)))));
    }
    return place;
}

void LabelView::show_state() {
    widget_.set_look(label_.Opaque() ? colour(label_.BackColor) : QColor(), label_.BorderStyle() != 0);
    const double zoom = scale().zoom();
    const QFont font = screen_font(label_, zoom);
    LabelWidget::Content content;
    for (const std::string& line : label_lines(label_)) {
        content.lines.push_back({to_qt(line), fitted_to(font, to_qt(without_mark(line)), shown_width(line))});
    }
    content.line_height = forms::line_height(core_font(label_)) / forms::kTwipsPerPixel * zoom;
    const int sides = label_.Alignment() == forms::Alignment::Right    ? Qt::AlignRight
                      : label_.Alignment() == forms::Alignment::Centre ? Qt::AlignHCenter
                                                                       : Qt::AlignLeft;
    content.alignment = sides | Qt::AlignVCenter | Qt::TextDontClip | Qt::TextShowMnemonic | Qt::TextSingleLine;
    content.colour = colour(label_.ForeColor);
    widget_.set_content(std::move(content));
    if (label_.AccessibleName().empty()) widget_.setAccessibleName(to_qt(without_mark(label_.Caption())));
}

}  // namespace desktop
