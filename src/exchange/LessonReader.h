#pragma once

#include <string>
#include <vector>

#include "exchange/Board.h"
#include "exchange/DealFiles.h"

namespace exchange {

// A lesson, or a deal of the companion, as it lies in its folder.
struct Lesson {
    std::string name{};             // of the folder, UTF-8
    std::vector<DealFile> files{};  // those that are there
    // What they tell as far as it keeps to the rules, cards in true order; its number is the one in the name. What of
    // the bidding nobody can read is told in its notes.
    Board board{};
    // What is against the rules or missing; empty for a sound deal.
    std::vector<std::string> problems{};

    bool has_play() const;  // of a lesson; a companion's deal has the opening lead alone
};

// Reads the eight files of the folder, six of a companion's deal. Failure 53 where none of them is there, others as of
// any file.
Lesson read_lesson(const std::string& folder);

// The same from files that were read.
Lesson lesson_of(std::string name, std::vector<DealFile> files);

}  // namespace exchange
