#pragma once

#include <compare>
#include <cstdint>

namespace base {

// A colour as the system stores it: 0xBBGGRR, blue in the highest used byte.
struct Colour {
    std::uint32_t value = 0;

    static constexpr Colour rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
        return {red | green << 8U | blue << 16U};
    }
    constexpr std::uint8_t red() const { return value & 0xFFU; }
    constexpr std::uint8_t green() const { return value >> 8U & 0xFFU; }
    constexpr std::uint8_t blue() const { return value >> 16U & 0xFFU; }

    friend constexpr auto operator<=>(Colour, Colour) = default;
};

}  // namespace base
