#pragma once

#include <string>
#include <vector>

#include "exchange/Board.h"

namespace exchange {

// A LIN file of these boards: UTF-8, lines end in CR LF. The question stands in front of the bidding, texts at cards
// behind their cards, and the answer behind the claim. A text has no bars; strokes stand for them.
std::string lin_file(const std::vector<Board>& boards);

}  // namespace exchange
