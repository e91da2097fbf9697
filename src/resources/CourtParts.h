#pragma once

#include "resources/Drawing.h"
#include "resources/SuitShapes.h"

// The parts that court figures are made of. Every part is drawn onto the upper half of a panel of 64 by 136 pixels
// whose centre is (32, 68): the head around (32, 29), the shoulders from y = 46 down, the hand that holds something
// around (52, 53). Garments reach past the panel; the whole is cut at its edges afterwards.
namespace resources {

enum class Court { Boer, Vrouw, Heer };

// The shades of a suit's figures.
struct CourtShades {
    Colour main;
    Colour dark;
    Colour light;
};

struct CourtLook;
using CourtPart = void (*)(Drawing& drawing, const CourtLook& look);

// What makes one figure.
struct CourtLook {
    Suit suit;
    Court court;
    bool looks_left;
    Colour hair_colour;
    CourtPart hair;   // behind the garment
    CourtPart locks;  // over the garment; may be null
    CourtPart beard;  // may be null
    CourtPart hat;
    CourtPart held;
};

const CourtShades& court_shades(Suit suit);

inline constexpr Colour kInk = Colour::rgb(34, 26, 30);
inline constexpr Colour kGold = Colour::rgb(238, 186, 62);
inline constexpr Colour kDarkGold = Colour::rgb(176, 120, 24);
inline constexpr Colour kSkin = Colour::rgb(252, 222, 196);
inline constexpr Colour kSkinShade = Colour::rgb(236, 190, 158);
inline constexpr Colour kLips = Colour::rgb(188, 46, 48);
inline constexpr Colour kWhite = Colour::rgb(255, 255, 255);
inline constexpr Colour kSteel = Colour::rgb(206, 212, 220);
inline constexpr Colour kWood = Colour::rgb(134, 88, 48);
inline constexpr double kInkWidth = 0.7;

// A filled part with the outline that all parts have.
void ink(Drawing& drawing, const Path& path, Colour colour);

void court_face(Drawing& drawing, const CourtLook& look);

void hair_shoulder_curls(Drawing& drawing, const CourtLook& look);
void hair_bob(Drawing& drawing, const CourtLook& look);
void hair_waves(Drawing& drawing, const CourtLook& look);
void hair_veil(Drawing& drawing, const CourtLook& look);
void hair_pinned(Drawing& drawing, const CourtLook& look);
void locks_waves(Drawing& drawing, const CourtLook& look);
void locks_braids(Drawing& drawing, const CourtLook& look);
void locks_fringe(Drawing& drawing, const CourtLook& look);

void beard_long(Drawing& drawing, const CourtLook& look);
void beard_curly(Drawing& drawing, const CourtLook& look);
void beard_pointed(Drawing& drawing, const CourtLook& look);
void beard_forked(Drawing& drawing, const CourtLook& look);
void beard_moustache(Drawing& drawing, const CourtLook& look);

void hat_spiked_crown(Drawing& drawing, const CourtLook& look);
void hat_arched_crown(Drawing& drawing, const CourtLook& look);
void hat_lozenge_crown(Drawing& drawing, const CourtLook& look);
void hat_trefoil_crown(Drawing& drawing, const CourtLook& look);
void hat_diadem(Drawing& drawing, const CourtLook& look);
void hat_heart_roll(Drawing& drawing, const CourtLook& look);
void hat_plumed_band(Drawing& drawing, const CourtLook& look);
void hat_coronet(Drawing& drawing, const CourtLook& look);
void hat_beret(Drawing& drawing, const CourtLook& look);
void hat_peaked_cap(Drawing& drawing, const CourtLook& look);
void hat_tall(Drawing& drawing, const CourtLook& look);
void hat_helmet(Drawing& drawing, const CourtLook& look);

void garment_king(Drawing& drawing, const CourtLook& look);
void garment_queen(Drawing& drawing, const CourtLook& look);
void garment_jack(Drawing& drawing, const CourtLook& look);

void held_sword(Drawing& drawing, const CourtLook& look);
void held_sceptre(Drawing& drawing, const CourtLook& look);
void held_axe(Drawing& drawing, const CourtLook& look);
void held_orb(Drawing& drawing, const CourtLook& look);
void held_tulip(Drawing& drawing, const CourtLook& look);
void held_rose(Drawing& drawing, const CourtLook& look);
void held_fan(Drawing& drawing, const CourtLook& look);
void held_mirror(Drawing& drawing, const CourtLook& look);
void held_halberd(Drawing& drawing, const CourtLook& look);
void held_horn(Drawing& drawing, const CourtLook& look);
void held_bow(Drawing& drawing, const CourtLook& look);
void held_pennant(Drawing& drawing, const CourtLook& look);

}  // namespace resources
