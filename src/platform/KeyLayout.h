#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

// The standard keyboard of Dutch machines, for a host that does not ask the system for the user's own: the American
// layout with accented characters on Control plus Alt. Virtual keys are Windows' numbers, scan codes those of set 1.
namespace key_layout {

inline constexpr std::uint16_t kShift = 0x10;
inline constexpr std::uint16_t kControl = 0x11;
inline constexpr std::uint16_t kAlt = 0x12;
inline constexpr std::uint16_t kEnter = 0x0D;

// The key that types a character, and what has to be held with it.
struct KeyStroke {
    std::uint16_t key = 0;
    bool shift = false;
    bool control_alt = false;
};
// None where no key types it. The character is Windows-1252.
std::optional<KeyStroke> stroke_for(char character);

// A key that has a name, such as END.
struct NamedKey {
    std::uint16_t key = 0;
    bool extended = false;
};
// By the name in upper case; none where no key has it.
std::optional<NamedKey> named_key(const std::string& name);

// 0 where a key has none.
std::uint16_t scan_code(std::uint16_t key);

}  // namespace key_layout

}  // namespace platform
