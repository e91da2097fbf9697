#include "desktop/Style.h"

#include <QCheckBox>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

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
        QStyleOption arrow = button;
        arrow.rect = button.rect.adjusted(2, 1, -2, -1);
        drawPrimitive(part == SC_ScrollBarSubLine ? PE_IndicatorArrowUp : PE_IndicatorArrowDown, &arrow, painter,
                      widget);
    }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const bool tick = metric == PM_IndicatorWidth || metric == PM_IndicatorHeight;
    if (!tick || !qobject_cast<const QCheckBox*>(widget)) return QProxyStyle::pixelMetric(metric, option, widget);
    return std::min(static_cast<int>(std::lround(widget->font().pixelSize() * kTickToFont)), widget->height());
}

QPalette Style::colours() {
    QPalette palette(colour(forms::kFaceColour));
    palette.setColor(QPalette::Base, colour(forms::kWindowColour));
    const QColor selected(0x1F, 0x5F, 0xA8);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            palette.setColor(group, role, colour(forms::kTextColour));
        }
        palette.setColor(group, QPalette::Highlight, selected);
        palette.setColor(group, QPalette::HighlightedText, Qt::white);
    }
    return palette;
}

}  // namespace desktop
