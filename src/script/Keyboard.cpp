#include "script/Keyboard.h"

#include <algorithm>
#include <cctype>
#include <optional>

#include "forms/Form.h"
#include "forms/TextBox.h"
#include "forms/User.h"
#include "platform/KeyLayout.h"

namespace script::keyboard {

namespace {

constexpr std::uint32_t kKeyUp = 2;
constexpr std::uint32_t kUnicode = 4;
enum Key { kBackspace = 0x08, kEnd = 0x23, kHome = 0x24, kLeft = 0x25, kRight = 0x27, kDelete = 0x2E };

forms::TextBox* focused_box(const forms::Windows& windows) {
    const forms::Form* form = windows.ended() ? nullptr : windows.active();
    auto* box = form ? dynamic_cast<forms::TextBox*>(form->focus()) : nullptr;
    return box && box->visible_to_user() && box->enabled_for_user() ? box : nullptr;
}

int text_size(const forms::TextBox& box) { return static_cast<int>(box.Text().size()); }

// Where a key takes the caret; none for a key that does not move it.
std::optional<int> moved(const forms::TextBox& box, int caret, int key) {
    int line = 0;
    while (box.LineIndex(line + 1) >= 0 && box.LineIndex(line + 1) <= caret)
        ++line;
    const int next_line = box.LineIndex(line + 1);
    switch (key) {
        case kHome:
            return box.LineIndex(line);
        case kEnd:
            return next_line < 0 ? text_size(box) : next_line - 1;
        case kLeft:
            return std::max(0, caret - 1);
        case kRight:
            return std::min(text_size(box), caret + 1);
        default:
            return {};
    }
}

void erase_with(forms::TextBox& box, int key) {
    if (box.SelLength == 0) {
        const int from = key == kBackspace ? box.SelStart - 1 : box.SelStart();
        if (from < 0 || from >= text_size(box)) return;
        forms::user::select_text(box, from, 1);
    }
    forms::user::type(box, "");
}

void press(forms::TextBox& box, int key, bool shift) {
    const int caret = box.SelStart + box.SelLength;
    if (const std::optional<int> target = moved(box, caret, key)) {
        const int fixed = shift ? box.SelStart() : *target;
        forms::user::select_text(box, std::min(fixed, *target), std::abs(*target - fixed));
    } else if (key == kBackspace || key == kDelete) {
        erase_with(box, key);
    } else if (std::isalnum(key) || key == ' ') {
        forms::user::type(box, std::string(1, static_cast<char>(shift ? key : std::tolower(key))));
    }
}

}  // namespace

void type(forms::Windows& windows, const std::string& text) {
    forms::TextBox* box = focused_box(windows);
    // Where nobody listens to each character, all go in at once.
    if (box && !box->Change) {
        forms::user::type(*box, text);
        return;
    }
    for (std::size_t at = 0; at < text.size() && box; ++at, box = focused_box(windows)) {
        const bool line_break = text.compare(at, 2, "\r\n") == 0;
        forms::user::type(*box, text.substr(at, line_break ? 2 : 1));
        if (line_break) ++at;
    }
}

void erase(forms::Windows& windows) {
    if (forms::TextBox* box = focused_box(windows)) forms::user::type(*box, "");
}

void send(forms::Windows& windows, const std::vector<platform::KeyRecord>& records) {
    bool shift = false;
    for (const platform::KeyRecord& record : records) {
        const bool up = record.flags & kKeyUp;
        if (record.virtual_key == platform::key_layout::kShift) shift = !up;
        forms::TextBox* box = focused_box(windows);
        if (up || !box) continue;
        if (record.flags & kUnicode) {
            forms::user::type(*box, std::string(1, static_cast<char>(record.scan_code)));
        } else {
            press(*box, record.virtual_key, shift);
        }
    }
}

}  // namespace script::keyboard
