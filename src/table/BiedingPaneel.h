#pragma once

#include "cards/PerPlaats.h"
#include "forms/ControlArray.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"

namespace table {

// The bidding box: for each seat nine rounds of bid, strain picture and annotation mark. Two screens have it.
struct BiedingPaneel {
    // Where the columns of the seats stand in the box, twips.
    struct Kolommen {
        double eerste;
        double stap;
    };

    BiedingPaneel(forms::Container& parent, const forms::Rect& place, const Kolommen& kolommen);

    static constexpr int kRondes = 9;

    forms::Frame fraBieding;
    forms::ControlArray<forms::Label> lblNum;      // round numbers, 0 to 8
    forms::ControlArray<forms::Label> lblBieding;  // seat headings, 0 to 3

    // The rounds 0 to 8 of each seat.
    template <class T>
    using Ronden = cards::PerPlaats<forms::ControlArray<T>, base::FoutNummer::NoSuchArrayElement>;
    Ronden<forms::Label> lblB;       // lblBN, lblBO, lblBZ, lblBW: the bid
    Ronden<forms::PictureBox> picB;  // picBN and so on: its strain
    Ronden<forms::Label> lblA;       // lblAN and so on: the mark beside it
};

}  // namespace table
