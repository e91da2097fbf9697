#include "resources/drawing/Pen.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace resources::drawing {

namespace {

// Offsets the line to both sides; `width(direction, share)` is asked at every point.
template <typename Width>
void add_ribbon(const Polyline& line, Width width, Path& result) {
    std::vector<Point> middle = line.points;
    middle.erase(std::unique(middle.begin(), middle.end()), middle.end());
    if (line.closed && middle.size() > 1 && length(middle.front() - middle.back()) < 1e-9) middle.pop_back();
    const std::size_t count = middle.size();
    if (count < 2) return;
    std::vector<Point> left;
    std::vector<Point> right;
    for (std::size_t i = 0; i < count; ++i) {
        const Point before = i > 0 ? middle[i - 1] : middle[line.closed ? count - 1 : 0];
        const Point after = i + 1 < count ? middle[i + 1] : middle[line.closed ? 0 : i];
        const Point direction = (after - before) * (1 / length(after - before));
        const double share = static_cast<double>(i) / static_cast<double>(count - 1);
        const Point side = Point{direction.y, -direction.x} * (width(direction, share) / 2);
        left.push_back(middle[i] + side);
        right.push_back(middle[i] - side);
    }
    std::reverse(right.begin(), right.end());
    if (line.closed) {
        result.polygon(left).polygon(right);
    } else {
        left.insert(left.end(), right.begin(), right.end());
        result.polygon(left);
    }
}

}  // namespace

Path pen_stroke(const Path& skeleton, double thin, double thick) {
    Path result;
    for (const Polyline& line : skeleton.flattened()) {
        add_ribbon(
            line, [&](Point direction, double) { return thin + (thick - thin) * std::pow(std::abs(direction.y), 1.5); },
            result);
    }
    return result;
}

Path taper(const Path& skeleton, double first_width, double last_width) {
    Path result;
    for (const Polyline& line : skeleton.flattened()) {
        add_ribbon(
            line, [&](Point, double share) { return first_width + (last_width - first_width) * share; }, result);
    }
    return result;
}

Path swell(const Path& skeleton, double widest) {
    Path result;
    for (const Polyline& line : skeleton.flattened()) {
        add_ribbon(
            line, [&](Point, double share) { return widest * std::sin(share * std::numbers::pi); }, result);
    }
    return result;
}

}  // namespace resources::drawing
