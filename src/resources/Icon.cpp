#include "resources/Icon.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "base/Fout.h"
#include "resources/SuitShapes.h"

namespace resources {

namespace {

constexpr Colour kNavy = Colour::rgb(24, 42, 92);
constexpr Colour kGold = Colour::rgb(238, 186, 62);
constexpr Colour kWhite = Colour::rgb(255, 255, 255);
constexpr Colour kEdge = Colour::rgb(60, 60, 70);

void add_card(Drawing& icon, double degrees, Suit suit, double line) {
    Drawing card;
    card.outline(Path().rounded_rectangle(74, 40, 108, 164, 14), kWhite, kEdge, line);
    card.fill(suit_path(suit, {128, 122}, 78), suit_colour(suit));
    if (line < 6) {
        card.fill(suit_path(suit, {92, 62}, 22), suit_colour(suit));
        card.fill(suit_path(suit, {92, 62}, 22).transformed(Transform::turn(180, {128, 122})), suit_colour(suit));
    }
    icon.add(card, Transform::turn(degrees, {128, 230}));
}

}  // namespace

Drawing draw_icon(int size) {
    if (std::find(std::begin(kIconSizes), std::end(kIconSizes), size) == std::end(kIconSizes)) {
        throw Fout(FoutNummer::NoSuchResource, std::to_string(size));
    }
    // Drawn on a square of 256; a line is at least as wide as a pixel of the size asked for.
    const double pixel = 256.0 / size;
    Drawing icon;
    const double frame = std::max(8.0, pixel);
    icon.outline(Path().rounded_rectangle(frame / 2, frame / 2, 256 - frame, 256 - frame, 48), kNavy, kGold, frame);
    if (size >= 32) {
        add_card(icon, -17, Suit::Schoppen, std::max(3.0, pixel));
        add_card(icon, 17, Suit::Harten, std::max(3.0, pixel));
    } else {
        icon.fill(Path().rounded_rectangle(62, 30, 132, 196, 16), kWhite);
        icon.fill(suit_path(Suit::Harten, {128, 130}, 104), suit_colour(Suit::Harten));
    }
    const double scale = size / 256.0;
    Drawing scaled{static_cast<double>(size), static_cast<double>(size), {}};
    return scaled.add(icon, Transform::scale(scale, scale));
}

Colour icon_palette_colour(Colour colour) {
    const auto step = [](unsigned part) { return (part + 25) / 51 * 51; };
    return Colour::rgb(step(colour.red()), step(colour.green()), step(colour.blue()));
}

}  // namespace resources
