#include "resources/drawing/Pen.h"
#include "resources/faces/CourtParts.h"

namespace resources::faces {

namespace {

// An upright staff through the hand.
void staff(drawing::Drawing& drawing, double top, base::Colour colour, double width = 1.6) {
    const drawing::Path way = drawing::Path().move({52, top}).line({52, 64});
    drawing.line(way, kInk, width + 1.2);
    drawing.line(way, colour, width);
}

void stalk(drawing::Drawing& drawing, const drawing::Path& way, base::Colour colour) {
    drawing.line(way, kInk, 1.9);
    drawing.line(way, colour, 1);
}

void leaf(drawing::Drawing& drawing, drawing::Point foot, double degrees, base::Colour colour) {
    ink(drawing,
        drawing::Path("M 0 0 C 2.4 -1.6 3 -4.6 0 -7.4 C -3 -4.6 -2.4 -1.6 0 0 Z")
            .transformed(drawing::Transform::turn(degrees, {}).then(drawing::Transform::move(foot.x, foot.y))),
        colour);
}

constexpr base::Colour kLeaf = base::Colour::rgb(72, 122, 62);

}  // namespace

void held_sword(drawing::Drawing& drawing, const CourtLook&) {
    ink(drawing, drawing::Path("M 50.2 49.4 L 50.2 12 L 52 6 L 53.8 12 L 53.8 49.4 Z"), kSteel);
    drawing.line(drawing::Path("M 52 11 L 52 48"), kInk, 0.5);
    ink(drawing,
        drawing::Path(
            "M 45 47.6 R 48.6 49.6 52 49.4 R 55.4 49.6 59 47.6 L 59.4 50.4 R 55.6 52.2 52 52 R 48.4 52.2 44.6 50.4 Z"),
        kGold);
    staff(drawing, 53, kDarkGold, 2);
}

void held_sceptre(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    staff(drawing, 20, kGold);
    ink(drawing, drawing::Path("M 48.4 22.6 R 52 20.6 55.6 22.6 L 54.6 25.6 R 52 26.8 49.4 25.6 Z"), kGold);
    ink(drawing, drawing::suit_path(look.suit, {52, 14.4}, 11.6), kGold);
    drawing.fill(drawing::suit_path(look.suit, {52, 14}, 6), shades.main);
    for (const double y : {33.0, 43.0})
        ink(drawing, drawing::Path().ellipse({52, y}, 2.1, 1.3), shades.main);
}

void held_axe(drawing::Drawing& drawing, const CourtLook&) {
    staff(drawing, 8, kWood);
    ink(drawing, drawing::Path("M 51 13 R 47 12.6 43.4 8.8 R 40.6 16 43.4 24.6 R 47 20.4 51 20.4 Z"), kSteel);
    drawing.line(drawing::Path("M 44.6 12.4 R 43 17 44.4 21.6"), kWhite, 1);
    ink(drawing, drawing::Path("M 53 13.6 R 57.4 14 60.4 10.8 L 59.4 17 L 60.4 22.6 R 57 19.6 53 19.6 Z"), kSteel);
    ink(drawing, drawing::Path("M 50.6 10.4 L 52 4.4 L 53.4 10.4 Z"), kGold);
    ink(drawing, drawing::Path().rounded_rectangle(50, 12, 4, 9.4, 1), kGold);
}

void held_orb(drawing::Drawing& drawing, const CourtLook& look) {
    ink(drawing, drawing::Path().circle({52, 46.6}, 8), court_shades(look.suit).main);
    drawing.fill(drawing::Path().ellipse({49, 43}, 2, 2.8), court_shades(look.suit).light);
    const drawing::Path bands("M 44.2 45.4 R 52 48.4 59.8 45.4 M 52 38.8 L 52 47.2");
    drawing.line(bands, kInk, 2.8);
    drawing.line(bands, kGold, 1.7);
    ink(drawing,
        drawing::Path(
            "M 51 38.6 L 51 34.4 L 47.6 34.8 L 47.6 31.6 L 51 32 L 50.4 28 L 53.6 28 L 53 32 L 56.4 31.6 L 56.4 34.8 "
            "L 53 34.4 L 53 38.6 Z"),
        kGold);
}

void held_tulip(drawing::Drawing& drawing, const CourtLook& look) {
    stalk(drawing, drawing::Path("M 52 64 R 51.4 48 52.6 36"), kLeaf);
    ink(drawing, drawing::Path("M 52 58 C 46 52 46 44 44.4 38 C 49 41 51.4 47 52 54 Z"), kLeaf);
    ink(drawing, drawing::Path("M 52 58 C 56 53 58.4 48 59.4 42 C 55 45 52.8 49 52 54 Z"), kLeaf);
    const CourtShades& shades = court_shades(look.suit);
    ink(drawing,
        drawing::Path("M 52.6 37 C 46.4 36 45.6 28 47.4 21.6 L 52.6 26 L 57.8 21.6 C 59.6 28 58.8 36 52.6 37 Z"),
        shades.main);
    ink(drawing, drawing::Path("M 52.6 37 C 49 33 49 26 52.6 20 C 56.2 26 56.2 33 52.6 37 Z"), shades.light);
}

void held_rose(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    stalk(drawing, drawing::Path("M 52 64 R 52.6 52 51.6 38"), kLeaf);
    leaf(drawing, {52.2, 50}, -62, kLeaf);
    leaf(drawing, {52, 46}, 58, kLeaf);
    for (int petal = 0; petal < 5; ++petal) {
        const drawing::Point centre = drawing::Transform::turn(petal * 72, {51.6, 32})({51.6, 27.2});
        ink(drawing, drawing::Path().circle(centre, 3.9),
            petal % 2 == 0 ? shades.main : base::Colour::rgb(226, 62, 72));
    }
    ink(drawing, drawing::Path().circle({51.6, 32}, 3.4), shades.light);
    drawing.line(drawing::Path("M 50 32.4 R 51 30 53 31.4 52.6 33.6 50.8 33.8"), shades.main, 0.9);
}

void held_fan(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    constexpr drawing::Point kGrip{50, 56};
    constexpr double kSlats[] = {-58, -38, -18, 2, 22, 42};
    for (const double degrees : kSlats) {
        const bool even = static_cast<int>((degrees + 58) / 20) % 2 == 0;
        ink(drawing,
            drawing::Path("M 0 0 L -2.9 -21 R 0 -24.4 2.9 -21 Z")
                .transformed(
                    drawing::Transform::turn(degrees * 0.62 + 8, {}).then(drawing::Transform::move(kGrip.x, kGrip.y))),
            even ? shades.main : shades.light);
        drawing.fill(drawing::Path().circle(drawing::Transform::turn(degrees * 0.62 + 8, {})({0, -18.4}) + kGrip, 1),
                     kGold);
    }
}

void held_mirror(drawing::Drawing& drawing, const CourtLook& look) {
    staff(drawing, 44, kGold, 2);
    ink(drawing, drawing::Path().ellipse({52, 34}, 8, 10.4), kGold);
    drawing.outline(drawing::Path().ellipse({52, 34}, 5.8, 8.2), base::Colour::rgb(214, 230, 238), kInk, 0.5);
    drawing.line(drawing::Path("M 49.4 37 L 54.4 29.4 M 50.8 39.6 L 55.4 32.6"), kWhite, 1.1);
    ink(drawing, drawing::suit_path(look.suit, {52, 22.4}, 5.6), court_shades(look.suit).main);
    ink(drawing, drawing::Path().ellipse({52, 46}, 3, 1.7), court_shades(look.suit).main);
}

void held_halberd(drawing::Drawing& drawing, const CourtLook&) {
    staff(drawing, 12, kWood);
    ink(drawing, drawing::Path("M 50.4 16 L 52 3.4 L 53.6 16 Z"), kSteel);
    ink(drawing, drawing::Path("M 51.4 17 L 47.8 15 R 45.6 21 47.8 28 L 51.4 25 Z"), kSteel);
    ink(drawing, drawing::Path("M 52.6 18 R 57 17 60 20.4 R 56.4 21.4 52.6 24 Z"), kSteel);
    ink(drawing, drawing::Path().rounded_rectangle(50, 15.6, 4, 11, 1), kGold);
    drawing.fill(drawing::taper(drawing::Path("M 51 27 R 49.6 30 50 34"), 1.4, 0.6), kLips);
    drawing.fill(drawing::taper(drawing::Path("M 53 27 R 54.6 30 54 34"), 1.4, 0.6), kLips);
}

void held_horn(drawing::Drawing& drawing, const CourtLook& look) {
    const drawing::Path body =
        drawing::taper(drawing::Path("M 44.4 52.4 R 50 56.6 56 52 58 44 56 37 52.6 31.4"), 2, 7.4);
    ink(drawing, body, kGold);
    ink(drawing, drawing::Path().ellipse({52.4, 30.8}, 4.3, 2).transformed(drawing::Transform::turn(-26, {52.4, 30.8})),
        court_shades(look.suit).dark);
    drawing.line(drawing::Path("M 54 52.8 L 51.4 51 M 59.6 43.6 L 54.8 43.4 M 57 34.4 L 52.6 37"),
                 court_shades(look.suit).main, 1.6);
    drawing.line(drawing::Path("M 46 53 R 45.6 44 50 40 M 50 40 R 53 39 55.4 40.4"), court_shades(look.suit).main, 1);
}

void held_bow(drawing::Drawing& drawing, const CourtLook&) {
    const drawing::Path bow("M 46.6 11.4 R 49.4 11.6 54.6 18 58.4 30 58.6 42 56 54 52 63");
    drawing.line(drawing::Path("M 46.6 11.4 L 50.6 64"), kInk, 0.5);
    drawing.line(bow, kInk, 3);
    drawing.line(bow, kWood, 1.9);
    const drawing::Path arrow("M 57.6 11 L 49 64");
    drawing.line(arrow, kInk, 1.8);
    drawing.line(arrow, kGold, 0.9);
    ink(drawing, drawing::Path("M 58.6 5 L 60.2 12.2 L 57.5 11 L 54.9 11.4 Z"), kSteel);
}

void held_pennant(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    staff(drawing, 9, kWood);
    ink(drawing, drawing::Path("M 50.2 10 L 52 3 L 53.8 10 Z"), kSteel);
    ink(drawing, drawing::Path("M 52.8 12 R 57 10.6 62.6 13 L 59.6 18.6 L 62.6 26 R 57 24 52.8 25.4 Z"), shades.main);
    drawing.fill(drawing::suit_path(look.suit, {56.4, 18.4}, 5.6), shades.light);
    drawing.line(drawing::Path("M 52 25.4 R 50 28 50.4 32"), kGold, 1);
}

}  // namespace resources::faces
