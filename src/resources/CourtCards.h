#pragma once

#include "resources/CourtParts.h"

namespace resources {

inline constexpr double kCourtPanelWidth = 64;
inline constexpr double kCourtPanelHeight = 136;

// The framed panel of a court card, point-symmetric: the figure to its middle, and the same turned by 180 degrees.
Drawing court_panel(Suit suit, Court court);

}  // namespace resources
