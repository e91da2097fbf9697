#include "exchange/OwnParts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

#include "base/Text.h"
#include "exchange/DealWords.h"

namespace exchange {

namespace {

constexpr std::string_view kTag = "Zandolin";
constexpr std::string_view kMissing = "missing";
constexpr std::size_t kDigitsInLine = 72;
constexpr std::size_t kFarApart = 8;  // equal bytes between two changes

using Change = OwnPart::Change;

// FNV-1a.
std::uint32_t checksum(std::string_view bytes) {
    std::uint32_t sum = 2166136261U;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 16777619U;
    return sum;
}

const DealFile* find(const std::vector<DealFile>& files, const std::string& suffix) {
    const auto found = std::ranges::find(files, suffix, &DealFile::suffix);
    return found == files.end() ? nullptr : &*found;
}

// Of texts of one length each place that differs; otherwise all that lies between what they have in common in front
// and behind.
std::vector<Change> changes_between(const std::string& made, const std::string& file) {
    std::vector<Change> changes;
    if (made.size() == file.size()) {
        for (std::size_t at = 0; at < made.size(); ++at) {
            if (made[at] == file[at]) continue;
            if (changes.empty() || at - changes.back().at - changes.back().length > kFarApart)
                changes.push_back({at, 0, {}});
            changes.back().length = at + 1 - changes.back().at;
        }
        for (Change& change : changes)
            change.bytes = file.substr(change.at, change.length);
        return changes;
    }
    const auto [end, other_end] = std::ranges::mismatch(made, file);
    const auto front = static_cast<std::size_t>(end - made.begin());
    std::size_t back = 0;
    while (back < std::min(made.size(), file.size()) - front &&
           made[made.size() - 1 - back] == file[file.size() - 1 - back])
        ++back;
    return {{front, made.size() - front - back, file.substr(front, file.size() - front - back)}};
}

// False where a change lies outside the bytes or before the one in front of it.
bool apply(const std::vector<Change>& changes, std::string& bytes) {
    std::string changed;
    std::size_t done = 0;
    for (const Change& change : changes) {
        if (change.at < done || change.at > bytes.size() || change.length > bytes.size() - change.at) return false;
        changed += bytes.substr(done, change.at - done) + change.bytes;
        done = change.at + change.length;
    }
    bytes = changed + bytes.substr(done);
    return true;
}

// "Vraag" of " vraag.txt".
std::string tag_name(std::string_view suffix) {
    const std::string word(suffix.substr(1, suffix.find('.') - 1));
    return std::string(kTag) + base::upper_case(base::left(word, 1)) + word.substr(1);
}

std::string hexadecimal(std::string_view bytes) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += kDigits[value >> 4U];
        text += kDigits[value & 15U];
    }
    return text;
}

template <class Number>
bool read_number(std::string_view text, Number& number, int base = 10) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size();
}

bool read_bytes(std::string_view text, std::string& bytes) {
    if (text.size() % 2 != 0) return false;
    for (std::size_t at = 0; at < text.size(); at += 2) {
        unsigned value = 0;
        if (!read_number(text.substr(at, 2), value, 16)) return false;
        bytes += static_cast<char>(value);
    }
    return true;
}

// A change's place, "12+2:", or digits of its bytes.
bool take_word(const std::string& word, std::vector<Change>& changes) {
    if (!word.ends_with(':')) return !changes.empty() && read_bytes(word, changes.back().bytes);
    const std::size_t plus = word.find('+');
    if (plus == std::string::npos) return false;
    const std::string_view text(word);
    Change& change = changes.emplace_back();
    return read_number(text.substr(0, plus), change.at) &&
           read_number(text.substr(plus + 1, text.size() - plus - 2), change.length);
}

}  // namespace

std::vector<OwnPart> own_parts(const std::vector<DealFile>& made, const std::vector<DealFile>& files) {
    std::vector<OwnPart> parts;
    for (const char* const suffix : kSuffixes) {
        const DealFile* const from = find(made, suffix);
        const DealFile* const to = find(files, suffix);
        if (!to && !from) continue;
        const std::string bytes = from ? from->bytes : std::string();
        if (to && from && to->bytes == bytes) continue;
        parts.push_back({suffix, checksum(bytes), !to, to ? changes_between(bytes, to->bytes) : std::vector<Change>()});
    }
    return parts;
}

void put_back(const std::vector<OwnPart>& parts, std::vector<DealFile>& made, std::vector<Remark>& notes) {
    for (const OwnPart& part : parts) {
        const std::string& suffix = part.suffix;
        const DealFile* const file = find(made, part.suffix);
        DealFile changed{suffix, file ? file->bytes : std::string()};
        if (checksum(changed.bytes) != part.made || !apply(part.changes, changed.bytes)) {
            notes.push_back(
                {part.line, "the board was changed since it was exported;" + part.suffix + " is made anew"});
            continue;
        }
        std::erase_if(made, [&](const DealFile& each) { return each.suffix == part.suffix; });
        if (!part.missing) made.push_back(std::move(changed));
    }
}

bool stands_alone(const OwnPart& part) { return part.made == checksum({}); }

std::string text_of(const OwnPart& part) {
    std::array<char, 16> made{};
    std::snprintf(made.data(), made.size(), "%08x", part.made);
    std::string text = "[" + tag_name(part.suffix) + " \"" + made.data() +
                       (part.missing ? " " + std::string(kMissing) : std::string()) + "\"]\r\n";
    for (const Change& change : part.changes) {
        text += std::to_string(change.at) + "+" + std::to_string(change.length) + ":\r\n";
        const std::string digits = hexadecimal(change.bytes);
        for (std::size_t at = 0; at < digits.size(); at += kDigitsInLine)
            text += digits.substr(at, kDigitsInLine) + "\r\n";
    }
    return text;
}

std::optional<OwnPart> own_part_of(const PbnTag& tag, std::vector<Remark>& notes) {
    const auto suffix = std::ranges::find_if(
        kSuffixes, [&](const char* each) { return base::equal_ignoring_case(tag.name, tag_name(each)); });
    if (suffix == kSuffixes.end()) return std::nullopt;
    OwnPart part{.suffix = *suffix, .line = tag.line};
    const base::Pieces words = base::split(tag.value, " ");
    part.missing = words.last() == 1 && words[1] == kMissing;
    bool sound = words.last() == (part.missing ? 1 : 0) && read_number(std::string_view(words[0]), part.made, 16);
    for (const PbnToken& token : tag.tokens)
        sound = sound && token.kind == PbnToken::Kind::Word && take_word(token.text, part.changes);
    if (sound) return part;
    notes.push_back({tag.line, "not to be understood: [" + tag.name + "]"});
    return std::nullopt;
}

}  // namespace exchange
