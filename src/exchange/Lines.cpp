#include "exchange/Lines.h"

#include <algorithm>
#include <utility>

#include "base/Fout.h"
#include "platform/CodePage.h"

namespace exchange {

namespace {

constexpr std::size_t kPart = 65536;
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";

// How many bytes the character that begins with this byte has; 0 for a byte that begins none.
std::size_t length_of(unsigned char first) {
    if (first < 0x80) return 1;
    if (first < 0xC2) return 0;
    if (first < 0xE0) return 2;
    if (first < 0xF0) return 3;
    return first < 0xF5 ? 4 : 0;
}

void append(std::string& text, char32_t point) {
    if (point < 0x80) {
        text += static_cast<char>(point);
    } else if (point < 0x800) {
        text += static_cast<char>(0xC0U | point >> 6U);
        text += static_cast<char>(0x80U | (point & 0x3FU));
    } else if (point < 0x10000) {
        text += static_cast<char>(0xE0U | point >> 12U);
        text += static_cast<char>(0x80U | (point >> 6U & 0x3FU));
        text += static_cast<char>(0x80U | (point & 0x3FU));
    } else {
        text += static_cast<char>(0xF0U | point >> 18U);
        text += static_cast<char>(0x80U | (point >> 12U & 0x3FU));
        text += static_cast<char>(0x80U | (point >> 6U & 0x3FU));
        text += static_cast<char>(0x80U | (point & 0x3FU));
    }
}

}  // namespace

bool is_utf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const auto first = static_cast<unsigned char>(text[at]);
        const std::size_t length = length_of(first);
        if (length == 0 || at + length > text.size()) return false;
        for (std::size_t i = 1; i < length; ++i) {
            if ((static_cast<unsigned char>(text[at + i]) & 0xC0U) != 0x80U) return false;
        }
        const auto second = length > 1 ? static_cast<unsigned char>(text[at + 1]) : 0U;
        const bool too_long = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
        const bool no_character = (first == 0xED && second > 0x9F) || (first == 0xF4 && second > 0x8F);
        if (too_long || no_character) return false;
        at += length;
    }
    return true;
}

Lines::Lines(std::istream& stream) : stream_(stream) {
    fill();
    if (buffer_.starts_with(kUtf8Mark)) at_ = kUtf8Mark.size();
    if (buffer_.starts_with(kLittleEndianMark)) encoding_ = Encoding::Utf16LittleEndian;
    if (buffer_.starts_with(kBigEndianMark)) encoding_ = Encoding::Utf16BigEndian;
    if (encoding_ != Encoding::Bytes) at_ = kLittleEndianMark.size();
}

bool Lines::fill() {
    buffer_.resize(kPart);
    stream_.read(buffer_.data(), static_cast<std::streamsize>(kPart));
    buffer_.resize(static_cast<std::size_t>(stream_.gcount()));
    at_ = 0;
    if (stream_.bad()) throw base::Fout(base::FoutNummer::DeviceError);
    return !buffer_.empty();
}

std::optional<std::string> Lines::next() {
    auto line = encoding_ == Encoding::Bytes ? line_of_bytes() : line_of_units();
    if (!line) return line;
    ++number_;
    if (encoding_ == Encoding::Bytes && !is_utf8(*line)) return platform::to_utf8(*line);
    return line;
}

std::optional<std::string> Lines::line_of_bytes() {
    std::string line;
    bool any = false;
    for (;;) {
        if (at_ == buffer_.size() && !fill()) return any ? std::optional(std::move(line)) : std::nullopt;
        if (std::exchange(after_carriage_return_, false) && buffer_[at_] == '\n') {
            ++at_;
            continue;
        }
        any = true;
        const std::size_t end = buffer_.find_first_of("\r\n", at_);
        line.append(buffer_, at_, std::min(end, buffer_.size()) - at_);
        at_ = std::min(end, buffer_.size());
        if (end == std::string::npos) continue;
        after_carriage_return_ = buffer_[at_++] == '\r';
        return line;
    }
}

std::optional<char> Lines::next_byte() {
    if (at_ == buffer_.size() && !fill()) return std::nullopt;
    return buffer_[at_++];
}

std::optional<char16_t> Lines::next_unit() {
    const auto first = next_byte();
    const auto second = next_byte();
    if (!first || !second) return std::nullopt;
    const auto one = static_cast<unsigned char>(*first);
    const auto two = static_cast<unsigned char>(*second);
    const bool little = encoding_ == Encoding::Utf16LittleEndian;
    return static_cast<char16_t>(little ? one | two << 8 : two | one << 8);
}

std::optional<std::string> Lines::line_of_units() {
    std::string line;
    char16_t high = 0;  // the first half of a pair
    bool any = false;
    while (const auto unit = next_unit()) {
        if (std::exchange(after_carriage_return_, false) && *unit == u'\n') continue;
        any = true;
        if (*unit == u'\r' || *unit == u'\n') {
            after_carriage_return_ = *unit == u'\r';
            return line;
        }
        const bool is_high = *unit >= 0xD800 && *unit < 0xDC00;
        const bool is_low = *unit >= 0xDC00 && *unit < 0xE000;
        if (is_high) {
            high = *unit;
        } else if (is_low) {
            if (high != 0) append(line, 0x10000U + ((high - 0xD800U) << 10U) + (*unit - 0xDC00U));
            high = 0;
        } else {
            append(line, *unit);
        }
    }
    return any ? std::optional(std::move(line)) : std::nullopt;
}

}  // namespace exchange
