#pragma once

#include "resources/drawing/Path.h"

namespace resources::drawing {

// Outlines of lines whose width changes along the way. All run in the same direction, so that several of them in one
// path make one area under FillRule::NonZero.

// A pen that writes upright strokes `thick` and level ones `thin`, as in a book face.
Path pen_stroke(const Path& skeleton, double thin, double thick);

// A line that goes evenly from one width to another.
Path taper(const Path& skeleton, double first_width, double last_width);

// A line that is pointed at both ends and `widest` in its middle.
Path swell(const Path& skeleton, double widest);

}  // namespace resources::drawing
