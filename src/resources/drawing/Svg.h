#pragma once

#include <string>

#include "resources/drawing/Drawing.h"

namespace resources::drawing {

// The drawing as a <symbol> of SVG under that id. It is as wide as the drawing has tenths of a pixel, and all places in
// it are whole tenths. Shapes that come once more, turned by half around the middle, are written once.
std::string svg_symbol(const Drawing& drawing, const std::string& id);

}  // namespace resources::drawing
