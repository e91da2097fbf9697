#pragma once

#include <string_view>

#include "resources/drawing/Path.h"

namespace resources::drawing {

// The system's own lettering, so that no picture hangs on an installed font. It has the characters that the pictures
// need: 0-9, A B H L S V Z and the lower-case letters of the two words of the logo.

// A text with its left edge at x = 0, capitals and digits from y = 0 down to y = height. A blank is a third of the
// height wide; any other character that has no shape throws std::invalid_argument.
Path text_path(std::string_view text, double height);

// The place right of the last character of that text.
double text_width(std::string_view text, double height);

}  // namespace resources::drawing
