#include "resources/drawing/Glyphs.h"

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "resources/drawing/Pen.h"

namespace resources::drawing {

namespace {

// A part of a character: the middle of the pen's way, and how broad the pen is in level and in upright strokes.
struct PenPart {
    const char* skeleton;
    double thin;
    double thick;
};

struct Glyph {
    double width;
    std::vector<PenPart> parts;
    std::vector<Point> dots = {};  // round ends
};

constexpr double kHeight = 16;  // all characters are drawn this high
constexpr double kHair = 1.4;
constexpr double kStem = 2.9;
constexpr double kDot = 1.45;
constexpr double kSpacing = 1;

const std::map<char, Glyph>& capitals() {
    static const std::map<char, Glyph> table{
        {'A',
         {12.4,
          {{"M 6 0.2 L 2 15.3", 1.5, 1.5},
           {"M 6 0.2 L 10.2 15.3", kStem, kStem},
           {"M 3.4 10.3 L 9 10.3", kHair, kHair},
           {"M 0.1 15.3 L 3.9 15.3 M 8 15.3 L 12.3 15.3", kHair, kHair}}}},
        {'B',
         {10.6,
          {{"M 3 0.7 L 3 15.3", kStem, kStem},
           {"M 0.4 0.7 L 5.4 0.7 C 9.2 0.7 9.2 7.5 5.4 7.5 L 3 7.5", kHair, kStem},
           {"M 5 7.5 L 5.5 7.5 C 10.4 7.5 10.4 15.3 5.5 15.3 L 0.4 15.3", kHair, kStem}}}},
        {'H',
         {12.4,
          {{"M 2.7 0.7 L 2.7 15.3 M 9.7 0.7 L 9.7 15.3", kStem, kStem},
           {"M 2.7 7.8 L 9.7 7.8", kHair, kHair},
           {"M 0.2 0.7 L 5.2 0.7 M 7.2 0.7 L 12.2 0.7 M 0.2 15.3 L 5.2 15.3 M 7.2 15.3 L 12.2 15.3", kHair, kHair}}}},
        {'L',
         {10,
          {{"M 3 0.7 L 3 15.3", kStem, kStem},
           {"M 0.4 0.7 L 5.6 0.7 M 0.4 15.3 L 9.4 15.3 L 9.7 11.6", kHair, kHair}}}},
        {'S',
         {9.8,
          {{"M 8.3 4.2 C 7.4 -0.4 1.8 -0.3 1.9 4 C 2 7.8 8.2 7.8 8.2 11.9 C 8.2 16.4 2 16.4 1.2 11.6", 2.2, 2.6},
           {"M 8.6 0.5 L 8.4 4.6 M 1 15.6 L 1.1 11.4", kHair, kHair}}}},
        {'V',
         {12.2,
          {{"M 2 0.7 L 6.2 15.6", kStem, kStem},
           {"M 10.2 0.7 L 6.2 15.6", 1.5, 1.5},
           {"M 0.1 0.7 L 4.4 0.7 M 8.3 0.7 L 12.1 0.7", kHair, kHair}}}},
        {'Z',
         {10.6,
          {{"M 9 1.2 L 1.6 14.8", kStem, kStem},
           {"M 0.9 4.4 L 1.2 0.8 L 9.9 0.8 M 0.5 15.2 L 9.6 15.2 L 10 11.4", kHair, kHair}}}},
    };
    return table;
}

const std::map<char, Glyph>& digits() {
    static const std::map<char, Glyph> table{
        {'0', {8.4, {{"M 4.2 0.7 C 8.6 0.7 8.6 15.3 4.2 15.3 C -0.2 15.3 -0.2 0.7 4.2 0.7 Z", kHair, 2.7}}}},
        {'1',
         {5.2,
          {{"M 3 0.2 L 3 15.3", 2.7, 2.7},
           {"M 2.6 1 R 1.6 2.2 0.4 2.8", kHair, kHair},
           {"M 0.4 15.3 L 5.4 15.3", kHair, kHair}}}},
        {'2',
         {9.8,
          {{"M 1.9 4.4 C 1.9 -0.6 8.3 -0.4 8.1 4.3 C 7.9 8 3.2 10.6 1.6 14.2", kHair, kStem},
           {"M 0.9 14.6 L 9.1 14.6", 2, 2},
           {"M 8.7 15 L 9.2 12", kHair, kHair}},
          {{2.2, 4.2}}}},
        {'3',
         {9.8,
          {{"M 2 3.4 C 2.6 -0.2 8 -0.2 7.9 3.8 C 7.8 6.4 6 7.4 3.8 7.5", kHair, kStem},
           {"M 3.8 7.5 C 6.8 7.5 8.4 9 8.3 11.3 C 8.1 16.6 2.2 16.2 1.8 12.2", kHair, kStem}},
          {{2.3, 3.6}, {2.2, 12.2}}}},
        {'4',
         {10,
          {{"M 7 0.4 L 7 15.3", kStem, kStem},
           {"M 6.8 0.6 L 0.9 11", 1.5, 1.5},
           {"M 0.6 11 L 9.8 11 M 4.8 15.3 L 9.2 15.3", kHair, kHair}}}},
        {'5',
         {9.8,
          {{"M 1.9 1.4 L 8.2 1.4", 2.2, 2.2},
           {"M 2.3 1 L 1.9 7.6", kHair, kHair},
           {"M 1.8 7.7 C 4 5.6 8.6 6 8.4 10.6 C 8.2 16.8 2 16.2 1.7 12.2", kHair, kStem}},
          {{2.1, 12.2}}}},
        {'6',
         {9.8,
          {{"M 7.8 1.9 C 4.2 -0.6 1.8 4.6 1.8 10.2", kHair, kStem},
           {"M 5 6.6 C 9.6 6.6 9.6 15.3 5 15.3 C 0.6 15.3 0.6 6.6 5 6.6 Z", kHair, 2.7}},
          {{7.6, 2.6}}}},
        {'7',
         {9.8,
          {{"M 0.9 1.4 L 9 1.4", 2.2, 2.2},
           {"M 1.2 1 L 1 4.4", kHair, kHair},
           {"M 8.6 1.8 C 6.4 5.6 4.6 9 4.3 15.6", kStem, kStem}}}},
        {'8',
         {9.8,
          {{"M 4.9 0.7 C 8.8 0.7 8.8 7.5 4.9 7.5 C 1 7.5 1 0.7 4.9 0.7 Z", kHair, 2.5},
           {"M 4.9 7.5 C 9.6 7.5 9.6 15.3 4.9 15.3 C 0.2 15.3 0.2 7.5 4.9 7.5 Z", kHair, 2.7}}}},
        {'9',
         {9.8,
          {{"M 2 14.1 C 5.6 16.6 8 11.4 8 5.8", kHair, kStem},
           {"M 4.8 9.4 C 0.2 9.4 0.2 0.7 4.8 0.7 C 9.2 0.7 9.2 9.4 4.8 9.4 Z", kHair, 2.7}},
          {{2.2, 13.4}}}},
    };
    return table;
}

// The small letters stand between y = 5.5 and 16.
const std::map<char, Glyph>& small_letters() {
    static const std::map<char, Glyph> table{
        {'a',
         {8.6,
          {{"M 1.4 7.6 C 2 5.4 6.2 5.4 6.2 8.6 L 6.2 14 R 6.7 15.3 8.4 15", kHair, 2.5},
           {"M 6.2 9.4 C 3 9.8 1.3 11 1.3 12.8 C 1.3 16 5.6 16 6.2 13.2", kHair, 2.3}}}},
        {'d',
         {9.4,
          {{"M 7 0.7 L 7 15.3", 2.5, 2.5},
           {"M 5 0.8 L 7 0.8 M 7 15.3 L 9.2 15.3", kHair, kHair},
           {"M 6.8 8 C 5 4.6 1.3 6 1.4 10.8 C 1.4 16 5.4 16.6 6.8 13.4", kHair, 2.5}}}},
        {'e', {8, {{"M 1.6 10 L 6.6 10 C 6.8 4.6 1.3 4.6 1.3 10.7 C 1.3 16.8 6 16.2 7 13", kHair, 2.6}}}},
        {'i',
         {5,
          {{"M 2.6 6.2 L 2.6 15.3", 2.5, 2.5}, {"M 0.6 6.2 L 2.6 6.2 M 0.5 15.3 L 4.8 15.3", kHair, kHair}},
          {{2.5, 2.5}}}},
        {'l', {5, {{"M 2.6 0.7 L 2.6 15.3", 2.5, 2.5}, {"M 0.6 0.8 L 2.6 0.8 M 0.5 15.3 L 4.8 15.3", kHair, kHair}}}},
        {'m',
         {14.4,
          {{"M 2.6 6.2 L 2.6 15.3", 2.5, 2.5},
           {"M 2.8 8.6 C 4 5.2 7.4 5.4 7.4 9 L 7.4 15.3 M 7.6 8.6 C 8.8 5.2 12.2 5.4 12.2 9 L 12.2 15.3", kHair, 2.5},
           {"M 0.6 6.2 L 2.6 6.2 M 0.5 15.3 L 4.6 15.3 M 5.4 15.3 L 9.4 15.3 M 10.2 15.3 L 14.3 15.3", kHair, kHair}}}},
        {'n',
         {9.8,
          {{"M 2.6 6.2 L 2.6 15.3", 2.5, 2.5},
           {"M 2.8 8.6 C 4 5.2 7.6 5.4 7.6 9 L 7.6 15.3", kHair, 2.5},
           {"M 0.6 6.2 L 2.6 6.2 M 0.5 15.3 L 4.7 15.3 M 5.5 15.3 L 9.7 15.3", kHair, kHair}}}},
        {'o', {8.8, {{"M 4.4 6.1 C 8.8 6.1 8.8 15.3 4.4 15.3 C 0 15.3 0 6.1 4.4 6.1 Z", kHair, 2.6}}}},
        {'r',
         {7,
          {{"M 2.6 6.2 L 2.6 15.3", 2.5, 2.5},
           {"M 2.8 9 C 3.4 6.6 4.6 6 6 6.6", kHair, 2},
           {"M 0.6 6.2 L 2.6 6.2 M 0.5 15.3 L 4.9 15.3", kHair, kHair}},
          {{5.7, 7.5}}}},
        {'t',
         {6, {{"M 2.8 2.8 L 2.8 13 C 2.8 15.8 4.8 15.6 5.7 14.2", 1.5, 2.5}, {"M 0.4 6.2 L 5.5 6.2", kHair, kHair}}}},
    };
    return table;
}

const Glyph& glyph(char character) {
    for (const auto* table : {&capitals(), &digits(), &small_letters()}) {
        const auto found = table->find(character);
        if (found != table->end()) return found->second;
    }
    throw std::invalid_argument(std::string("no drawn character ") + character);
}

double advance(char character) { return character == ' ' ? kHeight / 3 : glyph(character).width + kSpacing; }

}  // namespace

Path text_path(std::string_view text, double height) {
    Path path;
    double x = 0;
    for (const char character : text) {
        if (character != ' ') {
            const Transform place = Transform::move(x, 0).then(Transform::scale(height / kHeight, height / kHeight));
            for (const PenPart& part : glyph(character).parts) {
                path.append(pen_stroke(Path(part.skeleton), part.thin, part.thick), place);
            }
            for (const Point dot : glyph(character).dots)
                path.append(Path().circle(dot, kDot), place);
        }
        x += advance(character);
    }
    return path;
}

double text_width(std::string_view text, double height) {
    double width = 0;
    for (const char character : text)
        width += advance(character);
    if (!text.empty() && text.back() != ' ') width -= kSpacing;
    return width * height / kHeight;
}

}  // namespace resources::drawing
