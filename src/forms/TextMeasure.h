#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Measures text as if it were set in Verdana at 96 dpi, whatever fonts the machine has, so that a wrapped text that is
// stored is the same everywhere. The advance widths stand in data/verdana-advance-widths.tsv.
namespace forms {

struct Font {
    double points = 8.25;
    bool bold = false;
};

// Pixels, rounded half up per character; control characters have no width.
int character_width(char character, const Font& font);
int text_width_in_pixels(std::string_view text, const Font& font);

// Twips.
double text_width(std::string_view text, const Font& font);
double line_height(const Font& font);

// The lines between hard breaks, CR LF or LF alone; the empty text has one line.
std::vector<std::string> hard_lines(std::string_view text);

// The word wrap of a text box of the given width in twips: where each of its lines begins. A line breaks after a
// blank; the blanks at a line's end don't count against its width; a word wider than a line is cut where it no longer
// fits; the two characters of a hard break (CR LF) belong to the line before it.
std::vector<std::size_t> box_lines(std::string_view text, double box_width, double points);

// What a text box leaves free at both sides together: 2 pixels of border and 1 of margin each.
inline constexpr int kBoxMarginInPixels = 6;

}  // namespace forms
