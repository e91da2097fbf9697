#include "resources/faces/CardFaces.h"

#include <string>
#include <string_view>
#include <vector>

#include "resources/drawing/Glyphs.h"
#include "resources/drawing/SuitShapes.h"
#include "resources/faces/CourtCards.h"

namespace resources::faces {

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

constexpr base::Colour kBorder = base::Colour::rgb(96, 96, 102);
constexpr base::Colour kPaper = base::Colour::rgb(255, 255, 255);

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

void add_paper(drawing::Drawing& card, const CardLayout& layout) {
    card.outline(drawing::Path().rounded_rectangle(0.5, 0.5, layout.width - 1, layout.height - 1, layout.corner),
                 kPaper, kBorder, 1);
}

void add_index(drawing::Drawing& card, const CardLayout& layout, int rank, drawing::Suit suit) {
    const std::string text = rank_text(rank);
    const double left = layout.index_middle - drawing::text_width(text, layout.rank_height) / 2;
    const drawing::Path index =
        drawing::text_path(text, layout.rank_height)
            .transformed(drawing::Transform::move(left, layout.rank_top))
            .append(drawing::suit_path(suit, {layout.index_middle, layout.index_suit_middle}, layout.index_suit_size));
    card.fill(index, drawing::suit_colour(suit));
    card.fill(index.transformed(drawing::Transform::turn(180, {layout.width / 2, layout.height / 2})),
              drawing::suit_colour(suit));
}

void add_pips(drawing::Drawing& card, const CardLayout& layout, int count, drawing::Suit suit) {
    const drawing::Point middle{layout.width / 2, layout.height / 2};
    const drawing::Path pip = drawing::suit_path(suit, {}, layout.pip_size);
    for (const PipPlace place : pip_places(count)) {
        const drawing::Transform turned = place.row > 0 ? drawing::Transform::turn(180, {}) : drawing::Transform();
        card.fill(pip.transformed(turned.then(drawing::Transform::move(middle.x + place.column * layout.column,
                                                                       middle.y + place.row * layout.outer_row))),
                  drawing::suit_colour(suit));
    }
}

void add_ace(drawing::Drawing& card, const CardLayout& layout, drawing::Suit suit) {
    const drawing::Point middle{layout.width / 2, layout.height / 2};
    const double size = layout.ace_size * (suit == drawing::Suit::Schoppen ? 1.3 : 1);
    card.fill(drawing::suit_path(suit, middle, size), drawing::suit_colour(suit));
    if (suit != drawing::Suit::Schoppen) return;
    // The ace of the highest suit is ornate: a light line along its edge and the symbol once more inside.
    card.line(drawing::suit_path(suit, middle + drawing::Point{0, -size * 0.015}, size * 0.8), kPaper, size * 0.022);
    card.fill(drawing::suit_path(suit, middle + drawing::Point{0, -size * 0.03}, size * 0.34), kPaper);
}

void add_court(drawing::Drawing& card, const CardLayout& layout, int rank, drawing::Suit suit) {
    const double scale = layout.panel_scale;
    card.add(court_panel(suit, static_cast<Court>(rank - 11)),
             drawing::Transform::scale(scale, scale)
                 .then(drawing::Transform::move((layout.width - scale * kCourtPanelWidth) / 2,
                                                (layout.height - scale * kCourtPanelHeight) / 2)));
}

}  // namespace

drawing::Drawing card_face(int card, CardSize size) {
    const CardLayout& layout = size == CardSize::Small ? kSmall : kLarge;
    const drawing::Suit suit = static_cast<drawing::Suit>((card - 1) / 13);
    const int rank = (card - 1) % 13 + 2;
    drawing::Drawing face{layout.width, layout.height, {}};
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

drawing::Drawing card_back() {
    constexpr base::Colour kBlue = base::Colour::rgb(28, 52, 112);
    constexpr base::Colour kPale = base::Colour::rgb(150, 174, 222);
    constexpr base::Colour kCream = base::Colour::rgb(244, 238, 220);
    constexpr drawing::Point kMiddle{52, 78};
    drawing::Drawing back{kLarge.width, kLarge.height, {}};
    add_paper(back, kLarge);
    back.fill(drawing::Path().rounded_rectangle(5, 5, 94, 146, 4), kBlue);
    // A lattice of lozenges, 12 by 18 pixels, with a dot in each.
    drawing::Path lattice;
    drawing::Path dots;
    for (int step = -14; step <= 14; ++step) {
        const double shift = step * 12;
        lattice.move({kMiddle.x + shift - 60, kMiddle.y - 90}).line({kMiddle.x + shift + 60, kMiddle.y + 90});
        lattice.move({kMiddle.x + shift + 60, kMiddle.y - 90}).line({kMiddle.x + shift - 60, kMiddle.y + 90});
        for (int row = -8; row <= 8; ++row) {
            dots.append(drawing::Path("M 0 -3 L 2 0 L 0 3 L -2 0 Z"),
                        drawing::Transform::move(kMiddle.x + shift + (row % 2 == 0 ? 6 : 0), kMiddle.y + row * 9));
        }
    }
    drawing::Drawing weave;
    weave.line(lattice, kPale, 0.8).fill(dots, kPale);
    back.add(weave.cut({{10, 0}, {1, 0}}).cut({{94, 0}, {-1, 0}}).cut({{0, 10}, {0, 1}}).cut({{0, 146}, {0, -1}}));
    back.line(drawing::Path().rounded_rectangle(10, 10, 84, 136, 2), kCream, 1.2);
    back.line(drawing::Path().rounded_rectangle(7.4, 7.4, 89.2, 141.2, 3), kPale, 0.7);
    // The medallion: the four symbols around its middle, each foot inwards.
    back.outline(drawing::Path().ellipse(kMiddle, 26, 34), kBlue, kCream, 1.6);
    back.line(drawing::Path().ellipse(kMiddle, 22.6, 30.6), kPale, 0.7);
    const drawing::Path spade = drawing::suit_path(drawing::Suit::Schoppen, kMiddle - drawing::Point{0, 15.5}, 17);
    const drawing::Path heart = drawing::suit_path(drawing::Suit::Harten, kMiddle - drawing::Point{0, 13}, 11);
    for (const double turn : {0.0, 180.0}) {
        back.fill(spade.transformed(drawing::Transform::turn(turn, kMiddle)), kCream);
        back.fill(heart.transformed(drawing::Transform::turn(turn + 90, kMiddle)), kPale);
    }
    back.outline(drawing::Path().polygon({{52, 73.4}, {55.4, 78}, {52, 82.6}, {48.6, 78}}), kBlue, kCream, 0.9);
    return back;
}

}  // namespace resources::faces
