#include "resources/CardFaces.h"

#include <string>
#include <string_view>
#include <vector>

#include "resources/CourtCards.h"
#include "resources/Glyphs.h"
#include "resources/SuitShapes.h"

namespace resources {

namespace {

// Where things stand on a card; all in pixels.
struct CardLayout {
    double width;
    double height;
    double corner;
    double index_middle;
    double rank_top;
    double rank_height;
    double index_suit_middle;
    double index_suit_size;
    double pip_size;
    double column;     // from the middle to the left and right column of pips
    double outer_row;  // from the middle to the first and the last row
    double ace_size;
    double panel_scale;
};

constexpr CardLayout kSmall{65, 97, 4.5, 9, 3.8, 13, 22.6, 9.4, 10.6, 9.6, 34.5, 26, 0.54};
constexpr CardLayout kLarge{104, 156, 7, 11.8, 4.5, 16, 27.4, 11.4, 17.5, 19, 53, 46, 1};

constexpr Colour kBorder = Colour::rgb(96, 96, 102);
constexpr Colour kPaper = Colour::rgb(255, 255, 255);

// A pip of the classic layouts: column -1, 0 or 1, and its row from -1 (top) to 1.
struct PipPlace {
    int column;
    double row;
};

std::vector<PipPlace> pip_places(int count) {
    constexpr double kThird = 1.0 / 3;
    std::vector<PipPlace> places;
    const auto pair = [&](double row) { places.insert(places.end(), {{-1, row}, {1, row}}); };
    const auto single = [&](double row) { places.push_back({0, row}); };
    if (count >= 9) {
        for (const double row : {-1.0, -kThird, kThird, 1.0})
            pair(row);
    } else if (count >= 4) {
        pair(-1);
        if (count >= 6) pair(0);
        pair(1);
    } else {
        single(-1);
        single(1);
    }
    switch (count) {
        case 3:
        case 5:
        case 9:
            single(0);
            break;
        case 7:
            single(-0.5);
            break;
        case 8:
            single(-0.5);
            single(0.5);
            break;
        case 10:
            single(-2 * kThird);
            single(2 * kThird);
            break;
        default:
            break;
    }
    return places;
}

std::string rank_text(int rank) {
    constexpr std::string_view kHigh = "BVHA";
    return rank > 10 ? std::string(1, kHigh[static_cast<std::size_t>(rank - 11)]) : std::to_string(rank);
}

void add_paper(Drawing& card, const CardLayout& layout) {
    card.outline(Path().rounded_rectangle(0.5, 0.5, layout.width - 1, layout.height - 1, layout.corner), kPaper,
                 kBorder, 1);
}

void add_index(Drawing& card, const CardLayout& layout, int rank, Suit suit) {
    const std::string text = rank_text(rank);
    const double left = layout.index_middle - text_width(text, layout.rank_height) / 2;
    const Path index =
        text_path(text, layout.rank_height)
            .transformed(Transform::move(left, layout.rank_top))
            .append(suit_path(suit, {layout.index_middle, layout.index_suit_middle}, layout.index_suit_size));
    card.fill(index, suit_colour(suit));
    card.fill(index.transformed(Transform::turn(180, {layout.width / 2, layout.height / 2})), suit_colour(suit));
}

void add_pips(Drawing& card, const CardLayout& layout, int count, Suit suit) {
    const Point middle{layout.width / 2, layout.height / 2};
    const Path pip = suit_path(suit, {}, layout.pip_size);
    for (const PipPlace place : pip_places(count)) {
        const Transform turned = place.row > 0 ? Transform::turn(180, {}) : Transform();
        card.fill(pip.transformed(turned.then(Transform::move(middle.x + place.column * layout.column,
                                                              middle.y + place.row * layout.outer_row))),
                  suit_colour(suit));
    }
}

void add_ace(Drawing& card, const CardLayout& layout, Suit suit) {
    const Point middle{layout.width / 2, layout.height / 2};
    const double size = layout.ace_size * (suit == Suit::Schoppen ? 1.3 : 1);
    card.fill(suit_path(suit, middle, size), suit_colour(suit));
    if (suit != Suit::Schoppen) return;
    // The ace of the highest suit is ornate: a light line along its edge and the symbol once more inside.
    card.line(suit_path(suit, middle + Point{0, -size * 0.015}, size * 0.8), kPaper, size * 0.022);
    card.fill(suit_path(suit, middle + Point{0, -size * 0.03}, size * 0.34), kPaper);
}

void add_court(Drawing& card, const CardLayout& layout, int rank, Suit suit) {
    const double scale = layout.panel_scale;
    card.add(court_panel(suit, static_cast<Court>(rank - 11)),
             Transform::scale(scale, scale)
                 .then(Transform::move((layout.width - scale * kCourtPanelWidth) / 2,
                                       (layout.height - scale * kCourtPanelHeight) / 2)));
}

}  // namespace

Drawing card_face(int card, CardSize size) {
    const CardLayout& layout = size == CardSize::Small ? kSmall : kLarge;
    const Suit suit = static_cast<Suit>((card - 1) / 13);
    const int rank = (card - 1) % 13 + 2;
    Drawing face{layout.width, layout.height, {}};
    add_paper(face, layout);
    if (rank <= 10) {
        add_pips(face, layout, rank, suit);
    } else if (rank == 14) {
        add_ace(face, layout, suit);
    } else {
        add_court(face, layout, rank, suit);
    }
    add_index(face, layout, rank, suit);
    return face;
}

Drawing card_back() {
    constexpr Colour kBlue = Colour::rgb(28, 52, 112);
    constexpr Colour kPale = Colour::rgb(150, 174, 222);
    constexpr Colour kCream = Colour::rgb(244, 238, 220);
    constexpr Point kMiddle{52, 78};
    Drawing back{kLarge.width, kLarge.height, {}};
    add_paper(back, kLarge);
    back.fill(Path().rounded_rectangle(5, 5, 94, 146, 4), kBlue);
    // A lattice of lozenges, 12 by 18 pixels, with a dot in each.
    Path lattice;
    Path dots;
    for (int step = -14; step <= 14; ++step) {
        const double shift = step * 12;
        lattice.move({kMiddle.x + shift - 60, kMiddle.y - 90}).line({kMiddle.x + shift + 60, kMiddle.y + 90});
        lattice.move({kMiddle.x + shift + 60, kMiddle.y - 90}).line({kMiddle.x + shift - 60, kMiddle.y + 90});
        for (int row = -8; row <= 8; ++row) {
            dots.append(Path("M 0 -3 L 2 0 L 0 3 L -2 0 Z"),
                        Transform::move(kMiddle.x + shift + (row % 2 == 0 ? 6 : 0), kMiddle.y + row * 9));
        }
    }
    Drawing weave;
    weave.line(lattice, kPale, 0.8).fill(dots, kPale);
    back.add(weave.cut({{10, 0}, {1, 0}}).cut({{94, 0}, {-1, 0}}).cut({{0, 10}, {0, 1}}).cut({{0, 146}, {0, -1}}));
    back.line(Path().rounded_rectangle(10, 10, 84, 136, 2), kCream, 1.2);
    back.line(Path().rounded_rectangle(7.4, 7.4, 89.2, 141.2, 3), kPale, 0.7);
    // The medallion: the four symbols around its middle, each foot inwards.
    back.outline(Path().ellipse(kMiddle, 26, 34), kBlue, kCream, 1.6);
    back.line(Path().ellipse(kMiddle, 22.6, 30.6), kPale, 0.7);
    const Path spade = suit_path(Suit::Schoppen, kMiddle - Point{0, 15.5}, 17);
    const Path heart = suit_path(Suit::Harten, kMiddle - Point{0, 13}, 11);
    for (const double turn : {0.0, 180.0}) {
        back.fill(spade.transformed(Transform::turn(turn, kMiddle)), kCream);
        back.fill(heart.transformed(Transform::turn(turn + 90, kMiddle)), kPale);
    }
    back.outline(Path().polygon({{52, 73.4}, {55.4, 78}, {52, 82.6}, {48.6, 78}}), kBlue, kCream, 0.9);
    return back;
}

}  // namespace resources
