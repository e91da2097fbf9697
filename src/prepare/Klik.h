#pragma once

#include <array>

#include "cards/Kaart.h"

namespace prepare {

// In what the click on a card differs from suit to suit and seat to seat. All of it is meant, the odd ones too.
struct Klik {
    cards::Kleur kleur;
    int plaats;
    const char* plaats_van_klik;      // the place string
    int terug_kolom;                  // column whose cell loses its text when the card is taken back
    resources::Bericht terug_letter;  // what lstKlaar.Tag then gets
    bool eerst_vast;     // a fixed opening lead refuses every card that is not green, not just the light-blue ones
    const char* klaver;  // what a club lead is compared with in the test of following suit
    bool even_blauw;     // the label is blue for a moment before the card is played
};

inline constexpr const char* kNooit = "LeesResString(37)";  // equals no suit letter

using enum cards::Kleur;
using resources::Bericht;

inline constexpr std::array<Klik, 16> kKlikken{{
    // Taking back a heart sets the suit letter, which is no seat: from then on every card is refused. At Zuid it is
    // West's cell that is emptied.
    {Harten, 1, "frmTavrin03 - lblHartenNoord - Click", 1, Bericht::LetterHarten, true, "K", false},
    {Harten, 2, "frmTavrin03 - lblHartenOost - Click", 2, Bericht::LetterHarten, true, "K", false},
    {Harten, 3, "frmTavrin03 - lblHartenZuid - Click", 4, Bericht::LetterHarten, true, "K", false},
    {Harten, 4, "frmTavrin03 - lblHartenWest - Click", 4, Bericht::LetterHarten, true, "K", false},
    {Klaveren, 1, "frmTavrin03 - lblKlaverenNoord - Click", 1, Bericht::LetterNoord, false, "K", false},
    {Klaveren, 2, "frmTavrin03 - lblKlaverenOost - Click", 2, Bericht::LetterOost, false, "K", false},
    {Klaveren, 3, "frmTavrin03 - lblKlaverenZuid - Click", 3, Bericht::LetterZuid, false, "K", false},
    {Klaveren, 4, "frmTavrin03 - lblKlaverenWest - Click", 4, Bericht::LetterWest, false, "K", false},
    {Ruiten, 1, "frmTavrin03 - lblRuitenNoord - Click", 1, Bericht::LetterNoord, false, "K", false},
    {Ruiten, 2, "frmTavrin03 - lblRuitenOost - Click", 2, Bericht::LetterOost, false, "K", false},
    {Ruiten, 3, "frmTavrin03 - lblRuitenZuid - Click", 3, Bericht::LetterZuid, false, "K", false},
    {Ruiten, 4, "frmTavrin03 - lblRuitenWest - Click", 4, Bericht::LetterWest, false, kNooit,
     false},  // West may always play a diamond on a club
    {Schoppen, 1, "frmTavrin03 - lblSchoppenNoord - Click", 1, Bericht::LetterNoord, false, "K", false},
    {Schoppen, 2, "frmTavrin03 - lblSchoppenOost - Click", 2, Bericht::LetterOost, false, "S",
     false},  // Oost may always play a spade on a club
    {Schoppen, 3, "frmTavrin03 - lblSchoppenZuid - Click", 3, Bericht::LetterZuid, false, "K", false},
    {Schoppen, 4, "frmTavrin03 - lblSchoppenWest - Click", 4, Bericht::LetterWest, false, "K", true},
}};

}  // namespace prepare
