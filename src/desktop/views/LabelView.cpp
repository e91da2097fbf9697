#include "desktop/views/LabelView.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/Text.h"
#include "desktop/views/LabelText.h"
#include "desktop/views/Surface.h"
#include "forms/TextMeasure.h"
#include "forms/User.h"

namespace desktop::views {

// Draws each line as wide as the core counts it, so that a label that grew with its text always holds it.
class LabelWidget final : public Surface {
public:
    QAccessible::Role accessible_role() const override { return QAccessible::StaticText; }
    using Surface::Surface;

    struct Line {
        QString text;  // with its accelerator mark
        QFont font;
        double indent = 0;
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
            const QRectF place(inside.left() + line.indent, top, inside.width() - line.indent, content_.line_height);
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

double LabelView::pixels(double twips) const { return twips / forms::kTwipsPerPixel * scale().zoom(); }

QRect LabelView::place() const {
    QRect place = View::place();
    if (label_.Opaque() || label_.BorderStyle() != 0 || label_.Alignment() != forms::Alignment::Left) return place;
    for (const LabelLine& line : label_lines(label_)) {
        place.setWidth(std::max(place.width(), static_cast<int>(std::ceil(pixels(line.indent + line.width)))));
    }
    return place;
}

void LabelView::show_state() {
    widget_.set_look(label_.Opaque() ? colour(label_.BackColor) : QColor(), label_.BorderStyle() != 0, scale().zoom());
    LabelWidget::Content content;
    bool whole = true;
    for (const LabelLine& line : label_lines(label_)) {
        QFont font = screen_font(label_.FontSize * line.scale, label_.FontBold, scale().zoom());
        font = fitted_to(font, to_qt(without_mark(line.text)), pixels(line.width));
        content.lines.push_back({to_qt(line.text), font, pixels(line.indent)});
        whole = whole && line.whole;
    }
    widget_.setToolTip(whole ? QString() : to_qt(without_mark(label_.Caption())));
    content.line_height = pixels(forms::line_height({label_.FontSize, label_.FontBold}));
    const int sides = label_.Alignment() == forms::Alignment::Right    ? Qt::AlignRight
                      : label_.Alignment() == forms::Alignment::Centre ? Qt::AlignHCenter
                                                                       : Qt::AlignLeft;
    content.alignment = sides | Qt::AlignVCenter | Qt::TextDontClip | Qt::TextShowMnemonic | Qt::TextSingleLine;
    content.colour = colour(label_.ForeColor);
    widget_.set_content(std::move(content));
}

QString LabelView::spoken_name() const {
    const QString name = View::spoken_name();
    return name.isEmpty() ? to_qt(without_mark(label_.Caption())) : name;
}

}  // namespace desktop::views
