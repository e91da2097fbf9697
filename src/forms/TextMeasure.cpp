#include "forms/TextMeasure.h"

#include <array>
#include <cmath>

#include "forms/Geometry.h"

namespace forms {

namespace {

constexpr double kUnitsPerEm = 2048;
constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr double kVerdanaLineHeight = 2489;  // ascent 2059 and descent 430 of the font, in units

struct Advance {
    int code;
    int regular;
    int bold;
};

constexpr Advance kListed[] = {
#include "verdana_advance_widths.inc"
};

struct Widths {
    std::array<int, 256> regular{};
    std::array<int, 256> bold{};
};

constexpr Widths kWidths = [] {
    Widths widths;
    for (const Advance& advance : kListed) {
        widths.regular[static_cast<std::size_t>(advance.code)] = advance.regular;
        widths.bold[static_cast<std::size_t>(advance.code)] = advance.bold;
    }
    return widths;
}();

int in_pixels(double units, const Font& font) {
    return static_cast<int>(std::floor(units * font.points * kPixelsPerPoint / kUnitsPerEm + 0.5));
}

bool hard_break_at(std::string_view text, std::size_t at) { return text.substr(at, 2) == "\r\n"; }

// Wraps one text; `x` is the width of what stands on the line so far, blanks included.
class Wrapper {
public:
    Wrapper(std::string_view text, int width, const Font& font) : text_(text), width_(width), font_(font) {}

    std::vector<std::size_t> lines() {
        for (std::size_t at = 0; at < text_.size();) {
            if (hard_break_at(text_, at)) {
                at += 2;
                start_line(at);
            } else if (text_[at] == ' ') {
                x_ += character_width(' ', font_);
                ++at;
            } else {
                at = place_word(at);
            }
        }
        return starts_;
    }

private:
    void start_line(std::size_t at) {
        starts_.push_back(at);
        x_ = 0;
    }

    std::size_t place_word(std::size_t from) {
        std::size_t to = from;
        int word_width = 0;
        while (to < text_.size() && text_[to] != ' ' && !hard_break_at(text_, to)) {
            word_width += character_width(text_[to++], font_);
        }
        if (x_ + word_width > width_ && from > starts_.back()) start_line(from);
        for (std::size_t at = from; at < to; ++at) {
            const int character = character_width(text_[at], font_);
            if (x_ + character > width_ && at > starts_.back()) start_line(at);
            x_ += character;
        }
        return to;
    }

    std::string_view text_;
    int width_;
    Font font_;
    int x_ = 0;
    std::vector<std::size_t> starts_{0};
};

}  // namespace

int character_width(char character, const Font& font) {
    const auto code = static_cast<unsigned char>(character);
    return in_pixels(font.bold ? kWidths.bold[code] : kWidths.regular[code], font);
}

int text_width_in_pixels(std::string_view text, const Font& font) {
    int width = 0;
    for (const char character : text)
        width += character_width(character, font);
    return width;
}

double text_width(std::string_view text, const Font& font) { return text_width_in_pixels(text, font) * kTwipsPerPixel; }
double line_height(const Font& font) { return in_pixels(kVerdanaLineHeight, font) * kTwipsPerPixel; }

std::vector<std::string> hard_lines(std::string_view text) {
    std::vector<std::string> lines(1);
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (hard_break_at(text, at)) ++at;
        if (text[at] == '\n') {
            lines.emplace_back();
        } else {
            lines.back() += text[at];
        }
    }
    return lines;
}

std::vector<std::size_t> box_lines(std::string_view text, double box_width, double points) {
    const int width = static_cast<int>(box_width / kTwipsPerPixel) - kBoxMarginInPixels;
    return Wrapper(text, width, {points, false}).lines();
}

}  // namespace forms
