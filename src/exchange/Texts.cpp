#include "exchange/Texts.h"

#include "exchange/Cards.h"

namespace exchange {

namespace {

bool is_small(char letter) { return letter >= 'a' && letter <= 'z'; }
bool ends_word(std::string_view text, std::size_t at) { return at >= text.size() || !is_small(text[at]); }

std::string with_symbols(std::string_view text, std::string_view marks) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool marked = marks.find(text[at]) != std::string_view::npos && at + 1 < text.size();
        const auto suit = marked ? suit_of(text[at + 1]) : std::nullopt;
        if (suit && (!is_small(text[at + 1]) || (text[at] == '!' && ends_word(text, at + 2)))) {
            result += kSymbols[index_of(*suit)];
            ++at;
        } else if (marked && text[at] == '@' && text[at + 1] == '@') {
            result += text[++at];
        } else {
            result += text[at];
        }
    }
    return result;
}

}  // namespace

std::string with_symbols_of_pbn(std::string_view text) { return with_symbols(text, "\\"); }
std::string with_symbols_of_lin(std::string_view text) { return with_symbols(text, "!@"); }

}  // namespace exchange
