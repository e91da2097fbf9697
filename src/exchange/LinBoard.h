#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/Board.h"
#include "exchange/LinCommands.h"
#include "exchange/LinResults.h"

namespace exchange {

// Puts one board of a LIN file together, command by command.
class LinBoard {
public:
    explicit LinBoard(int line) { board_.line = line; }

    bool has_deal() const { return has_deal_; }
    bool has_vulnerable() const { return board_.vulnerable.has_value(); }
    char room() const { return room_; }  // "o" or "c"; 0 where none is told
    int number() const;                  // 0 where none is told

    void take(const LinCommand& command);
    // The board, held against the rules. A board without an auction takes its contract from the result, one without
    // that from `known`.
    Board finish(const LinResult& result, const std::optional<Contract>& known);

private:
    struct Piece {
        std::size_t calls;  // in front of it
        std::size_t cards;
        bool behind_claim;
        std::string text;
        int line;
    };
    struct WrittenCard {
        std::string text;
        int line;
    };

    void take_deal(const std::string& value, int line);
    void take_number(const std::string& value);
    void take_vulnerable(const std::string& value, int line);
    void take_calls(const std::string& value, int line);
    void take_text(const std::string& text, int line);
    void take_cards(const std::string& value, int line);
    bool settle_dealer();
    void settle_auction(const LinResult& result);
    void settle_play();
    void place_texts();

    Board board_;
    bool has_deal_ = false;
    char room_ = 0;
    bool bidding_known_ = true;
    bool taken_back_ = false;  // what follows is not read
    bool claimed_ = false;
    bool broken_ = false;  // names and values are mixed up
    int calls_line_ = 0;
    std::vector<Call> calls_;
    std::vector<WrittenCard> cards_;
    std::vector<Piece> pieces_;
};

}  // namespace exchange
