#pragma once

#include <string>

#include "exchange/Board.h"

namespace deals {

// A line of `list`: number, board, dealer, contract, declarer, lead, cards and texts, with tabs between them; what is
// unknown is empty. An error follows as a ninth field. UTF-8.
std::string line_of(int number, const exchange::Board& board);

// The same board as an object of JSON; what is unknown is null.
std::string json_of(int number, const exchange::Board& board);

}  // namespace deals
