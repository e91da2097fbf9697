#include "resources/ScreenPictures.h"

#include "resources/drawing/Glyphs.h"
#include "resources/drawing/Pen.h"
#include "resources/drawing/SuitShapes.h"

namespace resources {

namespace {

constexpr base::Colour kInk = base::Colour::rgb(40, 32, 36);
constexpr base::Colour kWhite = base::Colour::rgb(255, 255, 255);
constexpr base::Colour kNavy = base::Colour::rgb(24, 42, 92);
constexpr base::Colour kGold = base::Colour::rgb(238, 186, 62);
constexpr base::Colour kSkin = base::Colour::rgb(250, 218, 190);
constexpr base::Colour kSkinShade = base::Colour::rgb(234, 186, 152);
constexpr base::Colour kRed = base::Colour::rgb(200, 30, 44);

// A small card with one symbol, turned around its middle.
void add_card(drawing::Drawing& drawing, drawing::Point middle, double height, double degrees, drawing::Suit suit) {
    const double width = height * 2 / 3;
    drawing::Drawing card;
    card.outline(drawing::Path().rounded_rectangle(-width / 2, -height / 2, width, height, height * 0.08), kWhite, kInk,
                 height * 0.03);
    card.fill(drawing::suit_path(suit, {}, width * 0.62), drawing::suit_colour(suit));
    drawing.add(card, drawing::Transform::turn(degrees, {}).then(drawing::Transform::move(middle.x, middle.y)));
}

}  // namespace

drawing::Drawing draw_logo() {
    drawing::Drawing logo{208, 54, {}};
    logo.fill(drawing::Path().rectangle(0, 0, 208, 54), kNavy);
    logo.line(drawing::Path().rectangle(2.5, 2.5, 203, 49), kGold, 1);
    add_card(logo, {22, 28}, 36, -12, drawing::Suit::Schoppen);
    add_card(logo, {37, 27}, 36, 10, drawing::Suit::Harten);
    constexpr double kLetters = 19;
    const double left = 56;
    logo.fill(drawing::text_path("Zandolin", kLetters).transformed(drawing::Transform::move(left, 6)), kWhite);
    logo.fill(drawing::text_path("Lomert", kLetters).transformed(drawing::Transform::move(left + 44, 29)), kGold);
    logo.fill(drawing::taper(drawing::Path("M 96 43 R 86 40 76 42 66 46 58 43"), 0.8, 3.2), kGold);
    return logo;
}

drawing::Drawing draw_maker() {
    constexpr base::Colour kGround = base::Colour::rgb(196, 214, 226);
    constexpr base::Colour kHair = base::Colour::rgb(150, 144, 142);
    constexpr base::Colour kJacket = base::Colour::rgb(58, 70, 98);
    drawing::Drawing maker{110, 110, {}};
    maker.fill(drawing::Path().rectangle(0, 0, 110, 110), kGround);
    maker.fill(drawing::Path().circle({55, 50}, 44), base::Colour::rgb(222, 234, 240));
    drawing::Drawing figure;
    // Shoulders, shirt and bow tie.
    figure.outline(drawing::Path("M 2 116 R 6 92 22 85 42 79 L 68 79 R 88 85 104 92 108 116 Z"), kJacket, kInk, 1.2);
    figure.outline(drawing::Path("M 44 77 L 55 104 L 66 77 Z"), kWhite, kInk, 1);
    figure.outline(drawing::Path("M 44 70 L 44 79 R 55 87 66 79 L 66 70 Z"), kSkinShade, kInk, 1);
    figure.outline(drawing::Path("M 42 78 L 36 86 L 46 108 L 52 98 Z"), kJacket, kInk, 1);
    figure.outline(drawing::Path("M 68 78 L 74 86 L 64 108 L 58 98 Z"), kJacket, kInk, 1);
    figure.outline(drawing::Path("M 55 87 L 45 82 R 43.6 87.4 45 93 Z M 55 87 L 65 82 R 66.4 87.4 65 93 Z"), kRed, kInk,
                   1);
    figure.outline(drawing::Path().circle({55, 87.4}, 2.4), kRed, kInk, 1);
    // Head.
    figure.outline(drawing::Path("O 31.6 44 28 45.6 28.6 53 33 56 36 50"), kSkinShade, kInk, 1);
    figure.outline(drawing::Path("O 78.4 44 82 45.6 81.4 53 77 56 74 50"), kSkinShade, kInk, 1);
    figure.outline(drawing::Path("O 55 18 69 21 77 33 77.6 49 73 65 63 75 55 77 47 75 37 65 32.4 49 33 33 41 21"),
                   kSkin, kInk, 1.2);
    figure.outline(drawing::Path("M 32.4 46 R 29 34 34 24 45 15.4 57 14.6 69 17.6 77 27 79.4 37 77.6 46 "
                                 "R 75 40 73.4 33 R 68 25 60 25.4 R 50 25 42 27 R 36 32 32.4 46 Z"),
                   kHair, kInk, 1);
    figure.line(drawing::Path("M 41 22 R 48 18.6 55 19 M 61 20 R 68 21.6 72.6 27 M 37 28 R 42 27 47 24"), kWhite, 0.9);
    // Eyes behind glasses, eyebrows, nose, moustache and smile.
    for (const double x : {45.4, 64.6}) {
        figure.outline(drawing::Path().circle({x, 45.6}, 7.6), kWhite, kInk, 1.3);
        figure.fill(drawing::Path().circle({x + 0.6, 46}, 2.7), base::Colour::rgb(70, 96, 120));
        figure.fill(drawing::Path().circle({x + 0.6, 46}, 1.4), kInk);
        figure.fill(drawing::Path().circle({x + 1.5, 45}, 0.8), kWhite);
        figure.line(drawing::Path().move({x - 5, 42.4}).curve({{x, 40.4}, {x + 5, 42.4}}), kInk, 1);
        figure.line(drawing::Path().move({x - 6, 35.4}).curve({{x, 32.6}, {x + 6, 35.4}}), kHair, 2.4);
        figure.fill(drawing::Path().ellipse({x < 55 ? x - 4 : x + 4, 58}, 4.4, 3), base::Colour::rgb(246, 182, 162));
    }
    figure.line(drawing::Path("M 53 45 R 55 43.8 57 45 M 37.8 44.6 L 32.6 43.4 M 72.2 44.6 L 77.4 43.4"), kInk, 1.3);
    figure.line(drawing::Path("M 54 48 R 51.4 54.4 51.8 57 55 58.6 58 57"), kInk, 1);
    figure.outline(drawing::Path("M 47 65.4 R 55 68.4 63 65.4 R 60.6 71.8 55 72 R 49.4 71.8 47 65.4 Z"), kWhite, kInk,
                   1);
    figure.outline(drawing::Path("M 55 60.4 R 47 60 41.4 66.4 R 49 67 55 64.4 R 61 67 68.6 66.4 R 63 60 55 60.4 Z"),
                   kHair, kInk, 0.9);
    // A hand of cards.
    constexpr drawing::Suit kFan[] = {drawing::Suit::Schoppen, drawing::Suit::Harten, drawing::Suit::Klaveren,
                                      drawing::Suit::Ruiten};
    for (int i = 0; i < 4; ++i) {
        const double degrees = -34 + i * 20;
        add_card(figure, drawing::Transform::turn(degrees, {86, 112})({86, 88}), 27, degrees, kFan[i]);
    }
    figure.outline(drawing::Path("O 77 101 84 98 92 99 95 104 92 111 80 111 76 107"), kSkin, kInk, 1);
    figure.line(drawing::Path("M 79 102.6 R 85 101.4 91 103 M 78.6 106 R 85 105 91.4 106.6"), kInk, 0.8);
    maker.add(figure.cut({{1, 0}, {1, 0}}).cut({{109, 0}, {-1, 0}}).cut({{0, 109}, {0, -1}}));
    maker.line(drawing::Path().rectangle(1, 1, 108, 108), kNavy, 2);
    return maker;
}

drawing::Drawing draw_error_face(Eyes eyes) {
    constexpr base::Colour kYellow = base::Colour::rgb(252, 208, 72);
    constexpr base::Colour kShade = base::Colour::rgb(234, 170, 40);
    constexpr base::Colour kMouth = base::Colour::rgb(126, 34, 34);
    drawing::Drawing face{140, 128, {}};
    face.outline(drawing::Path().circle({70, 64}, 60), kShade, kInk, 2);
    face.fill(drawing::Path().ellipse({68, 61}, 55, 54.6), kYellow);
    face.fill(drawing::Path().ellipse({48, 27}, 17, 8).transformed(drawing::Transform::turn(-32, {48, 27})),
              base::Colour::rgb(255, 232, 150));
    // Brows drawn up in the middle, mouth turned down: surprised and rather sad.
    face.fill(drawing::taper(drawing::Path("M 31 36 R 40 27.6 54 24.4"), 3, 5.4), kInk);
    face.fill(drawing::taper(drawing::Path("M 109 36 R 100 27.6 86 24.4"), 3, 5.4), kInk);
    for (const double x : {48.0, 92.0}) {
        if (eyes == Eyes::Open) {
            face.outline(drawing::Path().ellipse({x, 53}, 13, 16), kWhite, kInk, 1.6);
            face.fill(drawing::Path().circle({x + (x < 70 ? 2 : -2), 55}, 7), base::Colour::rgb(62, 104, 148));
            face.fill(drawing::Path().circle({x + (x < 70 ? 2 : -2), 55}, 3.8), kInk);
            face.fill(drawing::Path().circle({x + (x < 70 ? 4.4 : 0.4), 51.6}, 2), kWhite);
        } else {
            face.fill(drawing::Path().ellipse({x, 53}, 13, 16), kShade);
            face.line(drawing::Path().move({x - 13, 55}).curve({{x, 61}, {x + 13, 55}}), kInk, 2.6);
            for (const double lash : {-8.0, 0.0, 8.0}) {
                face.line(drawing::Path()
                              .move({x + lash, lash == 0 ? 61.0 : 59.6})
                              .line({x + lash * 1.3, lash == 0 ? 66.0 : 64.0}),
                          kInk, 1.8);
            }
        }
    }
    face.fill(drawing::Path().ellipse({31, 78}, 9, 5.6), base::Colour::rgb(246, 162, 84));
    face.fill(drawing::Path().ellipse({109, 78}, 9, 5.6), base::Colour::rgb(246, 162, 84));
    face.outline(drawing::Path("M 48 102 C 50 78 90 78 92 102 C 84 94 56 94 48 102 Z"), kMouth, kInk, 1.8);
    face.fill(drawing::Path("M 58 88 C 64 83.4 76 83.4 82 88 L 80 90.4 C 74 87.4 66 87.4 60 90.4 Z"), kWhite);
    face.line(drawing::Path("M 62 110 R 70 107.4 78 110"), kShade, 2.4);
    return face;
}

drawing::Drawing draw_marker_text() {
    constexpr base::Colour kGreen = base::Colour::rgb(28, 132, 62);
    drawing::Drawing marker{30, 30, {}};
    marker.outline(drawing::Path("M 5 2 L 19 2 L 25 8 L 25 28 L 5 28 Z"), base::Colour::rgb(214, 244, 218), kGreen, 2);
    marker.outline(drawing::Path("M 19 2 L 19 8 L 25 8 Z"), kGreen, kGreen, 1);
    return marker.line(drawing::Path("M 9 13 L 21 13 M 9 18 L 21 18 M 9 23 L 16 23"), kGreen, 2);
}

drawing::Drawing draw_marker_empty() {
    constexpr base::Colour kGrey = base::Colour::rgb(150, 150, 156);
    drawing::Drawing marker{30, 30, {}};
    marker.outline(drawing::Path().circle({15, 15}, 10.5), base::Colour::rgb(244, 244, 246), kGrey, 2.4);
    return marker.line(drawing::Path("M 7.6 22.4 L 22.4 7.6"), kGrey, 2.4);
}

drawing::Drawing draw_marker_busy() {
    constexpr base::Colour kOrange = base::Colour::rgb(240, 130, 20);
    constexpr base::Colour kBrown = base::Colour::rgb(120, 62, 10);
    drawing::Drawing pencil;
    pencil.outline(drawing::Path("M 11.5 3 L 18.5 3 L 18.5 20 L 15 28 L 11.5 20 Z"), kOrange, kBrown, 1.4);
    pencil.fill(drawing::Path("M 12 20 L 18 20 L 15 27 Z"), base::Colour::rgb(250, 222, 178));
    pencil.fill(drawing::Path("M 13.9 24.6 L 16.1 24.6 L 15 27.4 Z"), kInk);
    pencil.outline(drawing::Path("M 11.5 1.4 L 18.5 1.4 L 18.5 6 L 11.5 6 Z"), base::Colour::rgb(230, 90, 100), kBrown,
                   1.4);
    pencil.line(drawing::Path("M 15 8 L 15 19"), kBrown, 1);
    drawing::Drawing marker{30, 30, {}};
    return marker.add(pencil, drawing::Transform::turn(40, {15, 15}));
}

}  // namespace resources
