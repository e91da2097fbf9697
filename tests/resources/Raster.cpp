#include "Raster.h"

#include <algorithm>
#include <cmath>

using resources::drawing::Bounds;
using resources::drawing::FillRule;
using resources::drawing::length;
using resources::drawing::Point;
using resources::drawing::Polyline;
using resources::drawing::Shape;

namespace {

// Where a dot is looked at: not quite in its middle, so that no edge runs exactly through it.
Point middle(int x, int y, double scale) { return {(x + 0.4871) / scale, (y + 0.5237) / scale}; }

double distance(Point a, Point b, Point point) {
    const Point way = b - a;
    const double square = way.x * way.x + way.y * way.y;
    const Point to = point - a;
    const double share = square > 0 ? std::clamp((to.x * way.x + to.y * way.y) / square, 0.0, 1.0) : 0;
    return length(to - way * share);
}

}  // namespace

Raster::Raster(const resources::drawing::Drawing& drawing, double scale)
    : width_(static_cast<int>(std::lround(drawing.width * scale))),
      height_(static_cast<int>(std::lround(drawing.height * scale))),
      dots_(static_cast<std::size_t>(width_ * height_)) {
    for (const Shape& shape : drawing.shapes)
        paint(shape, scale);
}

void Raster::paint(const Shape& shape, double scale) {
    const std::vector<Polyline> lines = shape.path.flattened(8);
    if (shape.fill) fill(lines, shape.rule, *shape.fill, scale);
    if (!shape.stroke) return;
    const double reach = shape.stroke->width / 2;
    for (const Polyline& line : lines) {
        const std::size_t count = line.points.size();
        for (std::size_t i = 0; i + 1 < count + (line.closed ? 1U : 0U); ++i) {
            stroke(line.points[i], line.points[(i + 1) % count], reach, shape.stroke->colour, scale);
        }
    }
}

void Raster::fill(const std::vector<Polyline>& lines, FillRule rule, base::Colour colour, double scale) {
    for (int y = 0; y < height_; ++y) {
        const double level = middle(0, y, scale).y;
        std::vector<std::pair<double, int>> crossings;
        for (const Polyline& line : lines) {
            for (std::size_t i = 0; i < line.points.size(); ++i) {
                const Point a = line.points[i];
                const Point b = line.points[(i + 1) % line.points.size()];
                if ((a.y <= level) == (b.y <= level)) continue;
                crossings.emplace_back(a.x + (level - a.y) / (b.y - a.y) * (b.x - a.x), b.y > a.y ? 1 : -1);
            }
        }
        std::sort(crossings.begin(), crossings.end());
        int winding = 0;
        std::size_t passed = 0;
        for (int x = 0; x < width_ && !crossings.empty(); ++x) {
            for (; passed < crossings.size() && crossings[passed].first < middle(x, y, scale).x; ++passed) {
                winding += crossings[passed].second;
            }
            if (rule == FillRule::NonZero ? winding != 0 : passed % 2 != 0) dots_[index(x, y)] = colour;
        }
    }
}

void Raster::stroke(Point from, Point to, double reach, base::Colour colour, double scale) {
    Bounds bounds;
    bounds.add(from);
    bounds.add(to);
    const auto dot = [&](double place, int limit) { return std::clamp(static_cast<int>(place * scale), 0, limit); };
    for (int y = dot(bounds.top - reach, height_); y < dot(bounds.bottom + reach + 1, height_); ++y) {
        for (int x = dot(bounds.left - reach, width_); x < dot(bounds.right + reach + 1, width_); ++x) {
            if (distance(from, to, middle(x, y, scale)) <= reach) dots_[index(x, y)] = colour;
        }
    }
}

int differing_dots(const Raster& one, const Raster& other) {
    int found = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            found += one.at(x, y) != other.at(x, y);
    }
    return found;
}

std::vector<Patch> patches(const Raster& raster, base::Colour colour) {
    std::vector<Patch> found;
    std::vector<bool> seen(static_cast<std::size_t>(raster.width() * raster.height()));
    std::vector<std::pair<int, int>> open;
    const auto enter = [&](int x, int y) {
        if (x < 0 || y < 0 || x >= raster.width() || y >= raster.height() || raster.at(x, y) != colour) return;
        const auto place = static_cast<std::size_t>(y * raster.width() + x);
        if (seen[place]) return;
        seen[place] = true;
        open.emplace_back(x, y);
    };
    for (int start_y = 0; start_y < raster.height(); ++start_y) {
        for (int start_x = 0; start_x < raster.width(); ++start_x) {
            enter(start_x, start_y);
            if (open.empty()) continue;
            Patch patch{start_x, start_y, start_x, start_y};
            while (!open.empty()) {
                const auto [x, y] = open.back();
                open.pop_back();
                patch = {std::min(patch.left, x), std::min(patch.top, y), std::max(patch.right, x),
                         std::max(patch.bottom, y)};
                for (const int step : {-1, 1}) {
                    enter(x + step, y);
                    enter(x, y + step);
                }
            }
            found.push_back(patch);
        }
    }
    return found;
}
