#pragma once

namespace forms {

// Positions and sizes are twips, 1/1440 inch; a pixel at 96 dpi is 15 of them.
inline constexpr double kTwipsPerPixel = 15;

// Half of it in whole twips: what stands in the middle of something never lies between two of them.
constexpr int half(double twips) { return static_cast<int>(twips) / 2; }

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
