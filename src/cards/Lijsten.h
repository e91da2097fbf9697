#pragma once

#include <string>

#include "cards/PerKleur.h"
#include "forms/ControlArray.h"
#include "forms/ListBox.h"

namespace cards {

// A sorted string list for each suit, named by a prefix and the suit.
PerKleur<forms::ListBox> sorted_lists_by_suit(forms::Container& screen, const std::string& prefix);

// The play rows of a deal and the hands that come out of them: string lists that two screens have. A seat that is none
// is failure 340, as in any array of controls.
struct HandLijsten {
    explicit HandLijsten(forms::Container& screen);

    using PerHand = forms::ControlArray<forms::ListBox>;  // by seat, 1 to 4, sorted

    forms::ListBox lstAfTavrin;
    PerHand lstHand;
    PerKleur<PerHand> lstKleur;  // lstSchoppen, lstHarten, lstRuiten, lstKlaveren
    forms::ListBox lstKaarten;   // value words by card number; item 0 is a placeholder

    // Fills lstKaarten: an empty item, then the thirteen value words four times.
    void vul_kaarten();
};

}  // namespace cards
