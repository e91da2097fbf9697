#pragma once

#include "platform/KeyLayout.h"

namespace desktop::system {

// Of the keyboard that the user types on where the system tells it, otherwise of the standard one; as in
// platform/KeyLayout.h.
std::optional<platform::key_layout::KeyStroke> stroke_for(char character);
std::uint16_t scan_code(std::uint16_t key);

}  // namespace desktop::system
