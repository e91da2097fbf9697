#include "exchange/LinReader.h"

#include <utility>

#include "exchange/LinBoard.h"

namespace exchange {

std::optional<Board> LinReader::next(const std::optional<Contract>& known) {
    std::optional<LinBoard> board;
    for (auto command = ahead_ ? std::exchange(ahead_, std::nullopt) : commands_.next(); command;
         command = commands_.next()) {
        results_.take(*command);
        if (!board) {
            board.emplace(command->line);
            if (const auto vulnerable = std::exchange(vulnerable_, std::nullopt)) board->take(*vulnerable);
        }
        if (board->has_deal() && (command->name == "qx" || command->name == "md")) {
            ahead_ = command;
            break;
        }
        // The vulnerability stands in front of the deal or behind it: a second one is that of the next board.
        if (command->name == "sv" && board->has_deal() && board->has_vulnerable()) {
            vulnerable_ = command;
        } else {
            board->take(*command);
        }
    }
    if (!board || (!board->has_deal() && !ahead_)) return std::nullopt;
    return board->finish(results_.next(board->room(), board->number()), known);
}

}  // namespace exchange
