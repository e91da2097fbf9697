#include "resources/drawing/Path.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <string>

namespace resources::drawing {

namespace {

constexpr double kDegree = std::numbers::pi / 180;

// Reads the commands of a path text one after the other.
class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) { skip(); }

    bool at_end() const { return text_.empty(); }
    bool at_number() const { return !at_end() && (text_[0] == '-' || (text_[0] >= '0' && text_[0] <= '9')); }

    char command() {
        const char letter = text_[0];
        text_.remove_prefix(1);
        skip();
        return letter;
    }

    std::vector<Point> points() {
        std::vector<Point> found;
        while (at_number()) {
            const double x = number();
            found.push_back({x, number()});
        }
        return found;
    }

private:
    double number() {
        double value = 0;
        const auto [end, error] = std::from_chars(text_.data(), text_.data() + text_.size(), value);
        if (error != std::errc()) throw std::invalid_argument("path: number expected");
        text_.remove_prefix(static_cast<std::size_t>(end - text_.data()));
        skip();
        return value;
    }
    void skip() { text_.remove_prefix(std::min(text_.find_first_not_of(' '), text_.size())); }

    std::string_view text_;
};

}  // namespace

double length(Point vector) { return std::hypot(vector.x, vector.y); }

void Bounds::add(Point point) {
    left = std::min(left, point.x);
    right = std::max(right, point.x);
    top = std::min(top, point.y);
    bottom = std::max(bottom, point.y);
}

void Bounds::add(const Bounds& other) {
    left = std::min(left, other.left);
    right = std::max(right, other.right);
    top = std::min(top, other.top);
    bottom = std::max(bottom, other.bottom);
}

Transform Transform::turn(double degrees, Point centre) {
    const bool half = degrees == 180;
    const double cosine = half ? -1 : std::cos(degrees * kDegree);
    const double sine = half ? 0 : std::sin(degrees * kDegree);
    return {cosine,
            -sine,
            sine,
            cosine,
            centre.x - cosine * centre.x + sine * centre.y,
            centre.y - sine * centre.x - cosine * centre.y};
}

Transform Transform::then(const Transform& next) const {
    const Point origin = next({dx, dy});
    return {next.xx * xx + next.xy * yx,
            next.xx * xy + next.xy * yy,
            next.yx * xx + next.yy * yx,
            next.yx * xy + next.yy * yy,
            origin.x,
            origin.y};
}

double Transform::width_factor() const { return std::sqrt(std::abs(xx * yy - xy * yx)); }

Path::Path(std::string_view commands) {
    Reader reader(commands);
    while (!reader.at_end()) {
        const char command = reader.command();
        const std::vector<Point> points = reader.points();
        switch (command) {
            case 'M':
                if (points.size() != 1) throw std::invalid_argument("path: M takes one point");
                move(points[0]);
                break;
            case 'L':
                for (const Point point : points)
                    line(point);
                break;
            case 'C':
                if (points.size() % 3 != 0) throw std::invalid_argument("path: C takes three points");
                for (std::size_t i = 0; i < points.size(); i += 3)
                    cubic(points[i], points[i + 1], points[i + 2]);
                break;
            case 'R':
                curve(points);
                break;
            case 'O':
                loop(points);
                break;
            case 'Z':
                close();
                break;
            default:
                throw std::invalid_argument(std::string("path: unknown command ") + command);
        }
    }
}

Path& Path::move(Point to) {
    verbs_.push_back(Verb::Move);
    points_.push_back(to);
    return *this;
}

Path& Path::line(Point to) {
    verbs_.push_back(Verb::Line);
    points_.push_back(to);
    return *this;
}

Path& Path::cubic(Point first, Point second, Point to) {
    verbs_.push_back(Verb::Cubic);
    points_.insert(points_.end(), {first, second, to});
    return *this;
}

Path& Path::close() {
    verbs_.push_back(Verb::Close);
    return *this;
}

Path& Path::polygon(const std::vector<Point>& corners) {
    for (const Point& corner : corners)
        &corner == corners.data() ? move(corner) : line(corner);
    return close();
}

Path& Path::rectangle(double x, double y, double width, double height) {
    return polygon({{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}});
}

