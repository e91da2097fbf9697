#include "exchange/Texts.h"

#include "exchange/Cards.h"

namespace exchange {

namespace {

std::string with_symbols(std::string_view text, std::string_view marks) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool marked = marks.find(text[at]) != std::string_view::npos && at + 1 < text.size();
        const auto suit = marked ? suit_of(text[at + 1]) : std::nullopt;
        if (suit && text[at + 1] < 'a') {
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
