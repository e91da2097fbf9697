#pragma once

#include <string>
#include <vector>

#include "forms/Label.h"

namespace desktop::views {

// A line of a label as it can be seen; sizes are twips.
struct LabelLine {
    std::string text;   // with its accelerator mark
    double indent = 0;  // from the label's left edge
    double width = 0;
    double scale = 1;  // of its letters
    bool whole = true;
};

// The lines of a label. It breaks at blanks where there is room for a second line. A line that is too wide goes on to
// what stands next to the label; where that does not do, its letters move together, or are smaller, or its middle is
// left out. Of a line that lies behind other controls the words are left that are free.
std::vector<LabelLine> label_lines(const forms::Label& label);

}  // namespace desktop::views
