#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace resources::drawing {

// A place in a drawing: x to the right, y downwards, in pixels at 96 dpi.
struct Point {
    double x = 0;
    double y = 0;

    friend constexpr Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
    friend constexpr Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
    friend constexpr Point operator*(Point a, double factor) { return {a.x * factor, a.y * factor}; }
    friend constexpr bool operator==(Point, Point) = default;
};

double length(Point vector);

// The rectangle around something; empty (right < left) as long as nothing was added.
struct Bounds {
    double left = 1e9;
    double top = 1e9;
    double right = -1e9;
    double bottom = -1e9;

    void add(Point point);
    void add(const Bounds& other);
    bool empty() const { return right < left; }
};

// An affine map: x' = xx * x + xy * y + dx, y' = yx * x + yy * y + dy.
struct Transform {
    double xx = 1;
    double xy = 0;
    double yx = 0;
    double yy = 1;
    double dx = 0;
    double dy = 0;

    static Transform move(double dx, double dy) { return {1, 0, 0, 1, dx, dy}; }
    static Transform scale(double x, double y) { return {x, 0, 0, y, 0, 0}; }
    // Turns clockwise, as seen on the screen, around a point. A half turn is exact.
    static Transform turn(double degrees, Point centre);
    // Mirrors left and right at the vertical through x.
    static Transform mirror(double x) { return {-1, 0, 0, 1, 2 * x, 0}; }

    Point operator()(Point point) const { return {xx * point.x + xy * point.y + dx, yx * point.x + yy * point.y + dy}; }
    // This map first, `next` after it.
    Transform then(const Transform& next) const;
    // How much a line's width grows: the root of the area factor.
    double width_factor() const;
};

// One connected run of straight pieces.
struct Polyline {
    std::vector<Point> points;
    bool closed = false;
};

// An outline of straight lines and cubic curves. Every figure starts with Move; Move and Line take one point, Cubic
// three (two controls and its end), Close none.
class Path {
public:
    enum class Verb : std::uint8_t { Move, Line, Cubic, Close };

    Path() = default;
    // Reads absolute drawing commands, each with its numbers divided by blanks:
    //   M x y          starts a figure
    //   L x y ...      straight lines
    //   C a a b b x y  a cubic with the controls a and b, repeatable
    //   R x y ...      a smooth curve from where the pen stands through all points
    //   O x y ...      a smooth closed figure through all points
    //   Z              closes the figure
    // Throws std::invalid_argument on anything else.
    explicit Path(std::string_view commands);

    Path& move(Point to);
    Path& line(Point to);
    Path& cubic(Point first, Point second, Point to);
    Path& close();

    Path& polygon(const std::vector<Point>& corners);
    Path& rectangle(double x, double y, double width, double height);
    Path& rounded_rectangle(double x, double y, double width, double height, double radius);
    Path& ellipse(Point centre, double radius_x, double radius_y);
    Path& circle(Point centre, double radius) { return ellipse(centre, radius, radius); }
    // An open arc as a figure of its own; degrees run clockwise from the right.
    Path& arc(Point centre, double radius_x, double radius_y, double from, double sweep);
    // A smooth curve from the current point through all points.
    Path& curve(const std::vector<Point>& through);
    // A smooth closed figure through all points.
    Path& loop(const std::vector<Point>& through);
    Path& append(const Path& other, const Transform& transform = {});

    Path transformed(const Transform& transform) const;
    const std::vector<Verb>& verbs() const { return verbs_; }
    const std::vector<Point>& points() const { return points_; }
    bool empty() const { return verbs_.empty(); }

    // The path as straight pieces, each cubic in `steps` of them.
    std::vector<Polyline> flattened(int steps = 16) const;
    // Around the curves themselves, not around their controls.
    Bounds bounds() const;

private:
    void arc_pieces(Point centre, double radius_x, double radius_y, double from, double sweep);

    std::vector<Verb> verbs_;
    std::vector<Point> points_;
};

}  // namespace resources::drawing
