#pragma once

#include "base/Colour.h"

// The colours of the screens. Those of the cards' state in the preparation stand with their meaning in
// prepare/KaartLabels.h, those of widgets in desktop/Colours.h.
namespace services::kleuren {

inline constexpr base::Colour kZwart{0};
inline constexpr base::Colour kWit = base::Colour::rgb(255, 255, 255);
// Of Harten and Ruiten, and of warnings. On white it has a contrast of 4.0 only: words in it are bold.
inline constexpr base::Colour kRood = base::Colour::rgb(255, 0, 0);
inline constexpr base::Colour kGroen = base::Colour::rgb(0, 128, 0);
inline constexpr base::Colour kBlauw = base::Colour::rgb(0, 0, 255);
inline constexpr base::Colour kTafelgroen = base::Colour::rgb(24, 96, 60);
inline constexpr base::Colour kOpTafel = base::Colour::rgb(176, 212, 190);  // the seats' names on it
inline constexpr base::Colour kPapier = base::Colour::rgb(252, 250, 240);   // of boxes on the table
inline constexpr base::Colour kVoorbeeldBlauw = base::Colour::rgb(0, 0, 192);

}  // namespace services::kleuren
