#include "services/MSendInput.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/KeyLayout.h"
#include "services/Programma.h"

namespace services {

namespace MSendInput {

namespace {

namespace key_layout = platform::key_layout;
using key_layout::KeyStroke;

constexpr std::uint32_t kKeyboard = 1;
constexpr std::uint32_t kExtended = 1;
constexpr std::uint32_t kReleased = 2;
constexpr std::uint32_t kUnicode = 4;

// What an open modifier holds.
constexpr unsigned kShiftHeld = 1;
constexpr unsigned kControlHeld = 2;
constexpr unsigned kAltHeld = 4;

// The 16-bit value of a character.
std::uint16_t unicode_of(char character) {
    const std::string utf8 = platform::to_utf8(std::string_view(&character, 1));
    const auto byte = [&](std::size_t at) { return static_cast<unsigned>(static_cast<unsigned char>(utf8[at])); };
    unsigned value = byte(0);
    if (utf8.size() == 2) value = (byte(0) & 0x1FU) << 6U | (byte(1) & 0x3FU);
    if (utf8.size() == 3) value = (byte(0) & 0x0FU) << 12U | (byte(1) & 0x3FU) << 6U | (byte(2) & 0x3FU);
    return static_cast<std::uint16_t>(value);
}

// Reads a text token by token and collects the key events that it stands for.
class Reader {
public:
    Reader(const std::string& text, const platform::Platform& platform)
        : text_(text), platform_(platform), caps_lock_(platform.caps_lock()) {}

    std::vector<platform::KeyRecord> read() {
        while (at_ < text_.size())
            read_token();
        return std::move(records_);
    }

private:
    void read_token() {
        if (at_ >= text_.size()) return;  // a modifier at the end holds nothing
        const char character = text_[at_++];
        switch (character) {
            case '+':
                return read_modifier(key_layout::kShift, kShiftHeld);
            case '^':
                return read_modifier(key_layout::kControl, kControlHeld);
            case '%':
                return read_modifier(key_layout::kAlt, kAltHeld);
            case '(':
                return read_group();
            case '{':
                return read_braces();
            default:
                plain_character(character);
        }
    }

    void read_modifier(std::uint16_t key, unsigned flag) {
        add(key, 0, 0);
        modifierVlaggen_ |= flag;
        read_token();
        add(key, 0, kReleased);
        modifierVlaggen_ &= ~flag;
    }

    // Without a closing parenthesis, or with nothing in it, the group is no group: what follows is read as it stands.
    void read_group() {
        const std::size_t end = text_.find(')', at_);
        if (end == std::string::npos || end == at_) return;
        while (at_ < end)
            plain_character(text_[at_++]);
        at_ = end + 1;
    }

    // The content has one character at least, so that {}} names the brace itself.
    void read_braces() {
        const std::size_t end = text_.find('}', at_ + 1);
        if (end == std::string::npos) return;
        const base::Pieces parts = base::split(std::string_view(text_).substr(at_, end - at_), " ");
        const int times = parts.last() >= 1 ? std::max(1, base::numeric_value(parts[1])) : 1;
        for (int time = 0; time < times; ++time)
            press_name(parts[0]);
        at_ = end + 1;
    }

    void press_name(const std::string& name) {
        if (name.empty()) return;
        if (const auto named = key_layout::named_key(base::upper_case(name))) {
            press({named->key}, named->extended);
        } else if (const auto stroke = platform_.stroke_for(name[0])) {
            press(*stroke, false);  // Caps Lock has no say in braces.
        } else {
            send_unicode(unicode_of(name[0]));
        }
    }

    void plain_character(char character) {
        const std::uint16_t value = unicode_of(character);
        auto stroke = value <= 255 ? platform_.stroke_for(character) : std::nullopt;
        if (character == '~') stroke = KeyStroke{key_layout::kEnter};
        if (!stroke) return send_unicode(value);
        const bool letter = (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
        if (caps_lock_ && letter) stroke->shift = !stroke->shift;
        press(*stroke, false);
    }

    void press(const KeyStroke& stroke, bool extended) {
        const bool with_shift = stroke.shift && (modifierVlaggen_ & kShiftHeld) == 0;
        const std::uint32_t flags = extended ? kExtended : 0;
        if (with_shift) add(key_layout::kShift, 0, 0);
        if (stroke.control_alt) {
            add(key_layout::kControl, 0, 0);
            add(key_layout::kAlt, 0, 0);
        }
        add(stroke.key, 0, flags);
        add(stroke.key, platform_.scan_code(stroke.key), flags + kReleased);
        if (stroke.control_alt) {
            add(key_layout::kControl, 0, kReleased);
            add(key_layout::kAlt, 0, kReleased);
        }
        if (with_shift) add(key_layout::kShift, 0, kReleased);
    }

    void send_unicode(std::uint16_t value) {
        add(0, value, kUnicode);
        add(0, value, kUnicode + kReleased);
    }

    void add(std::uint16_t key, std::uint16_t scan, std::uint32_t flags) {
        records_.push_back({.type = kKeyboard, .virtual_key = key, .scan_code = scan, .flags = flags});
    }

    const std::string& text_;
    const platform::Platform& platform_;
    const bool caps_lock_;
    std::size_t at_ = 0;  // characters consumed
    unsigned modifierVlaggen_ = 0;
    std::vector<platform::KeyRecord> records_;
};

}  // namespace

void VerstuurToetsen(Programma& programma, const std::string& text, bool /*wachten*/) {
    const std::vector<platform::KeyRecord> records = Reader(text, programma.platform).read();
    if (!records.empty()) programma.platform.send_keys(records);
}

}  // namespace MSendInput

}  // namespace services
