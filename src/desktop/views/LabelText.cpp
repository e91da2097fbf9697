#include "desktop/views/LabelText.h"

#include <algorithm>
#include <limits>

#include "base/Text.h"
#include "desktop/Look.h"
#include "forms/Form.h"
#include "forms/Image.h"
#include "forms/PictureBox.h"
#include "forms/TextMeasure.h"

namespace desktop::views {

namespace {

constexpr double kNarrowest = 0.85;  // letters may move together as much
constexpr double kSmallest = 0.75;   // or be as small, before the middle of the line goes
constexpr double kGap = 2 * forms::kTwipsPerPixel;
constexpr char kEllipsis = '\x85';

forms::Font font_of(const forms::Label& label) { return {label.FontSize, label.FontBold}; }

double width_of(const std::string& line, const forms::Label& label) {
    return forms::text_width(without_mark(line), font_of(label));
}

void wrap(const std::string& text, const forms::Label& label, std::vector<std::string>& lines) {
    std::string line;
    for (const std::string& word : base::split(text, " ")) {
        const std::string longer = line.empty() ? word : line + " " + word;
        if (!line.empty() && width_of(longer, label) > label.Width) {
            lines.push_back(line);
            line = word;
        } else {
            line = longer;
        }
    }
    lines.push_back(line);
}

std::vector<std::string> broken_lines(const forms::Label& label) {
    std::vector<std::string> lines;
    const bool one_line = label.Height < 2 * forms::line_height(font_of(label));
    for (const std::string& line : forms::hard_lines(label.Caption())) {
        if (label.AutoSize || one_line) {
            lines.push_back(line);
        } else {
            wrap(line, label, lines);
        }
    }
    return lines;
}

bool hides_what_is_behind(const forms::Control& control) {
    if (const auto* label = dynamic_cast<const forms::Label*>(&control)) return label->Opaque;
    if (const auto* box = dynamic_cast<const forms::PictureBox*>(&control)) return box->Opaque;
    return dynamic_cast<const forms::Image*>(&control) == nullptr;
}

// The part of its row, from the label's left edge, in which a label can be read.
struct Room {
    double from = 0;
    double to = std::numeric_limits<double>::max();
};

Room room_of(const forms::Label& label, double needed) {
    if (label.Opaque() || label.BorderStyle() != 0 || label.Alignment() != forms::Alignment::Left) {
        return {.to = label.Width};
    }
    const forms::Control* parent = label.container().as_control();
    Room room{.to = (parent ? parent->Width() : label.form().Width()) - label.Left};
    bool in_front = false;
    for (const forms::Control* other : label.container().children()) {
        if (other == &label) in_front = true;
        if (other == &label || !other->Visible || other->Width() <= 0) continue;
        if (other->Top >= label.bottom() || other->bottom() <= label.Top) continue;
        const double left = other->Left - label.Left;
        const double right = left + other->Width;
        if (!label.AutoSize && left >= label.Width) room.to = std::min(room.to, left - kGap);
        if (!in_front || !hides_what_is_behind(*other)) continue;
        if (left <= 0) room.from = std::max(room.from, right);
        if (left > 0 && left < needed) room.to = std::min(room.to, left);
    }
    return room;
}

LabelLine without_middle(const std::string& line, const forms::Label& label, double room) {
    const std::string plain = without_mark(line);
    std::string shorter;
    for (std::size_t kept = plain.size(); kept-- > 0;) {
        shorter = plain.substr(0, (kept + 1) / 2) + kEllipsis + plain.substr(plain.size() - kept / 2);
        if (width_of(shorter, label) <= room) break;
    }
    return {.text = base::replaced(shorter, "&", "&&"), .width = width_of(shorter, label), .whole = false};
}

// The words at the end that do not lie behind anything, where they would stand anyway.
LabelLine free_words(const std::string& line, const forms::Label& label, double from) {
    const double width = width_of(line, label);
    for (std::size_t at = line.find(' '); at != std::string::npos; at = line.find(' ', at + 1)) {
        const std::string rest = line.substr(at + 1);
        const double rest_width = width_of(rest, label);
        if (width - rest_width >= from) {
            return {.text = rest, .indent = width - rest_width, .width = rest_width, .whole = false};
        }
    }
    return {.text = {}, .whole = false};
}

LabelLine fitted(const std::string& line, const forms::Label& label) {
    const double width = width_of(line, label);
    const Room room = room_of(label, width);
    if (room.from > 0) return free_words(line, label, room.from);
    if (width <= room.to) return {.text = line, .width = width};
    if (width * kNarrowest <= room.to) return {.text = line, .width = room.to};
    if (width * kSmallest <= room.to) return {.text = line, .width = room.to, .scale = room.to / width};
    return without_middle(line, label, room.to);
}

}  // namespace

std::vector<LabelLine> label_lines(const forms::Label& label) {
    std::vector<LabelLine> lines;
    for (const std::string& line : broken_lines(label))
        lines.push_back(fitted(line, label));
    return lines;
}

}  // namespace desktop::views
