#include "exchange/OwnText.h"

#include <array>
#include <utility>

#include "base/Text.h"
#include "exchange/Texts.h"
#include "platform/CodePage.h"

namespace exchange {

namespace {

constexpr std::array<const char*, 4> kSuitLetters{"S", "H", "R", "K"};

// Spellings of signs that texts about bridge have and the code page has not, or that mean something in the files.
constexpr std::pair<const char*, const char*> kSpellings[] = {
    {"|", "/"},       {"~", "ca. "},      {"\u2190", "<-"}, {"\u2192", "->"}, {"\u21D2", "=>"}, {"\u2264", "<="},
    {"\u2265", ">="}, {"\u2248", "ca. "}, {"\u2212", "-"},  {"\u2010", "-"},  {"\u2011", "-"},  {"\u00A0", " "},
    {"\u202F", " "},  {"\u2009", " "},    {"\u2713", "v"},  {"\uFE0E", ""},   {"\uFE0F", ""},   {"\u2664", "S"},
    {"\u2661", "H"},  {"\u2662", "R"},    {"\u2667", "K"},
};

}  // namespace

OwnText own_text(std::string_view utf8) {
    std::string text(utf8);
    for (std::size_t suit = 0; suit < kSuitLetters.size(); ++suit)
        text = replaced(text, kSymbols[suit], kSuitLetters[suit]);
    for (const auto& [sign, spelling] : kSpellings)
        text = replaced(text, sign, spelling);
    OwnText own;
    own.bytes = from_utf8(text);
    own.lossless = to_utf8(own.bytes) == text;
    own.bytes = replaced(own.bytes, "\n", "\r\n");
    return own;
}

}  // namespace exchange