void Path::arc_pieces(Point centre, double radius_x, double radius_y, double from, double sweep) {
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / 90 - 1e-9)));
    const double step = sweep / pieces * kDegree;
    const double reach = 4.0 / 3 * std::tan(step / 4);
    for (int i = 0; i < pieces; ++i) {
        const double start = from * kDegree + i * step;
        const double end = start + step;
        const auto at = [&](double along, double across, double angle) {
            return Point{centre.x + radius_x * (along * std::cos(angle) - across * std::sin(angle)),
                         centre.y + radius_y * (along * std::sin(angle) + across * std::cos(angle))};
        };
        cubic(at(1, reach, start), at(1, -reach, end), at(1, 0, end));
    }
}

Path& Path::rounded_rectangle(double x, double y, double width, double height, double radius) {
    const double right = x + width;
    const double bottom = y + height;
    move({x + radius, y}).line({right - radius, y});
    arc_pieces({right - radius, y + radius}, radius, radius, -90, 90);
    line({right, bottom - radius});
    arc_pieces({right - radius, bottom - radius}, radius, radius, 0, 90);
    line({x + radius, bottom});
    arc_pieces({x + radius, bottom - radius}, radius, radius, 90, 90);
    line({x, y + radius});
    arc_pieces({x + radius, y + radius}, radius, radius, 180, 90);
    return close();
}

Path& Path::ellipse(Point centre, double radius_x, double radius_y) {
    return arc(centre, radius_x, radius_y, 0, 360).close();
}

Path& Path::arc(Point centre, double radius_x, double radius_y, double from, double sweep) {
    move({centre.x + radius_x * std::cos(from * kDegree), centre.y + radius_y * std::sin(from * kDegree)});
    arc_pieces(centre, radius_x, radius_y, from, sweep);
    return *this;
}

Path& Path::curve(const std::vector<Point>& through) {
    if (points_.empty()) throw std::invalid_argument("path: a curve needs a point to start from");
    std::vector<Point> all{points_.back()};
    all.insert(all.end(), through.begin(), through.end());
    for (std::size_t i = 0; i + 1 < all.size(); ++i) {
        const Point before = all[i == 0 ? 0 : i - 1];
        const Point after = all[std::min(i + 2, all.size() - 1)];
        cubic(all[i] + (all[i + 1] - before) * (1.0 / 6), all[i + 1] - (after - all[i]) * (1.0 / 6), all[i + 1]);
    }
    return *this;
}

Path& Path::loop(const std::vector<Point>& through) {
    const std::size_t count = through.size();
    if (count < 3) throw std::invalid_argument("path: a loop needs three points");
    move(through[0]);
    for (std::size_t i = 0; i < count; ++i) {
        const Point from = through[i];
        const Point to = through[(i + 1) % count];
        cubic(from + (to - through[(i + count - 1) % count]) * (1.0 / 6),
              to - (through[(i + 2) % count] - from) * (1.0 / 6), to);
    }
    return close();
}

Path& Path::append(const Path& other, const Transform& transform) {
    verbs_.insert(verbs_.end(), other.verbs_.begin(), other.verbs_.end());
    std::transform(other.points_.begin(), other.points_.end(), std::back_inserter(points_), transform);
    return *this;
}

Path Path::transformed(const Transform& transform) const { return Path().append(*this, transform); }

std::vector<Polyline> Path::flattened(int steps) const {
    std::vector<Polyline> lines;
    auto next = points_.begin();
    for (const Verb verb : verbs_) {
        switch (verb) {
            case Verb::Move:
                lines.push_back({{*next++}, false});
                break;
            case Verb::Line:
                lines.back().points.push_back(*next++);
                break;
            case Verb::Cubic: {
                const Point from = lines.back().points.back();
                for (int i = 1; i <= steps; ++i) {
                    const double t = static_cast<double>(i) / steps;
                    const double u = 1 - t;
                    lines.back().points.push_back(from * (u * u * u) + next[0] * (3 * u * u * t) +
                                                  next[1] * (3 * u * t * t) + next[2] * (t * t * t));
                }
                next += 3;
                break;
            }
            case Verb::Close:
                lines.back().closed = true;
                break;
        }
    }
    return lines;
}

Bounds Path::bounds() const {
    Bounds bounds;
    for (const Polyline& line : flattened()) {
        for (const Point point : line.points)
            bounds.add(point);
    }
    return bounds;
}

}  // namespace resources::drawing
