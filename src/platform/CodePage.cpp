#include "platform/CodePage.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <optional>

namespace platform {

namespace {

// Code points of 0x80 to 0x9F; the five bytes that the code page leaves free stand for themselves.
constexpr std::array<char32_t, 32> kUpperControls{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t code_point(unsigned char byte) { return byte >= 0x80 && byte <= 0x9F ? kUpperControls[byte - 0x80U] : byte; }

std::optional<char> in_code_page(char32_t point) {
    const auto found = std::ranges::find(kUpperControls, point);
    if (found != kUpperControls.end()) return static_cast<char>(0x80 + (found - kUpperControls.begin()));
    if (point < 0x100 && (point < 0x80 || point >= 0xA0)) return static_cast<char>(point);
    return std::nullopt;
}

constexpr char32_t kInvalid = 0xFFFFFFFF;

// Reads one code point and moves on; kInvalid for a byte that begins no valid sequence.
char32_t next_code_point(std::string_view text, std::size_t& at) {
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

void append_utf8(std::string& text, char32_t point) {
    const auto continuation = [&](unsigned shift) { return static_cast<char>(0x80U | (point >> shift & 0x3FU)); };
    if (point < 0x80) {
        text += static_cast<char>(point);
    } else if (point < 0x800) {
        text += {static_cast<char>(0xC0U | point >> 6U), continuation(0)};
    } else if (point < 0x10000) {
        text += {static_cast<char>(0xE0U | point >> 12U), continuation(6), continuation(0)};
    } else {
        text += {static_cast<char>(0xF0U | point >> 18U), continuation(12), continuation(6), continuation(0)};
    }
}

// A mark in a name: a byte in two digits, a code point in four to six.
struct Mark {
    std::size_t length = 0;  // 0 where no mark stands
    char32_t value = 0;
    bool is_byte = false;
};

Mark mark_at(std::string_view text, std::size_t at) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    if (text[at] != '{') return {};
    const std::size_t end = text.substr(0, at + 8).find('}', at);
    if (end == std::string_view::npos) return {};
    const std::string_view digits = text.substr(at + 1, end - at - 1);
    if (digits.size() != 2 && digits.size() < 4) return {};
    char32_t value = 0;
    for (const char digit : digits) {
        const std::size_t worth = kDigits.find(digit);
        if (worth == std::string_view::npos) return {};
        value = value * 16 + static_cast<char32_t>(worth);
    }
    const bool is_byte = digits.size() == 2;
    if (is_byte ? value != '{' && value < 0x80 : value >= 0x200000) return {};
    return {digits.size() + 2, value, is_byte};
}

std::string mark_of(std::size_t digits, char32_t value) {
    std::array<char, 12> mark{};
    std::snprintf(mark.data(), mark.size(), "{%0*X}", static_cast<int>(digits), static_cast<unsigned>(value));
    return mark.data();
}

bool all_ascii(std::string_view text) {
    return std::ranges::all_of(text, [](char character) { return static_cast<unsigned char>(character) < 0x80; });
}

}  // namespace

std::string to_utf8(std::string_view text) {
    if (all_ascii(text)) return std::string(text);
    std::string result;
    result.reserve(text.size());
    for (const char character : text)
        append_utf8(result, code_point(static_cast<unsigned char>(character)));
    return result;
}

std::string from_utf8(std::string_view text) {
    if (all_ascii(text)) return std::string(text);
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();)
        result += in_code_page(next_code_point(text, at)).value_or('?');
    return result;
}

std::string name_text(std::string_view bytes) {
    if (all_ascii(bytes) && bytes.find('{') == std::string_view::npos) return std::string(bytes);
    std::string text;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t begin = at;
        const bool like_a_mark = mark_at(bytes, at).length > 0;
        const char32_t point = next_code_point(bytes, at);
        const std::optional<char> character = in_code_page(point);
        if (like_a_mark || point == kInvalid) {
            text += mark_of(2, static_cast<unsigned char>(bytes[begin]));
        } else if (character) {
            text += *character;
        } else {
            text += mark_of(4, point);
        }
    }
    return text;
}

std::string name_bytes(std::string_view text) {
    if (all_ascii(text) && text.find('{') == std::string_view::npos) return std::string(text);
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        const Mark mark = mark_at(text, at);
        if (mark.length == 0) {
            append_utf8(bytes, code_point(static_cast<unsigned char>(text[at++])));
            continue;
        }
        at += mark.length;
        if (mark.is_byte) {
            bytes += static_cast<char>(mark.value);
        } else {
            append_utf8(bytes, mark.value);
        }
    }
    return bytes;
}

std::u16string utf16_of(std::string_view bytes) {
    constexpr char32_t kReplacement = 0xFFFD;
    std::u16string units;
    for (std::size_t at = 0; at < bytes.size();) {
        const char32_t point = next_code_point(bytes, at);
        if (point >= 0x110000) {
            units += static_cast<char16_t>(kReplacement);
        } else if (point >= 0x10000) {
            units += static_cast<char16_t>(0xD800U + ((point - 0x10000U) >> 10U));
            units += static_cast<char16_t>(0xDC00U + (point & 0x3FFU));
        } else {
            units += static_cast<char16_t>(point);
        }
    }
    return units;
}

std::string bytes_of_utf16(std::u16string_view units) {
    const auto is_half = [&](std::size_t at, char16_t first) {
        return at < units.size() && (units[at] & 0xFC00U) == first;
    };
    std::string bytes;
    for (std::size_t at = 0; at < units.size(); ++at) {
        char32_t point = units[at];
        if (is_half(at, 0xD800) && is_half(at + 1, 0xDC00))
            point = 0x10000U + ((point & 0x3FFU) << 10U) + (units[++at] & 0x3FFU);
        append_utf8(bytes, point);
    }
    return bytes;
}

}  // namespace platform
