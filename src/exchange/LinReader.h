#pragma once

#include <istream>
#include <optional>
#include <string>
#include <vector>

#include "exchange/Board.h"
#include "exchange/Lines.h"

namespace exchange {

// A command of a LIN file: two letters and a value, with a bar behind each.
struct LinCommand {
    std::string name{};  // lower case
    std::string value{};
    int line = 0;
};

// Cuts a file into its commands.
class LinCommands {
public:
    explicit LinCommands(std::istream& stream) : lines_(stream) {}
    std::optional<LinCommand> next();

private:
    // The text up to the next bar; none at the end of the file.
    std::optional<std::string> field();

    Lines lines_;
    std::string rest_;  // of the line that is being read
    std::size_t at_ = 0;
    bool open_ = false;
    int line_ = 0;  // where the last field began
};

// Reads the boards of a LIN file, one after the other and of any size, and holds each against the rules of the game. Of
// a presentation each full deal is one, with its play up to the first card that is taken back.
class LinReader {
public:
    explicit LinReader(std::istream& stream) : commands_(stream) {}
    // The next board; none behind the last. Failure 57 where the stream breaks off.
    std::optional<Board> next();

private:
    LinCommands commands_;
    std::optional<LinCommand> ahead_;   // begins the next board
    std::vector<std::string> results_;  // of the whole file, in the order of the boards
    std::size_t boards_ = 0;
};

}  // namespace exchange
