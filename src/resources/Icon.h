#pragma once

#include "resources/drawing/Drawing.h"

namespace resources {

// The application icon: one group of ten images, each of these sizes (pixels) at each of these depths (bits).
inline constexpr int kIconSizes[] = {256, 48, 32, 24, 16};
inline constexpr int kIconDepths[] = {8, 32};

// The icon of one of those sizes; small ones hold less. Failure 326 for any other size.
drawing::Drawing draw_icon(int size);

// The nearest colour of the palette of the 8-bit images: six even steps of red, green and blue. The host applies it
// to each pixel that it has painted.
base::Colour icon_palette_colour(base::Colour colour);

}  // namespace resources
