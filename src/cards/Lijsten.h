#pragma once

#include "cards/Kaart.h"
#include "forms/ControlArray.h"
#include "forms/ListBox.h"

// String lists that more than one screen owns.

// The play rows of a deal and the hands that come out of them, for a screen to derive from.
struct HandLijsten {
    explicit HandLijsten(forms::Container& screen);

    forms::ListBox lstAfTavrin;
    forms::ControlArray<forms::ListBox> lstHand;  // by seat, 1 to 4, sorted, as those below
    forms::ControlArray<forms::ListBox> lstSchoppen;
    forms::ControlArray<forms::ListBox> lstHarten;
    forms::ControlArray<forms::ListBox> lstRuiten;
    forms::ControlArray<forms::ListBox> lstKlaveren;
    forms::ListBox lstKaarten;  // value words by card number; item 0 is a placeholder

    forms::ListBox& suit(kaart::Kleur kleur, int plaats);
    // Fills lstKaarten: an empty item, then the thirteen value words four times.
    void vul_kaarten();
};
