#include "forms/Label.h"

#include <algorithm>
#include <utility>

#include "forms/TextMeasure.h"

namespace forms {

std::string property_text(Alignment value) { return std::to_string(static_cast<int>(value)); }

Label::Label(Container& container, std::string name, const Rect& place, int index)
    : Control(container, std::move(name), place, index) {}

void Label::fit() {
    if (!AutoSize) return;
    const Font font{FontSize, FontBold};
    double widest = 0;
    double lines = 0;
    for (const std::string& line : hard_lines(Caption())) {
        widest = std::max(widest, text_width(line, font));
        ++lines;
    }
    Width = widest;
    Height = lines * line_height(font);
}

}  // namespace forms
