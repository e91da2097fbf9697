#include "platform/CodePage.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace {

// Code points of 0x80 to 0x9F; the five bytes that the code page leaves free stand for themselves.
constexpr std::array<char32_t, 32> kUpperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t code_point(unsigned char byte) { return byte >= 0x80 && byte <= 0x9F ? kUpperControls[byte - 0x80U] : byte; }

char in_code_page(char32_t point) {
    const auto found = std::ranges::find(kUpperControls, point);
    if (found != kUpperControls.end()) return static_cast<char>(0x80 + (found - kUpperControls.begin()));
    return point < 0x100 && (point < 0x80 || point >= 0xA0) ? static_cast<char>(point) : '?';
}

// Reads one code point and moves on; 0xFFFFFFFF for a byte that begins no valid sequence.
char32_t next_code_point(std::string_view text, std::size_t& at) {
    constexpr char32_t kInvalid = 0xFFFFFFFF;
    const auto first = static_cast<unsigned char>(text[at++]);
    if (first < 0x80) return first;
    const std::size_t more = first >= 0xF0 && first < 0xF8 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first >= 0xF8 || at + more > text.size()) return kInvalid;
    char32_t point = first & (0x3FU >> more);
    for (std::size_t step = 0; step < more; ++step) {
        const auto byte = static_cast<unsigned char>(text[at + step]);
        if ((byte & 0xC0U) != 0x80U) return kInvalid;
        point = point << 6U | (byte & 0x3FU);
    }
    constexpr std::array<char32_t, 4> kLeast{0, 0x80, 0x800, 0x10000};  // by the number of bytes that follow the first
    if (point < kLeast[more]) return kInvalid;
    at += more;
    return point;
}

bool all_ascii(std::string_view text) {
    return std::ranges::all_of(text, [](char character) { return static_cast<unsigned char>(character) < 0x80; });
}

}  // namespace

std::string to_utf8(std::string_view text) {
    if (all_ascii(text)) return std::string(text);
    std::string result;
    result.reserve(text.size());
    for (const char character : text) {
        const char32_t point = code_point(static_cast<unsigned char>(character));
        if (point < 0x80) {
            result += static_cast<char>(point);
        } else if (point < 0x800) {
            result += static_cast<char>(0xC0U | point >> 6U);
            result += static_cast<char>(0x80U | (point & 0x3FU));
        } else {
            result += static_cast<char>(0xE0U | point >> 12U);
            result += static_cast<char>(0x80U | (point >> 6U & 0x3FU));
            result += static_cast<char>(0x80U | (point & 0x3FU));
        }
    }
    return result;
}

std::string from_utf8(std::string_view text) {
    if (all_ascii(text)) return std::string(text);
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) result += in_code_page(next_code_point(text, at));
    return result;
}
