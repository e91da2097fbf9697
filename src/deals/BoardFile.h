#pragma once

#include <functional>
#include <optional>
#include <string>

#include "deals/Report.h"
#include "exchange/Board.h"

namespace deals {

using TakeBoard = std::function<void(exchange::Board& board)>;
// The contract of the board that is read next, for one of which the file tells none.
using KnownContract = std::function<std::optional<exchange::Contract>()>;

// Reads the boards of a PBN or LIN file, told apart by the name's ending, otherwise by the first character: a letter
// begins a LIN file. `progress` is told in front of each board how many bytes are read, and of how many; 0 where nobody
// knows. Failures 53, 70, 75 and 57 as of any file, and one where there is no board in it.
void read_boards(const std::string& path, const TakeBoard& take, const KnownContract& known = {},
                 const Progress& progress = {});

}  // namespace deals
