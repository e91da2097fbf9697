#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/BestPlay.h"
#include "exchange/Board.h"

namespace deals {

// A deal that is checked, and what came of it.
struct Verdict {
    std::string name{};  // of the lesson, or where the board stands
    exchange::Board board{};
    std::vector<std::string> problems{};  // of its record
    std::string unfit{};                  // why there is nothing to be checked
    std::optional<exchange::BestPlay> best_play{};

    bool sound() const { return problems.empty(); }
};

// Of a board of a file, before its play is looked into.
Verdict verdict_of(std::string name, exchange::Board board);
// Looks into the play, where there are a deal and a contract. It may take a second.
void look_into(Verdict& verdict);

// A line, and one for each card that gave tricks away.
std::string text_of(const Verdict& verdict);
// An object of JSON.
std::string json_of(const Verdict& verdict);

}  // namespace deals
