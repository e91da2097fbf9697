#pragma once

#include <optional>
#include <vector>

#include "exchange/Board.h"

namespace exchange {

// A card of a play that gave tricks away, with all cards open.
struct CostlyCard {
    int number = 0;  // 1 to 52 in true order
    Seat seat = Seat::North;
    Card card{};
    int tricks = 0;            // that it gave away
    std::vector<Card> best{};  // the cards that give none away
};

// What a deal comes to on best play of all hands, and what was given away. Tricks are the declarer's.
struct BestPlay {
    int tricks = 0;
    std::optional<int> played{};  // what a complete play made
    std::vector<CostlyCard> costly{};
};

// Of a whole deal with a contract and a legal play or none.
BestPlay best_play(const Board& board);

}  // namespace exchange
