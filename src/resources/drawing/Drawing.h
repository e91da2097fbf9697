#pragma once

#include <optional>
#include <vector>

#include "base/Colour.h"
#include "resources/drawing/Path.h"

namespace resources::drawing {

// A line along a path; its ends and corners are round.
struct Stroke {
    base::Colour colour;
    double width = 1;
};

enum class FillRule { NonZero, EvenOdd };

// One painted thing: first its fill, then its stroke on top. An open figure is filled as if it were closed.
struct Shape {
    Path path;
    std::optional<base::Colour> fill;
    std::optional<Stroke> stroke;
    FillRule rule = FillRule::NonZero;
};

// The side of a straight line that is kept when cutting: the points p with (p - on) * inwards >= 0.
struct HalfPlane {
    Point on;
    Point inwards;

    double inside(Point point) const { return (point.x - on.x) * inwards.x + (point.y - on.y) * inwards.y; }
};

// A picture that can be painted at any scale: its shapes, the first at the back. What no shape covers is transparent.
struct Drawing {
    double width = 0;   // pixels at 96 dpi
    double height = 0;  // pixels at 96 dpi
    std::vector<Shape> shapes;

    Drawing& fill(Path path, base::Colour colour, FillRule rule = FillRule::NonZero);
    Drawing& line(Path path, base::Colour colour, double line_width);
    Drawing& outline(Path path, base::Colour colour, base::Colour line_colour, double line_width);
    // Puts the shapes of another drawing on top of these. Widths of lines scale along.
    Drawing& add(const Drawing& other, const Transform& transform = {});

    // What lies inside the half plane; curves that cross its edge become straight pieces.
    Drawing cut(const HalfPlane& keep) const;
    // Around all that is painted, half the width of each line included.
    Bounds bounds() const;
};

}  // namespace resources::drawing
