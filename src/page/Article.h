#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "exchange/LessonReader.h"

// A lesson as it is read without a script: question, bidding, hands, the play trick by trick with its texts, answer.
// The script finds in it all that it shows; what it looks for are the attributes "data-...".
namespace page {

// "Spel 7", or the name of a lesson without a number.
std::string title_of(const exchange::Lesson& lesson);

// The text at that place of a board; empty where there is none.
std::string text_at(const exchange::Board& board, const exchange::Place& place);

// The calls in rows of the four seats, from North on; empty in front of the dealer and behind the last.
std::vector<std::array<std::optional<exchange::Call>, exchange::kSeatCount>> rounds_of(
    const exchange::Auction& auction);

// The head of a table with a column for each seat behind the first.
std::string seats_head(const char* first);

// "Slagen: Noord-Zuid 10, Oost-West 3", of a complete play.
std::string result_of(const exchange::Board& board);

// An <article> under that id. The lesson has a complete play.
std::string article(const exchange::Lesson& lesson, const std::string& id, bool in_booklet);

}  // namespace page
