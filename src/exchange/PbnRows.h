#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "exchange/Board.h"
#include "exchange/PbnGame.h"

// The play of a PBN game as it is written: rows of four cards, in columns from the opening leader on.
namespace exchange::pbn {

// A card as it stands in a row; none where it is missing.
struct Slot {
    std::optional<Card> card{};
    int line = 0;
};
using Row = std::vector<Slot>;  // at most four

// The texts of a section, each behind the slot that it follows.
struct Text {
    std::size_t row = 0;
    std::size_t slot = 0;
    PbnToken text{};
};

struct WrittenPlay {
    std::vector<Row> rows{};
    std::vector<Text> texts{};       // at a card
    std::vector<PbnToken> before{};  // in front of the first card
    std::vector<PbnToken> behind{};  // behind the end mark
};

// A row is as a rule every four cards, wherever the lines end; where cards are left out, a line.
enum class Rows { Fours, Lines };

// Reads the words of the section into rows; a text that a card's note number names stands behind the card.
class RowReader {
public:
    RowReader(const PbnGame& game, const PbnTag& tag, Board& board);

    // Whether every line can be a row.
    bool has_rows_in_lines() const;
    // Nothing where a word is no card: that is an error of the board.
    std::optional<WrittenPlay> read(Rows rows);

private:
    std::map<int, std::size_t> cards_by_line() const;
    bool stands_for_a_card(const PbnToken& token) const;
    bool take_word(const PbnToken& token, Rows rows, WrittenPlay& written);

    const PbnTag& tag_;
    Board& board_;
    std::map<std::string, std::string> notes_;
    std::map<int, std::size_t> cards_;  // by line
    int line_ = 0;                      // of the word before
};

}  // namespace exchange::pbn
