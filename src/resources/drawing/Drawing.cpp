#include "resources/drawing/Drawing.h"

#include <algorithm>
#include <utility>

namespace resources::drawing {

namespace {

Point crossing(const HalfPlane& plane, Point from, Point to) {
    const double start = plane.inside(from);
    return from + (to - from) * (start / (start - plane.inside(to)));
}

// A filled figure stays one figure; parts outside collapse onto the edge.
void cut_area(const Polyline& area, const HalfPlane& keep, Path& result) {
    std::vector<Point> corners;
    for (std::size_t i = 0; i < area.points.size(); ++i) {
        const Point from = area.points[i];
        const Point to = area.points[(i + 1) % area.points.size()];
        const bool from_inside = keep.inside(from) >= 0;
        if (from_inside) corners.push_back(from);
        if (from_inside != (keep.inside(to) >= 0)) corners.push_back(crossing(keep, from, to));
    }
    if (corners.size() > 2) result.polygon(corners);
}

// A line falls into the runs that lie inside.
void cut_line(const Polyline& line, const HalfPlane& keep, Path& result) {
    bool drawing = false;
    const std::size_t count = line.points.size();
    for (std::size_t i = 0; i + 1 < count + (line.closed ? 1U : 0U); ++i) {
        Point from = line.points[i];
        Point to = line.points[(i + 1) % count];
        const bool from_inside = keep.inside(from) >= 0;
        const bool to_inside = keep.inside(to) >= 0;
        if (!from_inside && !to_inside) continue;
        if (!from_inside) from = crossing(keep, from, to);
        if (!to_inside) to = crossing(keep, from, to);
        if (!drawing || !from_inside) result.move(from);
        result.line(to);
        drawing = to_inside;
    }
}

}  // namespace

Drawing& Drawing::fill(Path path, base::Colour colour, FillRule rule) {
    shapes.push_back({std::move(path), colour, {}, rule});
    return *this;
}

Drawing& Drawing::line(Path path, base::Colour colour, double line_width) {
    shapes.push_back({std::move(path), {}, Stroke{colour, line_width}, FillRule::NonZero});
    return *this;
}

Drawing& Drawing::outline(Path path, base::Colour colour, base::Colour line_colour, double line_width) {
    shapes.push_back({std::move(path), colour, Stroke{line_colour, line_width}, FillRule::NonZero});
    return *this;
}

Drawing& Drawing::add(const Drawing& other, const Transform& transform) {
    for (const Shape& shape : other.shapes) {
        shapes.push_back({shape.path.transformed(transform), shape.fill, shape.stroke, shape.rule});
        if (shape.stroke) shapes.back().stroke->width *= transform.width_factor();
    }
    return *this;
}

Drawing Drawing::cut(const HalfPlane& keep) const {
    Drawing result{width, height, {}};
    for (const Shape& shape : shapes) {
        const std::vector<Point>& points = shape.path.points();
        if (std::all_of(points.begin(), points.end(), [&](Point point) { return keep.inside(point) >= 0; })) {
            result.shapes.push_back(shape);
            continue;
        }
        Path path;
        for (const Polyline& line : shape.path.flattened()) {
            shape.fill ? cut_area(line, keep, path) : cut_line(line, keep, path);
        }
        if (!path.empty()) result.shapes.push_back({std::move(path), shape.fill, shape.stroke, shape.rule});
    }
    return result;
}

Bounds Drawing::bounds() const {
    Bounds bounds;
    for (const Shape& shape : shapes) {
        Bounds own = shape.path.bounds();
        if (own.empty()) continue;
        const double margin = shape.stroke ? shape.stroke->width / 2 : 0;
        own.add(Point{own.left - margin, own.top - margin});
        own.add(Point{own.right + margin, own.bottom + margin});
        bounds.add(own);
    }
    return bounds;
}

}  // namespace resources::drawing
