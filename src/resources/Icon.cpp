#include "resources/Icon.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "base/Fout.h"
#include "resources/drawing/SuitShapes.h"

namespace resources {

namespace {

constexpr base::Colour kNavy = base::Colour::rgb(24, 42, 92);
constexpr base::Colour kGold = base::Colour::rgb(238, 186, 62);
constexpr base::Colour kWhite = base::Colour::rgb(255, 255, 255);
constexpr base::Colour kEdge = base::Colour::rgb(60, 60, 70);

void add_card(drawing::Drawing& icon, double degrees, drawing::Suit suit, double line) {
    drawing::Drawing card;
    card.outline(drawing::Path().rounded_rectangle(74, 40, 108, 164, 14), kWhite, kEdge, line);
    card.fill(drawing::suit_path(suit, {128, 122}, 78), drawing::suit_colour(suit));
    if (line < 6) {
        card.fill(drawing::suit_path(suit, {92, 62}, 22), drawing::suit_colour(suit));
        card.fill(drawing::suit_path(suit, {92, 62}, 22).transformed(drawing::Transform::turn(180, {128, 122})),
                  drawing::suit_colour(suit));
    }
    icon.add(card, drawing::Transform::turn(degrees, {128, 230}));
}

}  // namespace

drawing::Drawing draw_icon(int size) {
    if (std::find(std::begin(kIconSizes), std::end(kIconSizes), size) == std::end(kIconSizes)) {
        throw base::Fout(base::FoutNummer::NoSuchResource, std::to_string(size));
    }
    // Drawn on a square of 256; a line is at least as wide as a pixel of the size asked for.
    const double pixel = 256.0 / size;
    drawing::Drawing icon;
    const double frame = std::max(8.0, pixel);
    icon.outline(drawing::Path().rounded_rectangle(frame / 2, frame / 2, 256 - frame, 256 - frame, 48), kNavy, kGold,
                 frame);
    if (size >= 32) {
        add_card(icon, -17, drawing::Suit::Schoppen, std::max(3.0, pixel));
        add_card(icon, 17, drawing::Suit::Harten, std::max(3.0, pixel));
    } else {
        icon.fill(drawing::Path().rounded_rectangle(62, 30, 132, 196, 16), kWhite);
        icon.fill(drawing::suit_path(drawing::Suit::Harten, {128, 130}, 104),
                  drawing::suit_colour(drawing::Suit::Harten));
    }
    const double scale = size / 256.0;
    drawing::Drawing scaled{static_cast<double>(size), static_cast<double>(size), {}};
    return scaled.add(icon, drawing::Transform::scale(scale, scale));
}

base::Colour icon_palette_colour(base::Colour colour) {
    const auto step = [](unsigned part) { return (part + 25) / 51 * 51; };
    return base::Colour::rgb(step(colour.red()), step(colour.green()), step(colour.blue()));
}

}  // namespace resources
