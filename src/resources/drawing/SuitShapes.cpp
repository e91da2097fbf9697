#include "resources/drawing/SuitShapes.h"

namespace resources::drawing {

namespace {

// Each symbol in a square of side 1.
Path unit_path(Suit suit) {
    switch (suit) {
        case Suit::Schoppen:
            return Path(
                "M 0.5 0 C 0.58 0.19 1 0.4 1 0.66 C 1 0.79 0.91 0.87 0.79 0.87 C 0.69 0.87 0.6 0.81 0.55 0.72 "
                "C 0.57 0.85 0.62 0.95 0.71 1 L 0.29 1 C 0.38 0.95 0.43 0.85 0.45 0.72 "
                "C 0.4 0.81 0.31 0.87 0.21 0.87 C 0.09 0.87 0 0.79 0 0.66 C 0 0.4 0.42 0.19 0.5 0 Z");
        case Suit::Harten:
            return Path(
                "M 0.5 1 C 0.41 0.8 0 0.62 0 0.29 C 0 0.11 0.12 0 0.27 0 C 0.38 0 0.46 0.07 0.5 0.19 "
                "C 0.54 0.07 0.62 0 0.73 0 C 0.88 0 1 0.11 1 0.29 C 1 0.62 0.59 0.8 0.5 1 Z");
        case Suit::Ruiten:
            return Path(
                "M 0.5 0 C 0.6 0.19 0.74 0.36 0.9 0.5 C 0.74 0.64 0.6 0.81 0.5 1 "
                "C 0.4 0.81 0.26 0.64 0.1 0.5 C 0.26 0.36 0.4 0.19 0.5 0 Z");
        case Suit::Klaveren:
            break;
    }
    Path club;
    for (const Point leaf : {Point{0.5, 0.24}, Point{0.24, 0.6}, Point{0.76, 0.6}})
        club.circle(leaf, 0.24);
    return club.append(
        Path("M 0.43 0.4 L 0.57 0.4 C 0.54 0.5 0.54 0.55 0.6 0.56 L 0.6 0.66 C 0.55 0.64 0.54 0.64 0.545 0.72 "
             "C 0.57 0.86 0.62 0.95 0.71 1 L 0.29 1 C 0.38 0.95 0.43 0.86 0.455 0.72 "
             "C 0.46 0.64 0.45 0.64 0.4 0.66 L 0.4 0.56 C 0.46 0.55 0.46 0.5 0.43 0.4 Z"));
}

}  // namespace

Path suit_path(Suit suit, Point centre, double size) {
    return unit_path(suit).transformed({size, 0, 0, size, centre.x - size / 2, centre.y - size / 2});
}

base::Colour suit_colour(Suit suit) {
    return suit == Suit::Schoppen || suit == Suit::Klaveren ? base::Colour{0} : base::Colour::rgb(255, 0, 0);
}

}  // namespace resources::drawing
