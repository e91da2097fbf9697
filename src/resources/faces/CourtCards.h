#pragma once

#include "resources/faces/CourtParts.h"

namespace resources::faces {

inline constexpr double kCourtPanelWidth = 64;
inline constexpr double kCourtPanelHeight = 136;

// The framed panel of a court card, point-symmetric: the figure to its middle, and the same turned by 180 degrees.
drawing::Drawing court_panel(drawing::Suit suit, Court court);

}  // namespace resources::faces
