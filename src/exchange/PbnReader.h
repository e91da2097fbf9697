#pragma once

#include <istream>
#include <map>
#include <optional>
#include <string>

#include "exchange/Board.h"
#include "exchange/PbnGame.h"

namespace exchange {

// Reads the boards of a PBN 2.1 file, one after the other and of any size. Every board is held against the rules of the
// game; what can be mended without a guess is mended and told, what cannot is an error of that board alone.
class PbnReader {
public:
    explicit PbnReader(std::istream& stream) : games_(stream) {}
    // The next board; none behind the last. `known` is the contract of a board of which the file tells none. Failure 57
    // where the stream breaks off.
    std::optional<Board> next(const std::optional<Contract>& known = {});

private:
    void inherit(PbnGame& game);
    void carry_deal_over(const PbnGame& game, Board& board);

    PbnGames games_;
    std::map<std::string, std::string> previous_;  // tag values of the game before, by name in lower case
    std::map<std::string, std::string> lasting_;   // those that hold for all later games
    std::string previous_board_;
    std::optional<Deal> previous_deal_;
};

// Parts of the work, each adding what it found to the board.
namespace pbn {

// "?", "-" and the empty text tell nothing.
bool tells_something(const std::string& value);
// A hand may be missing ("-"); several too, then the deal is not whole.
void read_deal(const PbnTag& tag, Board& board);
void read_contract(const PbnGame& game, Board& board);
void read_auction(const PbnGame& game, Board& board);
// The contract of a board whose auction and tags don't tell it; what a tag alone tells must not be another.
void take_known_contract(const PbnGame& game, const Contract& known, Board& board);
void read_play(const PbnGame& game, Board& board);
// Comments that stand before or behind auction and play.
void read_comments(const PbnGame& game, Board& board);

// The card that a section begins with; none where its first word is anything else.
std::optional<Card> first_card_of(const PbnTag& section);

// Adds a text at its place; an empty one is none.
void add_text(Board& board, const Place& place, const PbnToken& text);
// Joins the texts of each place in the order in which they stand in the file, and puts the places in true order.
void join_texts(Board& board);

// What follows the letters of a call or a card: marks of quality are dropped, a note's number is kept.
struct MarkedWord {
    std::string word;
    std::string note;  // "3" of "=3="
};
MarkedWord without_marks(const std::string& word);
// The texts of the notes that stand behind a section, by number.
std::map<std::string, std::string> notes_behind(const PbnGame& game, const PbnTag& section);

}  // namespace pbn

}  // namespace exchange
