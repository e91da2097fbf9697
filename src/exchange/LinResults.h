#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/Auction.h"
#include "exchange/LinCommands.h"

namespace exchange {

// How a board ended, as the head of a LIN file tells it; nothing is set where it tells nothing.
struct LinResult {
    std::optional<Contract> contract{};
    std::optional<int> tricks{};  // of the declarer
    bool passed_out = false;
};

// The results in the head of a file: `rs` in the order of the boards, and for a match of two rooms, which `vg` tells,
// two a board.
class LinResults {
public:
    void take(const LinCommand& command);
    // Of the next board, or where rooms are told, of that room ("o", "c") and board.
    LinResult next(char room, int board);

private:
    std::vector<std::string> results_;
    int first_board_ = 0;  // of the match; 0 where there is none
    int last_board_ = 0;
    std::size_t given_ = 0;
};

}  // namespace exchange
