#pragma once

#include <functional>
#include <string>

#include "exchange/Board.h"

namespace deals {

// Reads the boards of a PBN or LIN file, told apart by the name's ending, otherwise by the first character that is no
// blank: "[", "{", ";" and "%" begin a PBN file. Failures 53, 70, 75 and 57 as of any file.
void read_boards(const std::string& path, const std::function<void(exchange::Board&)>& take);

}  // namespace deals
