#pragma once

#include <string_view>

#include "resources/drawing/Drawing.h"

namespace resources {

struct Size {
    int width = 0;   // pixels at 96 dpi
    int height = 0;  // pixels at 96 dpi

    friend bool operator==(Size, Size) = default;
};

// The pictures that go by number (see Plaatje): symbols of 14 by 14 pixels, the letters of no trump of 23 by 18, small
// card faces of 65 by 97, large ones and the card back of 104 by 156.
bool has_picture(int number);

// Failure 326 if the table has no such number. Every call draws anew.
drawing::Drawing draw_picture(int number);
Size picture_size(int number);

// The screens' own pictures; failure 326 for any other name:
//   "logo"                    208 by 54, opaque
//   "maker"                   110 by 110, opaque
//   "gezicht0", "gezicht1"    140 by 128, the same face with open and with closed eyes
//   "ja", "nee", "bezig"      30 by 30, the markers of a card: has a text, has none, in work
drawing::Drawing draw_named_picture(std::string_view name);

}  // namespace resources
