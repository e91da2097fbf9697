#include "desktop/PictureCache.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <exception>

#include "desktop/Look.h"
#include "resources/PictureTable.h"

namespace desktop {

namespace {

QPointF point(resources::drawing::Point point) { return {point.x, point.y}; }

QPainterPath painter_path(const resources::drawing::Shape& shape) {
    using Verb = resources::drawing::Path::Verb;
    QPainterPath path;
    path.setFillRule(shape.rule == resources::drawing::FillRule::EvenOdd ? Qt::OddEvenFill : Qt::WindingFill);
    auto next = shape.path.points().begin();
    for (const Verb verb : shape.path.verbs()) {
        switch (verb) {
            case Verb::Move:
                path.moveTo(point(*next++));
                break;
            case Verb::Line:
                path.lineTo(point(*next++));
                break;
            case Verb::Cubic:
                path.cubicTo(point(next[0]), point(next[1]), point(next[2]));
                next += 3;
                break;
            case Verb::Close:
                path.closeSubpath();
                break;
        }
    }
    return path;
}

void paint(QPainter& painter, const resources::drawing::Drawing& drawing) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const resources::drawing::Shape& shape : drawing.shapes) {
        painter.setBrush(shape.fill ? QBrush(colour(*shape.fill)) : QBrush(Qt::NoBrush));
        if (shape.stroke) {
            painter.setPen(
                QPen(colour(shape.stroke->colour), shape.stroke->width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        } else {
            painter.setPen(Qt::NoPen);
        }
        painter.drawPath(painter_path(shape));
    }
}

}  // namespace

// Null for a picture that does not exist: what is shown is then nothing, as the failure was reported where the
// picture was asked for.
const resources::drawing::Drawing* PictureCache::drawing_of(const forms::Picture& picture) {
    if (picture.empty()) return nullptr;
    const std::pair key{picture.number, picture.name};
    if (const auto found = drawings_.find(key); found != drawings_.end()) return &found->second;
    try {
        resources::drawing::Drawing made =
            picture.number > 0 ? resources::draw_picture(picture.number) : resources::draw_named_picture(picture.name);
        return &drawings_.emplace(key, std::move(made)).first->second;
    } catch (const std::exception&) {
        return nullptr;
    }
}

QSizeF PictureCache::size_of(const forms::Picture& picture) {
    const resources::drawing::Drawing* drawing = drawing_of(picture);
    return drawing ? QSizeF(drawing->width, drawing->height) : QSizeF();
}

QPixmap PictureCache::pixmap(const forms::Picture& picture, const QSize& physical, double pixel_ratio) {
    const resources::drawing::Drawing* drawing = drawing_of(picture);
    if (!drawing || physical.isEmpty()) return {};
    const Key key{picture, physical, pixel_ratio};
    if (const QPixmap* known = pixmaps_.object(key)) return *known;
    const QPixmap made = render(*drawing, physical, pixel_ratio);
    const qsizetype bytes = qsizetype{physical.width()} * physical.height() * made.depth() / 8;
    pixmaps_.insert(key, new QPixmap(made), bytes);
    return made;
}

QPixmap PictureCache::render(const resources::drawing::Drawing& drawing, const QSize& physical, double pixel_ratio) {
    QPixmap pixmap(physical);
    pixmap.fill(Qt::transparent);
    {
        QPainter painter(&pixmap);
        painter.scale(pixmap.width() / drawing.width, pixmap.height() / drawing.height);
        paint(painter, drawing);
    }
    pixmap.setDevicePixelRatio(pixel_ratio);
    return pixmap;
}

}  // namespace desktop
