#include "desktop/system/KeyboardLayout.h"

namespace desktop::system {

std::optional<platform::key_layout::KeyStroke> stroke_for(char character) {
    return platform::key_layout::stroke_for(character);
}

std::uint16_t scan_code(std::uint16_t key) { return platform::key_layout::scan_code(key); }

}  // namespace desktop::system
