#include <cmath>
#include <numbers>
#include <vector>

#include "resources/drawing/Pen.h"
#include "resources/faces/CourtParts.h"

namespace resources::faces {

namespace {

const drawing::Transform kMirror = drawing::Transform::mirror(32);

void crown_band(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    ink(drawing, drawing::Path("M 22 15.6 R 32 18 42 15.6 L 41.6 20.2 R 32 22.8 22.4 20.2 Z"), kGold);
    for (const drawing::Point jewel : {drawing::Point{25, 18.6}, drawing::Point{39, 18.6}})
        drawing.fill(drawing::Path().circle(jewel, 0.9), shades.main);
    drawing.outline(drawing::Path("M 32 17.9 L 34.2 20.1 L 32 22.3 L 29.8 20.1 Z"), shades.main, kInk, 0.4);
    for (const drawing::Point pearl : {drawing::Point{27.9, 19.6}, drawing::Point{36.1, 19.6}})
        drawing.fill(drawing::Path().circle(pearl, 0.7), kWhite);
}

void ball(drawing::Drawing& drawing, drawing::Point centre, double radius, base::Colour colour = kGold) {
    drawing.outline(drawing::Path().circle(centre, radius), colour, kInk, 0.5);
}

// A feather along a curved rib, with barbs that lean towards its tip.
void feather(drawing::Drawing& drawing, const drawing::Path& rib, double width, base::Colour colour) {
    drawing.outline(drawing::swell(rib, width), colour, kInk, 0.6);
    drawing.line(rib, kInk, 0.5);
    const std::vector<drawing::Point> way = rib.flattened(8).front().points;
    drawing::Path barbs;
    for (std::size_t i = 3; i + 4 < way.size(); i += 3) {
        const drawing::Point along = (way[i + 1] - way[i]) * (1 / drawing::length(way[i + 1] - way[i]));
        const double share = static_cast<double>(i) / static_cast<double>(way.size() - 1);
        const double reach = width * std::sin(share * std::numbers::pi);
        const drawing::Point across = drawing::Point{-along.y, along.x} * (reach * 0.34);
        for (const drawing::Point side : {across, across * -1})
            barbs.move(way[i]).line(way[i] + side + along * (reach * 0.3));
    }
    drawing.line(barbs, kInk, 0.35);
}

}  // namespace

void hat_spiked_crown(drawing::Drawing& drawing, const CourtLook& look) {
    ink(drawing, drawing::Path("M 23 16 L 24 9.5 R 32 7.6 40 9.5 L 41 16 R 32 18.4 23 16 Z"),
        court_shades(look.suit).main);
    ink(drawing,
        drawing::Path(
            "M 22 15.8 L 19 6 L 25.6 12 L 26.4 4.6 L 30.4 11.6 L 32 3.6 L 33.6 11.6 L 37.6 4.6 L 38.4 12 L 45 6 "
            "L 42 15.8 R 32 18.2 22 15.8 Z"),
        kGold);
    for (const drawing::Point tip : {drawing::Point{19, 5.4}, drawing::Point{26.4, 4}, drawing::Point{32, 3},
                                     drawing::Point{37.6, 4}, drawing::Point{45, 5.4}}) {
        ball(drawing, tip, 1.3, kWhite);
    }
    crown_band(drawing, look);
}

void hat_arched_crown(drawing::Drawing& drawing, const CourtLook& look) {
    ink(drawing, drawing::Path("M 22.4 16 C 16 10 22 5.6 32 6.6 C 42 5.6 48 10 41.6 16 R 32 18.4 22.4 16 Z"),
        court_shades(look.suit).main);
    const drawing::Path arch("M 23 15.8 R 19.8 11.4 23 8.4 32 7");
    for (const drawing::Path& side : {arch, arch.transformed(kMirror), drawing::Path("M 32 17 L 32 7")}) {
        drawing.line(side, kInk, 2.6);
        drawing.line(side, kGold, 1.6);
    }
    for (const double x : {20.9, 26.4, 37.6, 43.1})
        ball(drawing, {x, x < 22 || x > 42 ? 11 : 7.5}, 0.9, kWhite);
    drawing.line(drawing::Path("M 32 1.2 L 32 4.4 M 30.4 2.4 L 33.6 2.4"), kInk, 1.6);
    drawing.line(drawing::Path("M 32 1.2 L 32 4.4 M 30.4 2.4 L 33.6 2.4"), kGold, 0.8);
    ball(drawing, {32, 5.8}, 1.8);
    crown_band(drawing, look);
}

void hat_lozenge_crown(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    ink(drawing,
        drawing::Path(
            "M 22 15.8 L 20.4 12 R 27 13.6 28.6 12 L 32 13 L 35.4 12 R 37 13.6 43.6 12 L 42 15.8 R 32 18.2 22 15.8 Z"),
        kGold);
    for (const drawing::Point centre : {drawing::Point{21, 9}, drawing::Point{43, 9}, drawing::Point{32, 8.2}}) {
        const double size = centre.x == 32 ? 1.35 : 1;
        const drawing::Path lozenge = drawing::Path("M 0 -5 L 3.4 0 L 0 5 L -3.4 0 Z");
        ink(drawing,
            lozenge.transformed(
                drawing::Transform::scale(size, size).then(drawing::Transform::move(centre.x, centre.y))),
            kGold);
        drawing.fill(
            lozenge.transformed(
                drawing::Transform::scale(size / 2, size / 2).then(drawing::Transform::move(centre.x, centre.y))),
            shades.main);
    }
    ball(drawing, {26.3, 11.2}, 1.2, kWhite);
    ball(drawing, {37.7, 11.2}, 1.2, kWhite);
    crown_band(drawing, look);
}

void hat_trefoil_crown(drawing::Drawing& drawing, const CourtLook& look) {
    ink(drawing, drawing::Path("M 23 16 C 22 10 26 8 32 8 C 38 8 42 10 41 16 R 32 18.4 23 16 Z"),
        court_shades(look.suit).main);
    for (const drawing::Point foot : {drawing::Point{22, 12}, drawing::Point{32, 11}, drawing::Point{42, 12}}) {
        drawing.line(drawing::Path().move(foot).line({foot.x, 16.4}), kInk, 3);
        drawing.line(drawing::Path().move(foot).line({foot.x, 16.4}), kGold, 1.8);
        for (const drawing::Point leaf : {drawing::Point{-2, -1.2}, drawing::Point{2, -1.2}, drawing::Point{0, -4.4}})
            ball(drawing, foot + leaf, 2.1);
        drawing.fill(drawing::Path().circle(foot + drawing::Point{0, -2.2}, 1.1), kDarkGold);
    }
    ball(drawing, {27, 14}, 1, kWhite);
    ball(drawing, {37, 14}, 1, kWhite);
    crown_band(drawing, look);
}

void hat_diadem(drawing::Drawing& drawing, const CourtLook& look) {
    ink(drawing,
        drawing::Path(
            "M 22.6 19.6 C 24 14 28 13 29.6 11 L 32 4 L 34.4 11 C 36 13 40 14 41.4 19.6 R 37 17.4 32 17.2 R 27 17.4 "
            "22.6 19.6 Z"),
        kGold);
    drawing.outline(drawing::Path("M 32 8.6 L 34 12.6 L 32 16 L 30 12.6 Z"), court_shades(look.suit).main, kInk, 0.4);
    ball(drawing, {32, 4}, 1.4, kWhite);
    for (const drawing::Point pearl : {drawing::Point{27.4, 15.6}, drawing::Point{36.6, 15.6},
                                       drawing::Point{24.6, 17.4}, drawing::Point{39.4, 17.4}}) {
        drawing.fill(drawing::Path().circle(pearl, 0.8), kWhite);
    }
}

void hat_heart_roll(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    const drawing::Path lobe(
        "M 32 17 C 32 7.6 27 4 22.6 4.6 C 17 5.4 15.6 12 18.4 17.4 C 19.4 19.6 20.6 21.6 22.4 23 C 23.4 19 27 16.6 32 "
        "17 Z");
    ink(drawing, lobe, shades.main);
    ink(drawing, lobe.transformed(kMirror), shades.main);
    drawing::Path net(
        "M 18.6 9 L 28.6 15.4 M 22.4 5.6 L 30.8 12 M 17.6 13.6 L 24.6 18.6 M 27.4 6.6 L 18.6 15.4 M 30.2 10 L 21 19.4");
    net.append(drawing::Path(net), kMirror);
    drawing.line(net, kGold, 0.6);
    for (const drawing::Point pearl :
         {drawing::Point{32, 17.2}, drawing::Point{28.8, 17.2}, drawing::Point{25.9, 18.4}, drawing::Point{23.7, 20.6},
          drawing::Point{35.2, 17.2}, drawing::Point{38.1, 18.4}, drawing::Point{40.3, 20.6}}) {
        ball(drawing, pearl, 1.2, kWhite);
    }
    drawing.outline(drawing::suit_path(look.suit, {32, 11}, 4.4), kGold, kInk, 0.5);
}

void hat_plumed_band(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    feather(drawing, drawing::Path("M 31 16 R 25.6 12.4 22.4 8 20.4 2.6"), 5.6, shades.light);
    feather(drawing, drawing::Path("M 33 16 R 38.4 12.4 41.6 8 43.6 2.6"), 5.6, shades.light);
    feather(drawing, drawing::Path("M 32 16 R 31.4 10 32.6 6 32 1.8"), 6.4, shades.main);
    ink(drawing,
        drawing::Path(
            "M 24 24 C 23.6 18.6 27 14.4 32 14.4 C 37 14.4 40.4 18.6 40 24 C 38 20.4 35 18.8 32 18.8 C 29 18.8 26 "
            "20.4 24 24 Z"),
        look.hair_colour);
    ink(drawing,
        drawing::Path("M 21 17.6 R 26 14 32 13.4 38 14 43 17.6 L 42 20.4 R 37.4 17.2 32 16.6 26.6 17.2 22 20.4 Z"),
        kGold);
    ball(drawing, {32, 15.2}, 2.1, shades.main);
    ball(drawing, {26.2, 16.5}, 1, kWhite);
    ball(drawing, {37.8, 16.5}, 1, kWhite);
}

void hat_coronet(drawing::Drawing& drawing, const CourtLook& look) {
    ink(drawing,
        drawing::Path(
            "M 22.6 28 C 21.6 19 26 13.6 32 13.6 C 38 13.6 42.4 19 41.4 28 C 40 22.6 36.4 19.4 32 17.8 C 27.6 19.4 24 "
            "22.6 22.6 28 Z"),
        look.hair_colour);
    ink(drawing, drawing::Path("M 24.6 15 L 22.8 8 L 28 11.4 L 32 5.6 L 36 11.4 L 41.2 8 L 39.4 15 R 32 13 24.6 15 Z"),
        kGold);
    for (const drawing::Point tip : {drawing::Point{22.8, 7.4}, drawing::Point{32, 5}, drawing::Point{41.2, 7.4}}) {
        drawing.outline(drawing::suit_path(look.suit, tip, 4.4), court_shades(look.suit).main, kInk, 0.4);
    }
    drawing.line(drawing::Path("M 25 14.6 R 32 12.6 39 14.6"), kInk, 0.5);
    ball(drawing, {32, 11.2}, 1.1, kWhite);
}

void hat_beret(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    feather(drawing, drawing::Path("M 26 12 R 19 13.6 14.4 20 13 28 9.4 34"), 7, shades.light);
    ink(drawing, drawing::Path("O 19 14.6 23 8 33 4.8 43 7 46.6 12.6 42.6 17.6 32 19.6 22.4 18.8"), shades.main);
    drawing.line(drawing::Path("M 24 10.6 R 30 9.6 34.6 5.4 M 28 12.6 R 36 11.4 41.4 7 M 34 13.4 R 40 12.6 45 10"),
                 shades.dark, 0.6);
    ink(drawing, drawing::Path("M 21.6 16.2 R 32 18.6 42.6 15.6 L 42.2 19.2 R 32 21.8 22 19.4 Z"), kGold);
    ball(drawing, {25.4, 14}, 2, kGold);
    drawing.fill(drawing::Path().circle({25.4, 14}, 0.9), shades.dark);
}

void hat_peaked_cap(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    feather(drawing, drawing::Path("M 23 16.4 R 19.6 10.6 21.6 5.6 28 2.8 36 3.4"), 6.4, kWhite);
    ink(drawing, drawing::Path("M 22.4 17 C 22 9 28 6.4 33 7 C 38.6 7.4 41.8 11 41.8 17 Z"), shades.main);
    drawing.line(drawing::Path("M 27 15 R 27.4 10.6 30.4 8.4 M 36.6 15 R 37 11.4 35 8.6"), shades.dark, 0.6);
    ink(drawing, drawing::Path("M 17.4 20.4 R 22 16.4 30 15.2 40 15 L 47.6 16.6 R 42 19.4 34 19.8 24 20 17.4 20.4 Z"),
        shades.dark);
    drawing.line(drawing::Path("M 20.4 19.2 R 27 17.4 34 17.2 44 16.8"), kGold, 0.8);
    ball(drawing, {23.4, 16}, 1.5);
}

void hat_tall(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    feather(drawing, drawing::Path("M 39.4 15 R 43.6 12.4 45.4 8 46.4 2.8"), 5.8, shades.light);
    ink(drawing, drawing::Path("M 23.4 16.4 L 25.6 4.6 R 32 2.4 38.4 4.6 L 40.6 16.4 Z"), shades.main);
    ink(drawing, drawing::Path("M 23.8 14.4 L 24.4 11 R 32 13 39.6 11 L 40.2 14.4 R 32 16.6 23.8 14.4 Z"), shades.dark);
    drawing.outline(drawing::Path().rounded_rectangle(29.6, 11.6, 4.8, 4.2, 0.6), kGold, kInk, 0.5);
    drawing.fill(drawing::Path().rectangle(31, 12.9, 2, 1.6), shades.dark);
    ink(drawing,
        drawing::Path(
            "M 16.6 17.6 R 20 15.4 24 15.4 R 32 17 40 15.4 R 44 15.4 47.4 17.6 R 40 21.4 32 21.4 24 21.4 16.6 17.6 Z"),
        shades.main);
    drawing.line(drawing::Path("M 18.6 18 R 25 20 32 20 39 20 45.4 18"), kGold, 0.6);
}

void hat_helmet(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    feather(drawing, drawing::Path("M 33 5.6 R 25.6 3.4 19.4 6 16.8 12 17.6 19 15 25"), 7, shades.main);
    ink(drawing, drawing::Path("M 20.6 18 C 20.6 8.6 25 5.6 32 5.6 C 39 5.6 43.4 8.6 43.4 18 Z"), kSteel);
    ink(drawing, drawing::Path("M 29.6 17 C 28.8 9 29.4 4 32 2.4 C 34.6 4 35.2 9 34.4 17 Z"), kGold);
    drawing.line(drawing::Path("M 24 16 R 24.2 11.4 26.6 8.6 M 40 16 R 39.8 11.4 37.4 8.6"), kWhite, 0.9);
    ink(drawing,
        drawing::Path(
            "M 15.4 14.6 R 19 18 24 16.6 R 32 15 40 16.6 R 45 18 48.6 14.6 R 44 22 36 20.6 32 20 28 20.6 R 20 22 15.4 "
            "14.6 Z"),
        kSteel);
    for (const double x : {23.0, 27.4, 36.6, 41.0})
        drawing.fill(drawing::Path().circle({x, x > 26 && x < 38 ? 17.9 : 18.6}, 0.7), kDarkGold);
}

}  // namespace resources::faces
