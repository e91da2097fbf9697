#include "resources/drawing/Pen.h"
#include "resources/faces/CourtParts.h"

namespace resources::faces {

namespace {

const drawing::Transform kMirror = drawing::Transform::mirror(32);

// A part and its mirror image on the other side of the figure.
void both_sides(drawing::Drawing& drawing, const drawing::Path& path, base::Colour colour) {
    ink(drawing, path, colour);
    ink(drawing, path.transformed(kMirror), colour);
}

void strands(drawing::Drawing& drawing, const drawing::Path& path, double width = 0.5) {
    drawing.line(path, kInk, width);
    drawing.line(path.transformed(kMirror), kInk, width);
}

}  // namespace

void ink(drawing::Drawing& drawing, const drawing::Path& path, base::Colour colour) {
    drawing.outline(path, colour, kInk, kInkWidth);
}

void court_face(drawing::Drawing& drawing, const CourtLook& look) {
    drawing::Drawing face;
    ink(face, drawing::Path("O 32 17 38 19 40.6 25.5 39.8 32.5 36.8 39.4 32 42.6 27.2 39.4 24.2 32.5 23.4 25.5 26 19"),
        kSkin);
    face.fill(drawing::Path("M 24 24 C 23.6 32 26 40 32 42.3 C 28.6 38 26.6 32 26.8 23 Z"), kSkinShade);
    const bool woman = look.court == Court::Vrouw;
    for (const double x : {28.6, 35.8}) {
        face.fill(drawing::Path().ellipse({x, 28.2}, 2.2, woman ? 1.5 : 1.3), kWhite);
        face.fill(drawing::Path().circle({x + 0.5, 28.2}, 1.2), kInk);
        face.line(drawing::Path().move({x - 2.5, 28.4}).curve({{x - 0.2, 26.6}, {x + 2.5, 28.2}}), kInk,
                  woman ? 0.9 : 0.7);
        face.line(drawing::Path().move({x - 2.7, 25.2}).curve({{x - 0.1, woman ? 23.6 : 23.9}, {x + 2.8, 25}}),
                  woman ? kInk : look.hair_colour, woman ? 0.6 : 1.1);
        if (woman)
            face.fill(drawing::Path().ellipse({x + (x < 32 ? -0.8 : 0.6), 34}, 2, 1.4),
                      base::Colour::rgb(248, 184, 166));
    }
    face.line(drawing::Path("M 33.3 28.6 R 33.9 31.6 34.6 33.8 32.2 34.8"), kInk, 0.6);
    face.fill(drawing::Path("M 29 37.6 R 31.2 37 32.2 37.5 33.2 37 35.4 37.6 R 34 39.4 32.2 39.9 30.4 39.4 29 37.6 Z"),
              kLips);
    face.line(drawing::Path("M 28.8 37.4 R 30.4 38.3 32.2 38.4 34 38.3 35.6 37.4"), kInk, 0.4);
    drawing.add(face, look.looks_left ? kMirror : drawing::Transform());
}

void hair_shoulder_curls(drawing::Drawing& drawing, const CourtLook& look) {
    both_sides(drawing, drawing::Path("O 25 18 20.5 22 19.5 28 20.5 33 18 37 16.4 42 19 46.5 23.5 46 26 41 26 30"),
               look.hair_colour);
    strands(drawing, drawing::Path("M 22 23 R 21.6 29 22.6 34 20.6 39 20.4 43 M 23.8 34 R 23.6 38 22.4 41"));
}

void hair_bob(drawing::Drawing& drawing, const CourtLook& look) {
    both_sides(drawing, drawing::Path("O 27 16 21 20 19.6 28 19 36 16.4 40.5 21 42.6 25.5 40.5 26.5 30"),
               look.hair_colour);
    strands(drawing, drawing::Path("M 21.6 24 R 21.2 32 20.4 38.4 M 23.4 30 R 23.2 36 22.6 40"));
}

void hair_waves(drawing::Drawing& drawing, const CourtLook& look) {
    both_sides(drawing, drawing::Path("O 31 14 23 17 19 25 18.4 34 15.6 42 16.4 50 14 58 24 60 30 46"),
               look.hair_colour);
}

void hair_veil(drawing::Drawing& drawing, const CourtLook& look) {
    ink(drawing,
        drawing::Path(
            "M 32 9 C 20 9 17.4 20 17 30 C 16.6 42 12 52 9 60 L 55 60 C 52 52 47.4 42 47 30 C 46.6 20 44 9 32 9 Z"),
        court_shades(look.suit).light);
    both_sides(drawing, drawing::Path("O 31 13 24 17 20.6 24 20.4 32 21.6 38 24.6 40 27 34 28 22"), look.hair_colour);
    strands(drawing, drawing::Path("M 19 30 R 18.4 42 14.6 54 M 21.4 40 R 20.6 46 18.6 51"));
}

void hair_pinned(drawing::Drawing& drawing, const CourtLook& look) {
    both_sides(drawing, drawing::Path("O 30 13 22 15 18.2 21 18.4 28 20.4 33 23.4 35.6 26 32 27 24"), look.hair_colour);
    strands(drawing, drawing::Path("M 26 16.4 R 21.4 21 21 28 M 23.6 22 R 22.4 27 22.8 31"));
}

void locks_waves(drawing::Drawing& drawing, const CourtLook& look) {
    both_sides(drawing, drawing::Path("O 24 22 20 26 19 34 16 41 15.4 49 17.6 56 20 62 22 55 23.4 47 22.6 41 25 33"),
               look.hair_colour);
    strands(drawing, drawing::Path("M 22.4 26 R 20.8 34 18.6 41 18.2 49 19.6 57 M 23.4 33 R 22 39 20.6 44 20.8 51"));
    ink(drawing,
        drawing::Path(
            "M 23 27 C 23 20 27 16.4 32 16.4 C 37 16.4 41 20 41 27 C 38.4 22.6 36 20.4 32 19.6 C 28 20.4 25.6 22.6 23 "
            "27 Z"),
        look.hair_colour);
}

void locks_braids(drawing::Drawing& drawing, const CourtLook& look) {
    constexpr drawing::Point kKnots[] = {{21, 37}, {19.4, 41}, {18.4, 45.2}, {18, 49.4}, {18.4, 53.6}, {19.2, 57.6}};
    for (const drawing::Point knot : kKnots)
        both_sides(drawing, drawing::Path().ellipse(knot, 2.7, 2.6), look.hair_colour);
    both_sides(drawing, drawing::Path().rounded_rectangle(17, 59.4, 4.8, 2.2, 1), kGold);
    both_sides(drawing, drawing::Path("M 19.4 61.6 R 17 64 17.6 67 L 21.6 67 R 21.8 64 19.4 61.6 Z"), look.hair_colour);
    strands(
        drawing,
        drawing::Path("M 19.4 36 R 21.4 38 22.8 37.4 M 17.6 40.4 R 19.4 42 21.4 41.6 M 16.4 45 R 18.6 46.4 20.6 45.6 "
                      "M 15.8 49.6 R 18 50.8 20.2 49.8 M 16.4 54 R 18.6 55 20.6 53.6"));
}

void locks_fringe(drawing::Drawing& drawing, const CourtLook& look) {
    ink(drawing,
        drawing::Path(
            "M 23.2 26.4 C 22.6 19 27 15.4 32 15.4 C 37 15.4 41.4 19 40.8 26.4 R 39.4 22.8 37.6 21.4 R 36.6 23.2 35 "
            "23.4 "
            "R 34 22 32.6 21.6 R 31 23.4 29 23.4 R 28 22.4 27 21.4 R 24.8 23 23.2 26.4 Z"),
        look.hair_colour);
}

void beard_long(drawing::Drawing& drawing, const CourtLook& look) {
    ink(drawing,
        drawing::Path("M 23.6 30 R 25.6 35.6 28.4 37 R 30.4 36 32 36.6 R 33.6 36 35.6 37 R 38.4 35.6 40.4 30 "
                      "R 41.6 40 39.6 50 R 36.4 58 32.6 61.4 R 27 57 24.4 50 R 22.4 40 23.6 30 Z"),
        look.hair_colour);
    drawing.line(drawing::Path("M 26 38 R 26.8 46 30 55 M 28.8 43 R 29.4 50 32 58 M 32 44 R 32.2 50 32.8 55 "
                               "M 38 38 R 37.4 46 34.6 55 M 35.4 43 R 35 48 34 51"),
                 kInk, 0.5);
    drawing.fill(drawing::Path("M 29.8 39.6 R 32 38.6 34.2 39.6 R 32 41.2 29.8 39.6 Z"), kLips);
}

void beard_curly(drawing::Drawing& drawing, const CourtLook& look) {
    ink(drawing,
        drawing::Path("M 23.4 29 R 25.6 34.6 28.6 36.8 R 30.4 35.8 32 36.6 R 33.6 35.8 35.4 36.8 R 38.4 34.6 40.6 29 "
                      "R 43 32 41.6 35 R 44 38.4 41.4 41 R 42 45 38.4 45.8 R 36.6 49.4 33 48 R 30.4 50 27.6 47.2 "
                      "R 23.6 47 23.4 43 R 20.4 41 22.2 37 R 20.6 32.6 23.4 29 Z"),
        look.hair_colour);
    drawing.line(
        drawing::Path("M 25 37 R 27.4 38.4 26.4 41 M 38.8 37 R 36.6 38.6 37.8 41.2 M 29.4 43.4 R 28.4 45.4 30.4 46 "
                      "M 35 43.4 R 36 45.2 34.2 46 M 32 42.8 L 32 45"),
        kInk, 0.5);
    drawing.fill(drawing::Path("M 29.8 39.4 R 32 38.4 34.2 39.4 R 32 41 29.8 39.4 Z"), kLips);
}

void beard_pointed(drawing::Drawing& drawing, const CourtLook& look) {
    ink(drawing, drawing::Path("M 29.4 40.2 R 32 40.8 34.6 40.2 R 35.4 45 32.4 51.4 R 28.8 45 29.4 40.2 Z"),
        look.hair_colour);
    beard_moustache(drawing, look);
}

void beard_forked(drawing::Drawing& drawing, const CourtLook& look) {
    ink(drawing,
        drawing::Path(
            "M 23.4 29 R 25.4 35 28.6 37 R 30.4 36 32 36.7 R 33.6 36 35.4 37 R 38.6 35 40.6 29 "
            "R 41.4 37 40 43 R 41.4 49 40.4 56 R 35.4 53 32 46.6 R 28.6 53 23.6 56 R 22.6 49 24 43 R 22.6 37 23.4 29 "
            "Z"),
        look.hair_colour);
    drawing.line(
        drawing::Path("M 26 38 R 26.4 46 25.6 52 M 28.4 42 R 28.4 47 27 50.6 M 38 38 R 37.6 46 38.4 52 M 35.6 42 R "
                      "35.6 47 37 50.6"),
        kWhite, 0.4);
    drawing.fill(drawing::Path("M 29.8 39.6 R 32 38.6 34.2 39.6 R 32 41.2 29.8 39.6 Z"), kLips);
}

void beard_moustache(drawing::Drawing& drawing, const CourtLook& look) {
    drawing.fill(drawing::taper(drawing::Path("M 32 36.4 R 28.4 36.2 26.8 38.4 25 38.2"), 1.8, 0.4), look.hair_colour);
    drawing.fill(drawing::taper(drawing::Path("M 32 36.4 R 35.6 36.2 37.2 38.4 39 38.2"), 1.8, 0.4), look.hair_colour);
}

}  // namespace resources::faces
