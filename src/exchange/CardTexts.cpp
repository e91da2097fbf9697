#include "exchange/CardTexts.h"

#include <algorithm>
#include <optional>

#include "base/Text.h"
#include "exchange/OwnText.h"
#include "forms/TextMeasure.h"
#include "platform/CodePage.h"

namespace exchange {

namespace {

constexpr std::size_t kMostCharacters = 255;  // that the editor takes, a line break being two
constexpr std::size_t kMostLines = 9;         // that the table's box shows
constexpr double kBoxWidth = 5325;            // twips, of that box
constexpr double kPoints = 12;

constexpr std::string_view kBreak = "\r\n";

bool fits(std::string_view text) {
    return text.size() <= kMostCharacters && forms::box_lines(text, kBoxWidth, kPoints).size() <= kMostLines;
}

bool ends_word(char character) { return character == ' ' || character == '\r'; }

// Takes as much off the front of the text as fits, up to the end of a word where there is one.
std::string take_part(std::string& text) {
    std::size_t length = std::min(text.size(), kMostCharacters);
    while (length > 1 && !fits(std::string_view(text).substr(0, length)))
        --length;
    if (length < text.size()) {
        std::size_t word = length;
        while (word > 0 && !ends_word(text[word]))
            --word;
        if (word > 0) length = word;
    }
    std::string part = text.substr(0, length);
    text.erase(0, std::min(text.find_first_not_of(" \r\n", length), text.size()));
    part.erase(part.find_last_not_of(" \r\n") + 1);
    return part;
}

Remark cut(int line, const std::string& rest) {
    constexpr std::size_t kShown = 40;
    return {line, "a text is too long; cut before \"" + platform::to_utf8(base::left(rest, kShown)) + "\""};
}

}  // namespace

std::array<std::string, kCardsInDeck> card_texts(const Board& board, std::vector<Remark>& notes) {
    std::array<std::string, kCardsInDeck> texts;
    std::array<int, kCardsInDeck> lines{};
    for (const PlacedText& placed : board.texts) {
        if (placed.place.kind != Place::Kind::Card) continue;
        const auto at = static_cast<std::size_t>(placed.place.card - 1);
        const OwnText own = own_text(placed.text);
        if (!own.lossless)
            notes.push_back({placed.line, "a text has signs that the program cannot hold; they became ?"});
        texts[at] = own.bytes;
        lines[at] = placed.line;
    }
    std::string rest;
    int line = 0;
    for (std::size_t at = 0; at < texts.size(); ++at) {
        const bool own = !texts[at].empty();
        if (own && !rest.empty()) notes.push_back(cut(line, rest));
        if (own) {
            rest = texts[at];
            line = lines[at];
        }
        texts[at] = rest.empty() ? std::string() : base::replaced(take_part(rest), kBreak, "~");
    }
    if (!rest.empty()) notes.push_back(cut(line, rest));
    return texts;
}

}  // namespace exchange
