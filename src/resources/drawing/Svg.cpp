#include "resources/drawing/Svg.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <vector>

namespace resources::drawing {

namespace {

constexpr double kUnitsPerPixel = 10;

struct Place {
    long x = 0;
    long y = 0;
    friend bool operator==(Place, Place) = default;
};

long units(double pixels) { return std::lround(pixels * kUnitsPerPixel); }
Place place_of(Point point) { return {units(point.x), units(point.y)}; }

// The data of a path, each step told from the place before it. A command that comes again and a blank in front of a
// minus are left out.
class PathData {
public:
    explicit PathData(const Path& path) {
        auto next = path.points().begin();
        for (const Path::Verb verb : path.verbs()) {
            switch (verb) {
                case Path::Verb::Move:
                    at_ = {};
                    add('M', {place_of(*next++)});
                    start_ = at_;
                    break;
                case Path::Verb::Line:
                    if (const Place to = place_of(*next++); to != at_) add('l', {to});
                    break;
                case Path::Verb::Cubic:
                    add('c', {place_of(next[0]), place_of(next[1]), place_of(next[2])});
                    next += 3;
                    break;
                case Path::Verb::Close:
                    add('z', {});
                    at_ = start_;
                    break;
            }
        }
    }
    const std::string& text() const { return text_; }

private:
    void add(char command, std::initializer_list<Place> places) {
        if (command != command_) text_ += command;
        command_ = command == 'M' ? '\0' : command;
        for (const Place& place : places) {
            add(place.x - at_.x);
            add(place.y - at_.y);
        }
        if (places.size() > 0) at_ = *std::prev(places.end());
    }
    void add(long number) {
        const bool runs_on = !text_.empty() && text_.back() >= '0' && text_.back() <= '9';
        if (runs_on && number >= 0) text_ += ' ';
        text_ += std::to_string(number);
    }

    std::string text_;
    char command_ = '\0';
    Place at_;
    Place start_;
};

std::string colour_text(base::Colour colour) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%02x%02x%02x", colour.red(), colour.green(), colour.blue());
    const bool is_short = text[1] == text[2] && text[3] == text[4] && text[5] == text[6];
    return is_short ? std::string{'#', text[1], text[3], text[5]} : text.data();
}

std::string attribute(const char* name, const std::string& value) {
    return " " + std::string(name) + "=\"" + value + "\"";
}

// Black is what a fill is without a word.
std::string svg_path(const Shape& shape) {
    std::string text = "<path" + attribute("d", PathData(shape.path).text());
    if (!shape.fill) text += attribute("fill", "none");
    if (shape.fill && shape.fill->value != 0) text += attribute("fill", colour_text(*shape.fill));
    if (shape.rule == FillRule::EvenOdd) text += attribute("fill-rule", "evenodd");
    if (shape.stroke) {
        text += attribute("stroke", colour_text(shape.stroke->colour)) +
                attribute("stroke-width", std::to_string(units(shape.stroke->width)));
    }
    return text + "/>";
}

// The shapes as text, plain and turned by half around the middle.
class Halves {
public:
    explicit Halves(const Drawing& drawing) : turn_(Transform::turn(180, {drawing.width / 2, drawing.height / 2})) {
        for (const Shape& shape : drawing.shapes) {
            plain_.push_back(svg_path(shape));
            turned_.push_back(svg_path({shape.path.transformed(turn_), shape.fill, shape.stroke, shape.rule}));
        }
    }
    const std::vector<std::string>& plain() const { return plain_; }
    // How many shapes from that one on come once more behind them, turned; the most there are.
    std::size_t run_at(std::size_t from) const {
        for (std::size_t count = (plain_.size() - from) / 2; count > 0; --count) {
            const auto first = turned_.begin() + static_cast<std::ptrdiff_t>(from);
            const auto end = first + static_cast<std::ptrdiff_t>(count);
            if (std::equal(first, end, plain_.begin() + static_cast<std::ptrdiff_t>(from + count))) return count;
        }
        return 0;
    }

private:
    Transform turn_;
    std::vector<std::string> plain_;
    std::vector<std::string> turned_;
};

std::string number_text(double pixels) { return std::to_string(units(pixels)); }

}  // namespace

std::string svg_symbol(const Drawing& drawing, const std::string& id) {
    const std::string size = number_text(drawing.width) + " " + number_text(drawing.height);
    const std::string turn =
        "rotate(180 " + number_text(drawing.width / 2) + " " + number_text(drawing.height / 2) + ")";
    const Halves halves(drawing);
    std::string text = "<symbol" + attribute("id", id) + attribute("viewBox", "0 0 " + size) +
                       attribute("fill", "#000") + attribute("stroke-linecap", "round") +
                       attribute("stroke-linejoin", "round") + ">";
    int parts = 0;
    for (std::size_t at = 0; at < halves.plain().size();) {
        const std::size_t count = halves.run_at(at);
        std::string shapes;
        for (std::size_t i = at; i < at + std::max<std::size_t>(count, 1); ++i)
            shapes += halves.plain()[i];
        if (count == 0) {
            text += shapes;
            ++at;
            continue;
        }
        const std::string part = id + "-" + std::to_string(++parts);
        text += "<g" + attribute("id", part) + ">" + shapes + "</g><use" + attribute("href", "#" + part) +
                attribute("transform", turn) + "/>";
        at += 2 * count;
    }
    return text + "</symbol>\n";
}

}  // namespace resources::drawing
