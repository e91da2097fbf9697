#pragma once

#include "resources/drawing/Drawing.h"
#include "resources/drawing/SuitShapes.h"

// The parts that court figures are made of. Every part is drawn onto the upper half of a panel of 64 by 136 pixels
// whose centre is (32, 68): the head around (32, 29), the shoulders from y = 46 down, the hand that holds something
// around (52, 53). Garments reach past the panel; the whole is cut at its edges afterwards.
namespace resources::faces {

enum class Court { Boer, Vrouw, Heer };

// The shades of a suit's figures.
struct CourtShades {
    base::Colour main;
    base::Colour dark;
    base::Colour light;
};

struct CourtLook;
using CourtPart = void (*)(drawing::Drawing& drawing, const CourtLook& look);

// What makes one figure.
struct CourtLook {
    drawing::Suit suit;
    Court court;
    bool looks_left;
    base::Colour hair_colour;
    CourtPart hair;   // behind the garment
    CourtPart locks;  // over the garment; may be null
    CourtPart beard;  // may be null
    CourtPart hat;
    CourtPart held;
};

const CourtShades& court_shades(drawing::Suit suit);

inline constexpr base::Colour kInk = base::Colour::rgb(34, 26, 30);
inline constexpr base::Colour kGold = base::Colour::rgb(238, 186, 62);
inline constexpr base::Colour kDarkGold = base::Colour::rgb(176, 120, 24);
inline constexpr base::Colour kSkin = base::Colour::rgb(252, 222, 196);
inline constexpr base::Colour kSkinShade = base::Colour::rgb(236, 190, 158);
inline constexpr base::Colour kLips = base::Colour::rgb(188, 46, 48);
inline constexpr base::Colour kWhite = base::Colour::rgb(255, 255, 255);
inline constexpr base::Colour kSteel = base::Colour::rgb(206, 212, 220);
inline constexpr base::Colour kWood = base::Colour::rgb(134, 88, 48);
inline constexpr double kInkWidth = 0.7;

// A filled part with the outline that all parts have.
void ink(drawing::Drawing& drawing, const drawing::Path& path, base::Colour colour);

void court_face(drawing::Drawing& drawing, const CourtLook& look);

void hair_shoulder_curls(drawing::Drawing& drawing, const CourtLook& look);
void hair_bob(drawing::Drawing& drawing, const CourtLook& look);
void hair_waves(drawing::Drawing& drawing, const CourtLook& look);
void hair_veil(drawing::Drawing& drawing, const CourtLook& look);
void hair_pinned(drawing::Drawing& drawing, const CourtLook& look);
void locks_waves(drawing::Drawing& drawing, const CourtLook& look);
void locks_braids(drawing::Drawing& drawing, const CourtLook& look);
void locks_fringe(drawing::Drawing& drawing, const CourtLook& look);

void beard_long(drawing::Drawing& drawing, const CourtLook& look);
void beard_curly(drawing::Drawing& drawing, const CourtLook& look);
void beard_pointed(drawing::Drawing& drawing, const CourtLook& look);
void beard_forked(drawing::Drawing& drawing, const CourtLook& look);
void beard_moustache(drawing::Drawing& drawing, const CourtLook& look);

void hat_spiked_crown(drawing::Drawing& drawing, const CourtLook& look);
void hat_arched_crown(drawing::Drawing& drawing, const CourtLook& look);
void hat_lozenge_crown(drawing::Drawing& drawing, const CourtLook& look);
void hat_trefoil_crown(drawing::Drawing& drawing, const CourtLook& look);
void hat_diadem(drawing::Drawing& drawing, const CourtLook& look);
void hat_heart_roll(drawing::Drawing& drawing, const CourtLook& look);
void hat_plumed_band(drawing::Drawing& drawing, const CourtLook& look);
void hat_coronet(drawing::Drawing& drawing, const CourtLook& look);
void hat_beret(drawing::Drawing& drawing, const CourtLook& look);
void hat_peaked_cap(drawing::Drawing& drawing, const CourtLook& look);
void hat_tall(drawing::Drawing& drawing, const CourtLook& look);
void hat_helmet(drawing::Drawing& drawing, const CourtLook& look);

void garment_king(drawing::Drawing& drawing, const CourtLook& look);
void garment_queen(drawing::Drawing& drawing, const CourtLook& look);
void garment_jack(drawing::Drawing& drawing, const CourtLook& look);

void held_sword(drawing::Drawing& drawing, const CourtLook& look);
void held_sceptre(drawing::Drawing& drawing, const CourtLook& look);
void held_axe(drawing::Drawing& drawing, const CourtLook& look);
void held_orb(drawing::Drawing& drawing, const CourtLook& look);
void held_tulip(drawing::Drawing& drawing, const CourtLook& look);
void held_rose(drawing::Drawing& drawing, const CourtLook& look);
void held_fan(drawing::Drawing& drawing, const CourtLook& look);
void held_mirror(drawing::Drawing& drawing, const CourtLook& look);
void held_halberd(drawing::Drawing& drawing, const CourtLook& look);
void held_horn(drawing::Drawing& drawing, const CourtLook& look);
void held_bow(drawing::Drawing& drawing, const CourtLook& look);
void held_pennant(drawing::Drawing& drawing, const CourtLook& look);

}  // namespace resources::faces
