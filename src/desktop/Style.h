#pragma once

#include <QProxyStyle>

namespace desktop {

// The look of all widgets: the same on every machine, with scroll bars that are two arrows where they are too low for
// more.
class Style final : public QProxyStyle {
public:
    Style() : QProxyStyle(QStringLiteral("fusion")) {}

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

    // A tick is never higher than its box. What the screens' own sizes do not tell grows with their zoom.
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;

    // Gives the application this style and its colours, whatever the desktop's own are.
    static void use();
    static QPalette colours();
};

}  // namespace desktop
