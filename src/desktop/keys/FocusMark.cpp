#include "desktop/keys/FocusMark.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/Colours.h"

namespace desktop::keys {

namespace {

// Pixels at zoom 1.
constexpr double kWidth = 3;
constexpr double kLine = 2;
constexpr double kRim = 4;  // the line and what is light on both sides of it

}  // namespace

FocusMark::FocusMark(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void FocusMark::show_around(const QRect& place, double zoom) {
    setVisible(!place.isEmpty());
    if (place.isEmpty()) return;
    width_ = std::max(1, static_cast<int>(std::lround(kWidth * zoom)));
    setGeometry(place.adjusted(-width_, -width_, width_, width_));
    raise();
}

// Where the place touches the edge of its parent, what stands out is not seen, and the line runs within.
void FocusMark::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double pixel = width_ / kWidth;
    const double half = kRim / 2 * pixel;
    const QRectF seen = QRectF(rect() & parentWidget()->rect().translated(-pos()));
    const QRectF line = seen.adjusted(half, half, -half, -half);
    painter.setPen(QPen(colours::kFocusRim, kRim * pixel));
    painter.drawRoundedRect(line, half, half);
    painter.setPen(QPen(colours::kFocusLine, kLine * pixel));
    painter.drawRoundedRect(line, half, half);
}

}  // namespace desktop::keys
