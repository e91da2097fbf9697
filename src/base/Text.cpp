#include "base/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

#include "base/Fout.h"

namespace base {

namespace {

constexpr unsigned char kCapitalSHacek = 0x8A;
constexpr unsigned char kCapitalZHacek = 0x8E;
constexpr unsigned char kCapitalOE = 0x8C;
constexpr unsigned char kCapitalYDieresis = 0x9F;
constexpr unsigned char kSmallYDieresis = 0xFF;
constexpr unsigned char kMultiplication = 0xD7;

// Windows-1252: the letters with accents stand 0x20 apart, but for the four that came later.
constexpr unsigned char lower_of(unsigned char character) {
    if (character >= 'A' && character <= 'Z') return static_cast<unsigned char>(character + 0x20);
    if (character >= 0xC0 && character <= 0xDE && character != kMultiplication) {
        return static_cast<unsigned char>(character + 0x20);
    }
    if (character == kCapitalSHacek || character == kCapitalOE || character == kCapitalZHacek) {
        return static_cast<unsigned char>(character + 0x10);
    }
    return character == kCapitalYDieresis ? kSmallYDieresis : character;
}

constexpr std::array<unsigned char, 256> kLower = [] {
    std::array<unsigned char, 256> table{};
    for (std::size_t code = 0; code < table.size(); ++code)
        table[code] = lower_of(static_cast<unsigned char>(code));
    return table;
}();

unsigned char lower(unsigned char character) { return kLower[character]; }

unsigned char upper(unsigned char character) {
    for (const int step : {0x20, 0x10, kSmallYDieresis - kCapitalYDieresis}) {
        const auto capital = static_cast<unsigned char>(character - step);
        if (capital != character && lower(capital) == character) return capital;
    }
    return character;
}

template <class Convert>
std::string converted(std::string_view text, Convert convert) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [&](char character) {
        return static_cast<char>(convert(static_cast<unsigned char>(character)));
    });
    return result;
}

}  // namespace

const std::string& Pieces::operator[](int index) const {
    if (index < 0 || index > last()) throw Fout(FoutNummer::SubscriptOutOfRange, std::to_string(index));
    return pieces_[static_cast<std::size_t>(index)];
}

Pieces split(std::string_view text, std::string_view separator) {
    std::vector<std::string> pieces;
    if (text.empty()) return Pieces(std::move(pieces));
    std::size_t from = 0;
    for (std::size_t at = text.find(separator); at != std::string_view::npos; at = text.find(separator, from)) {
        pieces.emplace_back(text.substr(from, at - from));
        from = at + separator.size();
    }
    pieces.emplace_back(text.substr(from));
    return Pieces(std::move(pieces));
}

std::string trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string_view number_part(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const std::size_t sign = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    return text.substr(0, text.find_first_not_of("0123456789", sign));
}

int numeric_value(std::string_view text) {
    using Limits = std::numeric_limits<int>;
    std::string_view number = number_part(text);
    const bool negative = number.starts_with('-');
    if (negative || number.starts_with('+')) number.remove_prefix(1);
    std::int64_t value = 0;
    for (const char digit : number) {
        value = value * 10 + (negative ? '0' - digit : digit - '0');
        value = std::clamp<std::int64_t>(value, Limits::min(), Limits::max());
    }
    return static_cast<int>(value);
}

std::string replaced(std::string_view text, std::string_view what, std::string_view by) {
    std::string result;
    std::size_t from = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what, from)) {
        result.append(text.substr(from, at - from)).append(by);
        from = at + what.size();
    }
    return result.append(text.substr(from));
}

std::string lower_case(std::string_view text) { return converted(text, lower); }
std::string upper_case(std::string_view text) { return converted(text, upper); }

int compare_ignoring_case(std::string_view left, std::string_view right) {
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t at = 0; at < common; ++at) {
        const int difference =
            lower(static_cast<unsigned char>(left[at])) - lower(static_cast<unsigned char>(right[at]));
        if (difference != 0) return difference;
    }
    return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

bool equal_ignoring_case(std::string_view left, std::string_view right) {
    return left.size() == right.size() && compare_ignoring_case(left, right) == 0;
}

std::string left(std::string_view text, std::size_t count) { return std::string(text.substr(0, count)); }

std::string right(std::string_view text, std::size_t count) {
    return std::string(text.substr(text.size() - std::min(count, text.size())));
}

std::string middle(std::string_view text, std::size_t from) {
    return from > text.size() ? std::string() : std::string(text.substr(from - 1));
}

}  // namespace base
