#pragma once

#include "base/Colour.h"
#include "resources/drawing/Path.h"

namespace resources::drawing {

// In the order of the card numbers.
enum class Suit { Schoppen, Harten, Ruiten, Klaveren };

// The symbol as large as fits in the square of `size` pixels around `centre`.
Path suit_path(Suit suit, Point centre, double size);

// Black or pure red.
base::Colour suit_colour(Suit suit);

}  // namespace resources::drawing
