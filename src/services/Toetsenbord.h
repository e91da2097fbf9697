#pragma once

#include <cstdint>
#include <optional>
#include <string>

// The keyboard as the key stroke synthesiser knows it: the standard layout of Dutch machines, which is the American
// one with accented characters on Control plus Alt. Virtual keys are Windows' numbers, scan codes those of set 1.
namespace toetsenbord {

inline constexpr std::uint16_t kShift = 0x10;
inline constexpr std::uint16_t kControl = 0x11;
inline constexpr std::uint16_t kAlt = 0x12;
inline constexpr std::uint16_t kEnter = 0x0D;

// The key that types a character, and what has to be held with it.
struct Aanslag {
    std::uint16_t toets = 0;
    bool shift = false;
    bool control_alt = false;
};
// None where no key types it. The character is Windows-1252.
std::optional<Aanslag> aanslag_van(char teken);

// A key that has a name, such as END.
struct BenoemdeToets {
    std::uint16_t toets = 0;
    bool extended = false;
};
// By the name in upper case; none where no key has it.
std::optional<BenoemdeToets> toets_van_naam(const std::string& naam);

// 0 where a key has none.
std::uint16_t scan_code(std::uint16_t toets);

}  // namespace toetsenbord
