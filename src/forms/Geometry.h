#pragma once

namespace forms {

// Positions and sizes are twips, 1/1440 inch; a pixel at 96 dpi is 15 of them.
inline constexpr double kTwipsPerPixel = 15;

struct Size {
    double width = 0;
    double height = 0;
};

struct Rect {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

}  // namespace forms
