#include "desktop/keys/FocusMark.h"

#include <QPainter>

namespace desktop::keys {

namespace {

constexpr int kAround = 3;  // pixels that it stands out on each side
const QColor kLine(0x0B, 0x3D, 0x91);

}  // namespace

FocusMark::FocusMark(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void FocusMark::show_around(const QRect& place) {
    setVisible(!place.isEmpty());
    if (place.isEmpty()) return;
    setGeometry(place.adjusted(-kAround, -kAround, kAround, kAround) & parentWidget()->rect());
    raise();
}

// A dark line between two light ones is seen on every ground.
void FocusMark::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF line = QRectF(rect()).adjusted(2, 2, -2, -2);
    painter.setPen(QPen(Qt::white, 4));
    painter.drawRoundedRect(line, 2, 2);
    painter.setPen(QPen(kLine, 2));
    painter.drawRoundedRect(line, 2, 2);
}

}  // namespace desktop::keys
