#include "desktop/Style.h"

#include <QApplication>
#include <QCheckBox>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "desktop/Colours.h"
#include "desktop/FormWindow.h"
#include "desktop/Look.h"

namespace desktop {

namespace {

// Heights to a width: below it there would be no room for a slider between the two arrows.
constexpr double kLowest = 2.6;
// Of a tick box to the letters beside it.
constexpr double kTickToFont = 13.0 / 11;

bool is_low_scroll_bar(QStyle::ComplexControl control, const QStyleOptionComplex& option) {
    return control == QStyle::CC_ScrollBar && option.rect.height() >= option.rect.width() &&
           option.rect.height() < kLowest * option.rect.width();
}

// Up or down, as large as its button lets it be; `way` is -1 or 1.
void draw_arrow(QPainter& painter, const QRectF& button, int way, const QColor& colour) {
    const double half = std::min(button.width() * 0.2, button.height() * 0.3);
    const QPointF middle = button.center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(QPolygonF{middle + QPointF(-half, -way * half / 2), middle + QPointF(half, -way * half / 2),
                                  middle + QPointF(0, way * half / 2)});
    painter.restore();
}

}  // namespace

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                            const QWidget* widget) const {
    const QRect whole = option->rect;
    if (!is_low_scroll_bar(control, *option)) return QProxyStyle::subControlRect(control, option, part, widget);
    const int half = whole.height() / 2;
    switch (part) {
        case SC_ScrollBarSubLine:
            return {whole.left(), whole.top(), whole.width(), half};
        case SC_ScrollBarAddLine:
            return {whole.left(), whole.top() + half, whole.width(), whole.height() - half};
        case SC_ScrollBarGroove:
            return whole;
        default:
            return {};
    }
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
    if (!is_low_scroll_bar(control, *option)) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    for (const SubControl part : {SC_ScrollBarSubLine, SC_ScrollBarAddLine}) {
        QStyleOptionButton button;
        button.QStyleOption::operator=(*option);
        button.rect = subControlRect(control, option, part, widget);
        const bool pressed = option->activeSubControls == part && (option->state & State_Sunken);
        button.state = (option->state & (State_Enabled | State_MouseOver)) | (pressed ? State_Sunken : State_Raised);
        drawPrimitive(PE_PanelButtonCommand, &button, painter, widget);
        const QColor colour = option->palette.color(QPalette::ButtonText);
        draw_arrow(*painter, QRectF(button.rect), part == SC_ScrollBarSubLine ? -1 : 1, colour);
    }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
            if (!qobject_cast<const QCheckBox*>(widget)) return usual;
            return std::min(static_cast<int>(std::lround(widget->font().pixelSize() * kTickToFont)), widget->height());
        case PM_ScrollBarExtent:
        case PM_ScrollBarSliderMin:
        case PM_TextCursorWidth:
            return std::max(1, static_cast<int>(std::lround(usual * FormWindow::zoom_around(widget))));
        default:
            return usual;
    }
}

void Style::use() {
    QApplication::setStyle(new Style);
    QApplication::setPalette(colours());
    QToolTip::setPalette(colours());
}

QPalette Style::colours() {
    QPalette palette(colour(forms::kFaceColour));
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor words = group == QPalette::Disabled ? colours::kDisabledWords : colour(forms::kTextColour);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(group, role, words);
        palette.setColor(group, QPalette::PlaceholderText, colours::kDisabledWords);
        palette.setColor(group, QPalette::Base,
                         colour(group == QPalette::Disabled ? forms::kFaceColour : forms::kWindowColour));
        palette.setColor(group, QPalette::Highlight, colours::kSelection);
        palette.setColor(group, QPalette::HighlightedText, colours::kSelectedWords);
        palette.setColor(group, QPalette::ToolTipBase, colours::kTip);
        palette.setColor(group, QPalette::ToolTipText, colours::kTipWords);
    }
    return palette;
}

}  // namespace desktop
