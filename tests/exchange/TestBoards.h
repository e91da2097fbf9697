#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "base/Text.h"
#include "exchange/Board.h"

// What tests of the readers share.
namespace test {

struct Told {
    const char* name;
    std::string bytes;
    std::string expected;
};

template <class Reader>
std::vector<exchange::Board> read(const std::string& bytes) {
    std::istringstream stream(bytes);
    Reader reader(stream);
    std::vector<exchange::Board> boards;
    while (auto board = reader.next())
        boards.push_back(*board);
    return boards;
}

// All that a test looks at, in one text: contract and declarer, cards, texts, notes, what makes it unfit, the error.
inline std::string told(const exchange::Board& board) {
    using Kind = exchange::Place::Kind;
    std::string text = "-";
    if (board.passed_out) text = "out";
    if (board.contract) text = text_of(*board.contract) + letter_of(board.contract->declarer);
    text += " " + std::to_string(board.play ? board.play->cards.size() : 0);
    for (const exchange::PlacedText& placed : board.texts) {
        text += placed.place.kind == Kind::Question ? " Q" : placed.place.kind == Kind::Answer ? " A" : " C";
        if (placed.place.card > 0) text += std::to_string(placed.place.card);
        text += "=" + base::replaced(placed.text, "\n", "/");
    }
    for (const exchange::Remark& note : board.notes)
        text += " (" + note.text + ")";
    if (board.unfit) text += " <" + board.unfit->text + ">";
    if (board.error) text += " !" + std::to_string(board.error->line) + ": " + board.error->text;
    return text;
}

}  // namespace test
