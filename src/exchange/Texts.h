#pragma once

#include <string>
#include <string_view>

namespace exchange {

// Suit symbols stand in the texts of a board as the characters of Unicode.
inline constexpr std::string_view kSymbols[] = {"\u2660", "\u2665", "\u2666", "\u2663"};  // in the order of Suit

// The text with the suit marks of PBN (\S \H \D \C) and of LIN (!S @S, also !s at the end of a word, @@ for @) made
// symbols.
std::string with_symbols_of_pbn(std::string_view text);
std::string with_symbols_of_lin(std::string_view text);

}  // namespace exchange
