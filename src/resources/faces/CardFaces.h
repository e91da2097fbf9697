#pragma once

#include "resources/drawing/Drawing.h"

namespace resources::faces {

// 65 by 97 and 104 by 156 pixels.
enum class CardSize { Small, Large };

// The face of a card, 1 to 52: Schoppen, Harten, Ruiten, Klaveren, each from the two up to the ace. Rank and suit
// stand in two opposite corners, narrow enough that they stay in view where cards overlap by all but 38 of 104 pixels
// to the side or all but 33 of 156 downwards (20 of 65 and of 97 for the small ones). Outside the round corners a
// card is transparent.
drawing::Drawing card_face(int card, CardSize size);

// The back of a large card.
drawing::Drawing card_back();

}  // namespace resources::faces
