#include "desktop/views/Surface.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/Colours.h"

namespace desktop::views {

void Surface::set_look(const QColor& background, bool framed, double zoom) {
    const int frame = framed ? std::max(1, static_cast<int>(std::lround(zoom))) : 0;
    if (background_ == background && frame_ == frame) return;
    background_ = background;
    frame_ = frame;
    update();
}

bool Surface::on_dark_ground() const {
    const auto* ground = dynamic_cast<const Surface*>(parentWidget());
    return ground && ground->background().isValid() && ground->background().lightness() < 128;
}

void Surface::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (background_.isValid()) painter.fillRect(rect(), background_);
    const QRect inside = rect().adjusted(frame_, frame_, -frame_, -frame_);
    paint_content(painter, inside);
    if (frame_ == 0) return;
    painter.setClipRegion(QRegion(rect()) - inside);
    painter.fillRect(rect(), on_dark_ground() ? colours::kFrameOnDark : colours::kFrame);
}

void Surface::mousePressEvent(QMouseEvent* event) { pressed_ = event->button() == Qt::LeftButton; }

void Surface::mouseReleaseEvent(QMouseEvent* event) {
    const bool clicked = pressed_ && event->button() == Qt::LeftButton && rect().contains(event->pos());
    pressed_ = false;
    if (clicked && Clicked) Clicked();
}

}  // namespace desktop::views
