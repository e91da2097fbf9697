#pragma once

#include <istream>
#include <optional>

#include "exchange/Board.h"
#include "exchange/LinCommands.h"
#include "exchange/LinResults.h"

namespace exchange {

// Reads the boards of a LIN file, one after the other and of any size, and holds each against the rules of the game. Of
// a presentation each full deal is one, with its play up to the first card that is taken back.
class LinReader {
public:
    explicit LinReader(std::istream& stream) : commands_(stream) {}
    // The next board; none behind the last. `known` is the contract of a board of which the file tells none. Failure 57
    // where the stream breaks off.
    std::optional<Board> next(const std::optional<Contract>& known = {});

private:
    LinCommands commands_;
    std::optional<LinCommand> ahead_;         // begins the next board
    std::optional<LinCommand> vulnerable_{};  // of the next board, told in front of it
    LinResults results_;
};

}  // namespace exchange
