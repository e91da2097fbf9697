#pragma once

#include <deque>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/Board.h"
#include "exchange/Lines.h"

// A game of a PBN file as it is written: tags, and behind each of them words and comments.
namespace exchange {

struct PbnToken {
    enum class Kind { Word, Comment };
    Kind kind = Kind::Word;
    std::string text{};
    int line = 0;
    int row = 0;  // words of one line of the file have one row
};

struct PbnTag {
    std::string name{};
    std::string value{};
    int line = 0;
    std::vector<PbnToken> tokens{};  // up to the next tag
};

struct PbnGame {
    int line = 0;
    std::vector<PbnToken> before{};  // comments in front of the first tag
    std::vector<PbnTag> tags{};
    std::vector<Remark> problems{};

    // The first tag of that name, in any case; null if there is none.
    const PbnTag* find(std::string_view name) const;
};

// Cuts a file into its games. An empty line ends a game, but not within a comment; so does a second Event, Board or
// Deal tag. A comment or a tag that does not end is told, and ends where the next game begins behind an empty line.
class PbnGames {
public:
    explicit PbnGames(std::istream& stream) : lines_(stream) {}
    std::optional<PbnGame> next();

private:
    enum class State { Outside, Comment, Tag };
    void take_line(std::string_view line);
    std::size_t take_comment(std::string_view line, std::size_t at);
    std::size_t take_tag(std::string_view line, std::size_t at);
    void finish_tag();
    void finish_game();
    // Ends the comment or the tag that is open.
    void break_off();
    void add_token(PbnToken::Kind kind, std::string text, int line);

    Lines lines_;
    PbnGame game_;               // the one that is being read
    std::deque<PbnGame> ready_;  // those that are whole
    State state_ = State::Outside;
    std::string text_;  // of the comment or the tag that is open
    int began_ = 0;     // its line
    bool in_quotes_ = false;
    bool behind_empty_line_ = false;
    int row_ = 0;
};

}  // namespace exchange
