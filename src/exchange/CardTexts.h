#pragma once

#include <array>
#include <string>
#include <vector>

#include "exchange/Board.h"

namespace exchange {

// The texts of the 52 cards of a lesson, as a record of " informatie.txt" holds them: Windows-1252, "~" for a line
// break. A text that is longer than the editor takes (255 characters), or than the table shows (nine lines), goes on at
// the next cards that have none of their own; what is left then is cut at a word, and told in the notes.
std::array<std::string, kCardsInDeck> card_texts(const Board& board, std::vector<Remark>& notes);

}  // namespace exchange
