#include "desktop/views/Surface.h"

#include <QMouseEvent>
#include <QPainter>

namespace desktop::views {

namespace {
const QColor kFrameColour(0x64, 0x64, 0x64);
}

void Surface::set_look(const QColor& background, bool framed) {
    if (background_ == background && framed_ == framed) return;
    background_ = background;
    framed_ = framed;
    update();
}

void Surface::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (background_.isValid()) painter.fillRect(rect(), background_);
    paint_content(painter, framed_ ? rect().adjusted(1, 1, -1, -1) : rect());
    if (!framed_) return;
    painter.setPen(kFrameColour);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Surface::mousePressEvent(QMouseEvent* event) { pressed_ = event->button() == Qt::LeftButton; }

void Surface::mouseReleaseEvent(QMouseEvent* event) {
    const bool clicked = pressed_ && event->button() == Qt::LeftButton && rect().contains(event->pos());
    pressed_ = false;
    if (clicked && Clicked) Clicked();
}

}  // namespace desktop::views
