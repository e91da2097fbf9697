#pragma once

#include <exception>
#include <string>

#include "exchange/Board.h"

// How boards and failures are told.
namespace deals {

// Where in its file something of a board stands: "board 3, line 41: "; "deal 7, line 41: " for the seventh deal where
// the file gives it no number. Where several files are read, the file's name goes in front; it is empty otherwise.
std::string where(const std::string& file, const exchange::Board& board, int number, int line);

// The text in one line: control characters, which a file may bring along, are blanks.
std::string one_line(std::string text);

// A note of a board behind where it stands, in one line: "board 3, line 41: ...".
std::string note_of(const std::string& file, const exchange::Board& board, int number, const exchange::Remark& note);

// The text of a failure in English; what its own text has in brackets follows.
std::string english(const std::exception& failure);

}  // namespace deals
