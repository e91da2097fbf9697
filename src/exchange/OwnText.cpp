#include "exchange/OwnText.h"

#include <algorithm>
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
        text = base::replaced(text, kSymbols[suit], kSuitLetters[suit]);
    for (const auto& [sign, spelling] : kSpellings)
        text = base::replaced(text, sign, spelling);
    const auto controls = [](char sign) {
        return static_cast<unsigned char>(sign) < ' ' && sign != '\r' && sign != '\n';
    };
    OwnText own;
    own.bytes = platform::from_utf8(text);
    own.lossless = platform::to_utf8(own.bytes) == text;
    own.bytes = base::replaced(own.bytes, "\n", "\r\n");
    std::ranges::replace_if(own.bytes, controls, ' ');
    return own;
}

std::string text_of_own(std::string bytes) {
    for (const char* const line_end : {"\r\n", "\r", "~"})
        bytes = base::replaced(bytes, line_end, "\n");
    return platform::to_utf8(bytes);
}

}  // namespace exchange
