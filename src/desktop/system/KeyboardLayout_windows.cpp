#include <windows.h>

#include "desktop/Text.h"
#include "desktop/system/KeyboardLayout.h"

namespace desktop::system {

// The high byte tells what is held: 1 Shift, 2 Control, 4 Alt.
std::optional<platform::key_layout::KeyStroke> stroke_for(char character) {
    constexpr int kNone = -1;
    constexpr unsigned kShift = 0x100;
    constexpr unsigned kControlAlt = 0x600;
    const QString text = to_qt(std::string_view(&character, 1));
    const SHORT answer = VkKeyScanExW(static_cast<wchar_t>(text.front().unicode()), GetKeyboardLayout(0));
    if (answer == kNone) return {};
    const auto bits = static_cast<unsigned>(answer);
    return platform::key_layout::KeyStroke{static_cast<std::uint16_t>(bits & 0xFFU), (bits & kShift) != 0,
                                           (bits & kControlAlt) == kControlAlt};
}

std::uint16_t scan_code(std::uint16_t key) {
    return static_cast<std::uint16_t>(MapVirtualKeyExW(key, MAPVK_VK_TO_VSC, GetKeyboardLayout(0)));
}

}  // namespace desktop::system
