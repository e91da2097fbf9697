#include "resources/faces/CourtCards.h"

#include <algorithm>

namespace resources::faces {

namespace {

constexpr drawing::Point kCentre{kCourtPanelWidth / 2, kCourtPanelHeight / 2};
constexpr drawing::Point kSeam{64, -10};  // the two halves meet along this direction
constexpr base::Colour kPanelGround = base::Colour::rgb(255, 251, 240);

constexpr base::Colour kGrey = base::Colour::rgb(196, 198, 204);
constexpr base::Colour kChestnut = base::Colour::rgb(126, 72, 34);
constexpr base::Colour kBlond = base::Colour::rgb(236, 190, 92);
constexpr base::Colour kRaven = base::Colour::rgb(48, 40, 46);
constexpr base::Colour kCopper = base::Colour::rgb(190, 92, 36);

const CourtLook& court_look(drawing::Suit suit, Court court) {
    using enum drawing::Suit;
    using enum Court;
    static const CourtLook kLooks[] = {
        {Schoppen, Boer, true, kChestnut, hair_bob, locks_fringe, beard_moustache, hat_beret, held_halberd},
        {Schoppen, Vrouw, false, kRaven, hair_veil, nullptr, nullptr, hat_diadem, held_tulip},
        {Schoppen, Heer, false, kGrey, hair_shoulder_curls, nullptr, beard_long, hat_spiked_crown, held_sword},
        {Harten, Boer, false, kBlond, hair_bob, locks_fringe, nullptr, hat_peaked_cap, held_horn},
        {Harten, Vrouw, true, kBlond, hair_waves, locks_waves, nullptr, hat_heart_roll, held_rose},
        {Harten, Heer, true, kChestnut, hair_shoulder_curls, nullptr, beard_curly, hat_arched_crown, held_sceptre},
        {Ruiten, Boer, true, kCopper, hair_shoulder_curls, locks_fringe, nullptr, hat_tall, held_bow},
        {Ruiten, Vrouw, false, kCopper, hair_pinned, nullptr, nullptr, hat_plumed_band, held_fan},
        {Ruiten, Heer, false, kRaven, hair_bob, nullptr, beard_pointed, hat_lozenge_crown, held_axe},
        {Klaveren, Boer, false, kRaven, hair_bob, nullptr, nullptr, hat_helmet, held_pennant},
        {Klaveren, Vrouw, true, kChestnut, hair_pinned, locks_braids, nullptr, hat_coronet, held_mirror},
        {Klaveren, Heer, true, kRaven, hair_shoulder_curls, nullptr, beard_forked, hat_trefoil_crown, held_orb},
    };
    return *std::find_if(std::begin(kLooks), std::end(kLooks),
                         [&](const CourtLook& look) { return look.suit == suit && look.court == court; });
}

// The forearm that comes up from behind the sash, its cuff, and the hand closed around what it holds.
void add_arm(drawing::Drawing& drawing, const CourtLook& look) {
    const CourtShades& shades = court_shades(look.suit);
    const bool rich = look.court == Court::Heer || (look.court == Court::Boer && look.suit > drawing::Suit::Harten);
    ink(drawing, drawing::Path("M 36 80 R 38 66 46 58 L 57 60 R 60 68 56 80 Z"), rich ? shades.dark : shades.main);
    drawing.line(drawing::Path("M 41 68 R 44 63 48 61.4 M 45.4 71 R 48 65.6 52.4 62.6"), rich ? shades.light : kInk,
                 0.5);
    ink(drawing, drawing::Path("M 45 58.8 L 47 55.2 R 52 55 57.6 57 L 57.4 61.4 R 51 59.4 45 58.8 Z"),
        rich ? kGold : kWhite);
    ink(drawing, drawing::Path("O 48.4 49 52 48 55.4 49.4 56.6 53 55.8 56.4 51.6 57 48 56 47.2 52.4"), kSkin);
    drawing.line(
        drawing::Path("M 48.4 51.2 R 51 50.6 54 51.4 M 48.2 53.2 R 51 52.6 54.4 53.4 M 48.6 55 R 51 54.6 54 55.2"),
        kInk, 0.5);
}

drawing::Drawing upper_half(const CourtLook& look) {
    static constexpr CourtPart kGarments[] = {garment_jack, garment_queen, garment_king};
    drawing::Drawing half;
    look.hair(half, look);
    kGarments[static_cast<int>(look.court)](half, look);
    if (look.locks && look.court == Court::Vrouw) look.locks(half, look);
    court_face(half, look);
    if (look.locks && look.court != Court::Vrouw) look.locks(half, look);
    if (look.beard) look.beard(half, look);
    look.hat(half, look);
    // Held a little smaller and higher, so that the cuff shows between the hand and the sash.
    drawing::Drawing held;
    look.held(held, look);
    half.add(held, {0.93, 0, 0, 0.93, 52 * 0.07, 57 * 0.07 - 4});
    add_arm(half, look);
    half.fill(drawing::suit_path(look.suit, {9, 10}, 12), drawing::suit_colour(look.suit));
    return half.cut({kCentre, {kSeam.y, -kSeam.x}}).cut({{0.5, 0}, {1, 0}}).cut({{kCourtPanelWidth - 0.5, 0}, {-1, 0}});
}

// The sash over the seam, itself point-symmetric.
void add_sash(drawing::Drawing& drawing, const CourtShades& shades) {
    const drawing::Point along = kSeam * (1 / drawing::length(kSeam));
    const drawing::Point across{-along.y, along.x};
    const auto strip = [&](double half_width) {
        return drawing::Path().polygon({kCentre - kSeam + across * half_width, kCentre + kSeam + across * half_width,
                                        kCentre + kSeam - across * half_width, kCentre - kSeam - across * half_width});
    };
    drawing::Drawing sash;
    ink(sash, strip(3.6), kGold);
    sash.outline(strip(2.3), shades.dark, kInk, 0.4);
    for (int place = -4; place <= 4; ++place) {
        const drawing::Point at = kCentre + along * (place * 7.4);
        if (place % 2 == 0) {
            sash.fill(
                drawing::Path().polygon({at - along * 2.6, at - across * 1.7, at + along * 2.6, at + across * 1.7}),
                kGold);
        } else {
            sash.fill(drawing::Path().circle(at, 1), kWhite);
        }
    }
    drawing.add(sash.cut({{0.5, 0}, {1, 0}}).cut({{kCourtPanelWidth - 0.5, 0}, {-1, 0}}));
}

}  // namespace

const CourtShades& court_shades(drawing::Suit suit) {
    static constexpr CourtShades kShades[] = {
        {base::Colour::rgb(44, 66, 136), base::Colour::rgb(22, 28, 62), base::Colour::rgb(182, 202, 236)},
        {base::Colour::rgb(206, 24, 40), base::Colour::rgb(112, 10, 28), base::Colour::rgb(250, 204, 190)},
        {base::Colour::rgb(226, 84, 30), base::Colour::rgb(132, 36, 14), base::Colour::rgb(254, 220, 168)},
        {base::Colour::rgb(40, 88, 78), base::Colour::rgb(18, 36, 36), base::Colour::rgb(186, 218, 196)},
    };
    return kShades[static_cast<int>(suit)];
}

drawing::Drawing court_panel(drawing::Suit suit, Court court) {
    const CourtLook& look = court_look(suit, court);
    const drawing::Drawing half = upper_half(look);
    drawing::Drawing panel{kCourtPanelWidth, kCourtPanelHeight, {}};
    panel.fill(drawing::Path().rectangle(0.5, 0.5, kCourtPanelWidth - 1, kCourtPanelHeight - 1), kPanelGround);
    panel.add(half).add(half, drawing::Transform::turn(180, kCentre));
    add_sash(panel, court_shades(suit));
    panel.line(drawing::Path().rectangle(0.5, 0.5, kCourtPanelWidth - 1, kCourtPanelHeight - 1),
               court_shades(suit).dark, 1);
    return panel;
}

}  // namespace resources::faces
