#pragma once

#include "cards/PerKleur.h"
#include "cards/PerPlaats.h"
#include "forms/ControlArray.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"

namespace prepare {

// The colour of a card label is the recording's only record of a card's state.
inline constexpr base::Colour kInHand{0xFFFFFF};
inline constexpr base::Colour kInSlag{0xFFC0C0};    // light blue: lies in the running trick
inline constexpr base::Colour kGespeeld{0x00FF00};  // green: belongs to a closed trick
inline constexpr base::Colour kEvenBlauw{0xFF0000};
inline constexpr base::Colour kUitkomstVanPakket{0x80FF80};  // light green

// Cards of a suit that a seat can hold: the labels 0 to 12 of an array.
inline constexpr int kHoogste = cards::kKaartenPerKleur - 1;

// The four hands: a frame a seat, and in it four rows of thirteen labels, lblSchoppenNoord to lblKlaverenWest.
struct KaartLabels {
    using Rij = forms::ControlArray<forms::Label>;

    explicit KaartLabels(forms::Container& screen);

    // A seat that is none is failure 9.
    cards::PerPlaats<forms::Frame> fra;                        // fraNoord to fraWest
    cards::PerPlaats<cards::PerKleur<forms::PictureBox>> pic;  // picSN, picHN and so on: the symbols before the rows
    cards::PerPlaats<cards::PerKleur<Rij>> lbl;

    Rij& rij(int plaats, cards::Kleur kleur) { return lbl(plaats)(kleur); }

    // Makes the elements 1 to 12 and places the rows.
    void maak_rijen();

    // Does something with every row: seats Noord, Oost, Zuid, West, and within a seat Schoppen, Harten, Ruiten,
    // Klaveren.
    template <class Action>
    void elke_rij(Action action) {
        for (const int plaats : cards::kPlaatsen) {
            for (const cards::Kleur kleur : cards::kKleuren)
                action(rij(plaats, kleur));
        }
    }
    template <class Action>
    void elk_label(Action action) {
        elke_rij([&](Rij& rij) {
            for (int i = 0; i <= kHoogste; ++i)
                action(rij(i));
        });
    }
};

}  // namespace prepare
