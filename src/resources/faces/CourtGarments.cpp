#include "resources/drawing/Pen.h"
#include "resources/faces/CourtParts.h"

namespace resources::faces {

namespace {

const drawing::Transform kMirror = drawing::Transform::mirror(32);

void both_sides(drawing::Drawing& drawing, const drawing::Path& path, base::Colour colour) {
    ink(drawing, path, colour);
    ink(drawing, path.transformed(kMirror), colour);
}

void neck(drawing::Drawing& drawing) {
    ink(drawing, drawing::Path("M 27.6 38 L 27.4 46 R 24 48 20 49.4 L 32 62 L 44 49.4 R 40 48 36.6 46 L 36.4 38 Z"),
        kSkin);
    drawing.fill(drawing::Path("M 27.8 40 R 31 43.6 36.4 41.4 L 36.6 43.6 R 31 46.4 27.6 43 Z"), kSkinShade);
}

void torso(drawing::Drawing& drawing, base::Colour colour) {
    ink(drawing,
        drawing::Path("M -4 90 L -4 61 R 4 54.6 14 51 25 46.6 L 32 52 L 39 46.6 R 50 51 60 54.6 68 61 L 68 90 Z"),
        colour);
}

// The panel down the breast: each suit has a weave of its own.
void breast_panel(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    ink(drawing, drawing::Path("M 24 46 L 40 46 L 42 90 L 22 90 Z"), shades.light);
    for (int row = 0; row < 5; ++row) {
        const double y = 50 + row * 5.2;
        switch (look.suit) {
            case drawing::Suit::Schoppen:
                drawing.line(drawing::Path().move({24, y}).line({32, y + 5}).line({40, y}), shades.main, 0.9);
                drawing.line(drawing::Path().move({24, y + 5}).line({32, y}).line({40, y + 5}), shades.main, 0.9);
                drawing.fill(drawing::Path().circle({32, y + 2.5}, 0.9), kDarkGold);
                break;
            case drawing::Suit::Harten:
                for (const double x : {26.4, 32.0, 37.6}) {
                    drawing.fill(drawing::suit_path(drawing::Suit::Harten, {x, y + (x == 32 ? 2.6 : 0)}, 3.2),
                                 shades.main);
                }
                break;
            case drawing::Suit::Ruiten:
                drawing.line(drawing::Path().move({23.6, y}).line({32, y + 4.4}).line({40.4, y}), shades.main, 1.5);
                drawing.line(drawing::Path().move({23.6, y + 2}).line({32, y + 6.4}).line({40.4, y + 2}), kDarkGold,
                             0.6);
                break;
            case drawing::Suit::Klaveren:
                for (const double x : {27.0, 37.0}) {
                    drawing.fill(drawing::suit_path(drawing::Suit::Klaveren, {x, y + 1}, 3.6), shades.main);
                }
                drawing.fill(drawing::Path().circle({32, y + 3.4}, 1), kDarkGold);
                break;
        }
    }
    drawing.line(drawing::Path("M 24 46 L 22.8 80 M 40 46 L 41.2 80"), kInk, 2.4);
    drawing.line(drawing::Path("M 24 46 L 22.8 80 M 40 46 L 41.2 80"), kGold, 1.4);
}

void folds(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    for (const drawing::Transform& side : {drawing::Transform(), kMirror}) {
        drawing.fill(drawing::taper(drawing::Path("M 13 56 R 15.6 64 14.6 76"), 0.6, 2.4).transformed(side),
                     shades.dark);
        drawing.fill(drawing::taper(drawing::Path("M 6 59 R 8.4 66 7.4 78"), 0.4, 2).transformed(side), shades.dark);
    }
}

}  // namespace

void garment_king(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    neck(drawing);
    torso(drawing, shades.main);
    folds(drawing, look);
    breast_panel(drawing, look);
    // The ermine: each suit's cape has a cut of its own.
    drawing::Path cape;
    switch (look.suit) {
        case drawing::Suit::Schoppen:
            cape = drawing::Path("M 24 45 R 12 50 2 57 L 7 64.6 R 18 58 32 67 R 46 58 57 64.6 L 62 57 R 52 50 40 45 Z");
            break;
        case drawing::Suit::Harten:
            cape = drawing::Path(
                "M 24 45 R 13 49.6 5 55 R 4 62 12 61.4 R 14 66 21.6 63 R 26 68.4 32 64.6 R 38 68.4 42.4 63 "
                "R 50 66 52 61.4 R 60 62 59 55 R 51 49.6 40 45 Z");
            break;
        case drawing::Suit::Ruiten:
            cape = drawing::Path(
                "M 24 45 R 13 49 4 55 L 14 68 L 21 58.6 L 32 66 L 43 58.6 L 50 68 L 60 55 R 51 49 40 45 Z");
            break;
        case drawing::Suit::Klaveren:
            cape = drawing::Path(
                "M 24 45 R 12 49 0 58 L -2 66 R 16 54 26 58 L 26 90 L 38 90 L 38 58 R 48 54 66 66 L 64 58 R 52 49 40 "
                "45 Z");
            break;
    }
    ink(drawing, cape, kWhite);
    const bool open_cape = look.suit == drawing::Suit::Klaveren;
    for (const drawing::Point tail : {drawing::Point{12.6, 54.4}, drawing::Point{18.6, 52},
                                      drawing::Point{22.4, open_cape ? 53.0 : 58.4}, drawing::Point{6.6, 57.6}}) {
        const drawing::Path shape("M 0 -2 R 0.9 0.4 0.8 2 L 0 1.2 L -0.8 2 R -0.9 0.4 0 -2 Z");
        drawing.fill(shape.transformed(drawing::Transform::move(tail.x, tail.y)), kInk);
        drawing.fill(shape.transformed(drawing::Transform::move(64 - tail.x, tail.y)), kInk);
    }
}

void garment_queen(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    neck(drawing);
    ink(drawing,
        drawing::Path(
            "M -4 90 L -4 62 R 4 55 13 51.6 L 21 49 R 22 56 32 58.4 R 42 56 43 49 L 51 51.6 R 60 55 68 62 L 68 90 Z"),
        shades.main);
    folds(drawing, look);
    // The stays below the neckline, laced.
    ink(drawing, drawing::Path("M 24 55.4 R 28 58 32 58.4 R 36 58 40 55.4 L 37.6 90 L 26.4 90 Z"), shades.light);
    drawing.line(drawing::Path("M 28 60.4 L 36 63.4 L 28 66.4 L 36 69.4 M 36 60.4 L 28 63.4 L 36 66.4 L 28 69.4"),
                 shades.dark, 0.7);
    drawing.line(drawing::Path("M 21 49 R 22 56 32 58.4 R 42 56 43 49"), kInk, 3);
    drawing.line(drawing::Path("M 21 49 R 22 56 32 58.4 R 42 56 43 49"), kGold, 1.8);
    // Sleeves: slashed, puffed or striped.
    const bool puffed = look.suit == drawing::Suit::Schoppen || look.suit == drawing::Suit::Ruiten;
    both_sides(drawing, drawing::Path("O 2 58 8 54 14.6 55.4 18 62 16 70 8 72.4 1 70 -2 64"),
               puffed ? shades.light : shades.main);
    for (const drawing::Transform& side : {drawing::Transform(), kMirror}) {
        const drawing::Path slashes("M 8 54.4 R 4.6 62 7 72 M 12.4 54.8 R 12 63 13 71 M 3.6 57 R 1 63 2 70");
        drawing.line(slashes.transformed(side), puffed ? shades.main : shades.light,
                     look.suit == drawing::Suit::Harten ? 1 : 1.6);
    }
    // A necklace with the suit's own jewel.
    drawing.line(drawing::Path("M 27.2 45 R 28.6 49.4 32 50.8 R 35.4 49.4 36.8 45"), kDarkGold, 0.8);
    drawing.outline(drawing::suit_path(look.suit, {32, 52.4}, 4.2), shades.main, kInk, 0.4);
}

void garment_jack(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    neck(drawing);
    torso(drawing, shades.main);
    // Party-coloured: the other half in the light shade, with the suit's own cut.
    ink(drawing, drawing::Path("M 32 52 L 39 46.6 R 50 51 60 54.6 68 61 L 68 90 L 32 90 Z"), shades.light);
    switch (look.suit) {
        case drawing::Suit::Schoppen:
            for (const double x : {4.0, 10.0, 16.0, 22.0, 28.0})
                drawing.line(drawing::Path().move({x, 51.4 + (28 - x) * 0.34}).line({x - 1, 80}), shades.light, 1.4);
            for (const double x : {37.0, 43.0, 60.0})
                drawing.line(drawing::Path().move({x, 53 + (x - 37) * 0.3}).line({x + 1, 80}), shades.main, 1.4);
            break;
        case drawing::Suit::Harten:
            for (const double y : {55.0, 61.0, 67.0})
                drawing.line(drawing::Path().move({12 - (y - 55), y + 2}).line({31, y}), kGold, 1.5);
            for (const double y : {54.0, 60.0, 66.0})
                drawing.fill(drawing::suit_path(drawing::Suit::Harten, {40, y}, 3.8), shades.main);
            break;
        case drawing::Suit::Ruiten:
            for (const drawing::Point at : {drawing::Point{10, 60}, drawing::Point{17, 57}, drawing::Point{24, 54},
                                            drawing::Point{10, 69}, drawing::Point{17, 66}, drawing::Point{24, 63}}) {
                drawing.fill(drawing::suit_path(drawing::Suit::Ruiten, at, 6), shades.light);
            }
            for (const drawing::Point at :
                 {drawing::Point{38, 54}, drawing::Point{38, 62}, drawing::Point{60, 60}, drawing::Point{44, 58}})
                drawing.fill(drawing::suit_path(drawing::Suit::Ruiten, at, 6), shades.main);
            break;
        case drawing::Suit::Klaveren:
            // A breastplate under a short mantle.
            ink(drawing, drawing::Path("M 19 52 R 26 55 32 55 R 38 55 45 52 L 47 90 L 17 90 Z"), kSteel);
            drawing.line(drawing::Path("M 32 55 L 32 80 M 22 58 R 26 62 32 62.4 R 38 62 42 58"), kInk, 0.6);
            drawing.line(drawing::Path("M 24 57 R 23 62 23.6 68"), kWhite, 1.2);
            break;
    }
    if (look.suit != drawing::Suit::Klaveren) {
        drawing.line(drawing::Path("M 32 52 L 32 84"), kInk, 2.8);
        drawing.line(drawing::Path("M 32 52 L 32 84"), kGold, 1.8);
        for (const double y : {56.0, 60.0, 64.0})
            drawing.fill(drawing::Path().circle({32, y}, 0.9), kInk);
    }
    // The collar: laid flat, pointed, ruffled or a gorget.
    switch (look.suit) {
        case drawing::Suit::Schoppen:
            both_sides(drawing, drawing::Path("M 32 50.4 L 27.4 43.6 R 23 45 20 47.6 L 25.6 55 Z"), kWhite);
            break;
        case drawing::Suit::Harten:
            ink(drawing,
                drawing::Path(
                    "M 26.6 43.6 L 18 47.6 L 17.4 53 L 22.4 50.6 L 24.4 55.8 L 28.6 52 L 32 57.4 L 35.4 52 L 39.6 55.8 "
                    "L 41.6 50.6 L 46.6 53 L 46 47.6 L 37.4 43.6 R 32 47.4 26.6 43.6 Z"),
                kGold);
            break;
        case drawing::Suit::Ruiten:
            for (const drawing::Point fold :
                 {drawing::Point{22.6, 46}, drawing::Point{41.4, 46}, drawing::Point{26, 48.2},
                  drawing::Point{38, 48.2}, drawing::Point{29.8, 49.4}, drawing::Point{34.2, 49.4}}) {
                ink(drawing, drawing::Path().ellipse(fold, 2.6, 3.1), kWhite);
            }
            break;
        case drawing::Suit::Klaveren:
            ink(drawing, drawing::Path("M 26.6 42.6 R 32 45.4 37.4 42.6 L 43 49.6 R 38 53 32 53.4 R 26 53 21 49.6 Z"),
                kGold);
            break;
    }
}

}  // namespace resources::faces
