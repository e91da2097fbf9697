#include "forms/TextBox.h"

#include <algorithm>
#include <limits>

#include "forms/TextMeasure.h"

namespace forms {

const std::vector<std::size_t>& TextBox::lines() const {
    if (wrap_.width != Width() || wrap_.points != FontSize()) {
        wrap_ = {Width, FontSize, box_lines(Text(), Width, FontSize)};
    }
    return wrap_.lines;
}

int TextBox::LineCount() const { return static_cast<int>(lines().size()); }

int TextBox::LineIndex(int line) const {
    if (line < 0 || line >= LineCount()) return -1;
    return static_cast<int>(lines()[static_cast<std::size_t>(line)]);
}

void TextBox::user_type(const std::string& typed) {
    const std::string& old = Text();
    const auto start = std::min(static_cast<std::size_t>(SelStart()), old.size());
    const auto length = std::min(static_cast<std::size_t>(SelLength()), old.size() - start);
    const std::size_t kept = old.size() - length;
    const auto most = MaxLength > 0 ? static_cast<std::size_t>(MaxLength()) : std::numeric_limits<std::size_t>::max();
    const std::string added = accepted(typed, most > kept ? most - kept : 0);
    if (added.empty() && !typed.empty()) return;
    assign_text(old.substr(0, start) + added + old.substr(start + length));
    SelStart = static_cast<int>(start + added.size());
    SelLength = 0;
}

std::string TextBox::accepted(const std::string& typed, std::size_t room) const {
    std::string result;
    for (std::size_t at = 0; at < typed.size(); ++at) {
        char key = typed[at];
        const bool line_break = key == '\n' || (key == '\r' && at + 1 < typed.size() && typed[at + 1] == '\n');
        if (key == '\r' && line_break) ++at;
        if (line_break) key = '\r';
        if (KeyPress) KeyPress(key);
        if (key == 0) continue;
        if (line_break && !MultiLine) continue;
        const std::string added = line_break ? "\r\n" : std::string(1, key);
        if (result.size() + added.size() > room) break;
        result += added;
    }
    return result;
}

void TextBox::assign_text(const std::string& text) {
    if (text == Text()) return;
    SelStart = 0;
    SelLength = 0;
    Text.store(text);
    wrap_.width = -1;
    if (Change) Change();
}

}  // namespace forms
