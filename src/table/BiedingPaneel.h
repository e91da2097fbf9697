#pragma once

#include <array>

#include "forms/ControlArray.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"

// The bidding box: for each seat nine rounds of bid, strain picture and annotation mark. Two screens derive from it.
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

    // By seat, 0 Noord to 3 West; each an array 0 to 8.
    std::array<forms::ControlArray<forms::Label>, 4> lblB;       // lblBN, lblBO, lblBZ, lblBW: the bid
    std::array<forms::ControlArray<forms::PictureBox>, 4> picB;  // picBN and so on: its strain
    std::array<forms::ControlArray<forms::Label>, 4> lblA;       // lblAN and so on: the mark beside it
};
