// The play of a PBN game: rows of four cards, in columns from the opening leader on.
#include <algorithm>
#include <array>
#include <utility>

#include "base/Text.h"
#include "exchange/PbnReader.h"

namespace exchange::pbn {

namespace {

// A card as it stands in a row, by the number of the row and its place there.
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

class SectionReader {
public:
    SectionReader(const PbnGame& game, const PbnTag& tag, Board& board)
        : tag_(tag), board_(board), notes_(notes_behind(game, tag)), by_lines_(rows_are_lines()) {}

    // False if it is against the rules in a way that nobody can mend.
    bool read(WrittenPlay& written) {
        bool ended = false;
        for (const PbnToken& token : tag_.tokens) {
            if (token.kind == PbnToken::Kind::Comment) {
                take_text(token, ended, written);
            } else if (token.text == "*") {
                ended = true;
            } else if (!ended && !take_word(token, written)) {
                return false;
            }
        }
        return true;
    }

private:
    // As a rule a row is a line; where a line has more than four cards, every four of them are one.
    bool rows_are_lines() const {
        std::map<int, int> words;
        for (const PbnToken& token : tag_.tokens) {
            const bool counts =
                token.kind == PbnToken::Kind::Word && token.text != "+" && !without_marks(token.text).word.empty();
            if (counts && ++words[token.row] > kSeatCount + (token.text == "*" ? 1 : 0)) return false;
        }
        return true;
    }

    bool take_word(const PbnToken& token, WrittenPlay& written) {
        if (token.text.starts_with('^')) {
            board_.fail(token.line, "an irregular card: " + token.text);
            return false;
        }
        const MarkedWord marked = without_marks(token.text);
        if (!marked.word.empty() && marked.word != "+") {
            const auto card = card_of(marked.word);
            if (!card && marked.word != "-") {
                board_.fail(token.line, "not a card: " + token.text);
                return false;
            }
            const bool new_row =
                written.rows.empty() || written.rows.back().size() == kSeatCount || (by_lines_ && token.row != row_);
            if (new_row) written.rows.emplace_back();
            row_ = token.row;
            written.rows.back().push_back({card, token.line});
        }
        if (const auto note = notes_.find(marked.note); note != notes_.end())
            take_text({PbnToken::Kind::Comment, note->second, token.line}, false, written);
        return true;
    }

    static void take_text(const PbnToken& text, bool ended, WrittenPlay& written) {
        if (ended) {
            written.behind.push_back(text);
        } else if (written.rows.empty()) {
            written.before.push_back(text);
        } else {
            written.texts.push_back({written.rows.size() - 1, written.rows.back().size() - 1, text});
        }
    }

    const PbnTag& tag_;
    Board& board_;
    std::map<std::string, std::string> notes_;
    bool by_lines_;
    int row_ = 0;
};

// Who played each slot. Columns run from the opening leader; a player without a card there is marked "-".
using Players = std::vector<std::vector<Seat>>;

Players players_by_column(const std::vector<Row>& rows, Seat leader) {
    Players players;
    for (const Row& row : rows) {
        std::vector<Seat> seats;
        for (std::size_t i = 0; i < row.size(); ++i)
            seats.push_back(after(leader, static_cast<int>(i)));
        players.push_back(seats);
    }
    return players;
}

bool hold_their_cards(const std::vector<Row>& rows, const Players& players, const Deal& deal) {
    for (std::size_t r = 0; r < rows.size(); ++r) {
        for (std::size_t i = 0; i < rows[r].size(); ++i) {
            if (rows[r][i].card && !deal.of(players[r][i]).holds(*rows[r][i].card)) return false;
        }
    }
    return true;
}

// The players by who holds each card; none if a row has two cards of one hand.
std::optional<Players> players_by_hand(const std::vector<Row>& rows, const Deal& deal) {
    Players players;
    for (const Row& row : rows) {
        std::vector<Seat> seats(row.size(), Seat::North);
        std::array<bool, kSeatCount> taken{};
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (!row[i].card) continue;
            const auto holder = deal.holder(*row[i].card);
            if (!holder || std::exchange(taken[static_cast<std::size_t>(*holder)], true)) return std::nullopt;
            seats[i] = *holder;
        }
        players.push_back(seats);
    }
    return players;
}

// The cards in true order, and the number of each slot in it, up to the first card that is missing.
struct TrueOrder {
    Play play{};
    std::vector<std::vector<int>> numbers{};  // by row and slot; 0 for a slot that was not reached
    bool gap = false;                         // cards follow the one that is missing
};

TrueOrder in_true_order(const std::vector<Row>& rows, const Players& players, Seat leader, std::optional<Suit> trump) {
    TrueOrder order;
    order.play.leader = leader;
    bool stopped = false;
    std::size_t cards = 0;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        const Row& row = rows[r];
        order.numbers.emplace_back(row.size(), 0);
        cards += static_cast<std::size_t>(
            std::ranges::count_if(row, [](const Slot& slot) { return slot.card.has_value(); }));
        Trick trick{leader, {}};
        while (!stopped && !trick.complete()) {
            const auto& seats = players[r];
            std::size_t slot = 0;
            while (slot < row.size() && !(row[slot].card && seats[slot] == trick.turn()))
                ++slot;
            stopped = slot == row.size();
            if (stopped) break;
            trick.cards.push_back(*row[slot].card);
            order.play.cards.push_back(*row[slot].card);
            order.numbers[r][slot] = static_cast<int>(order.play.cards.size());
        }
        if (trick.complete()) leader = trick.winner(trump);
    }
    order.gap = cards > order.play.cards.size();
    return order;
}

void place_texts(const WrittenPlay& written, const TrueOrder& order, int line, Board& board) {
    for (const PbnToken& text : written.before)
        add_text(board, {Place::Kind::Question, 0}, text);
    for (const Text& text : written.texts) {
        const int number = order.numbers[text.row][text.slot];
        if (number > 0) {
            add_text(board, {Place::Kind::Card, number}, text.text);
        } else {
            // A place without a card, or a card behind a gap.
            const int last = static_cast<int>(order.play.cards.size());
            board.note(line, "a text has no card of its own and stands at the card before it");
            add_text(board, last > 0 ? Place{Place::Kind::Card, last} : Place{Place::Kind::Question, 0}, text.text);
        }
    }
    for (const PbnToken& text : written.behind)
        add_text(board, {Place::Kind::Answer, 0}, text);
}

int line_of_card(const WrittenPlay& written, const TrueOrder& order, int number) {
    for (std::size_t r = 0; r < written.rows.size(); ++r) {
        for (std::size_t i = 0; i < written.rows[r].size(); ++i) {
            if (order.numbers[r][i] == number) return written.rows[r][i].line;
        }
    }
    return 0;
}

}  // namespace

void read_play(const PbnGame& game, Board& board) {
    const PbnTag* tag = game.find("Play");
    if (!tag || !tells_something(tag->value) || board.error) return;
    WrittenPlay written;
    if (!SectionReader(game, *tag, board).read(written)) return;
    const bool any = std::ranges::any_of(written.rows, [](const Row& row) {
        return std::ranges::any_of(row, [](const Slot& slot) { return slot.card.has_value(); });
    });
    if (!any || !board.deal) {
        place_texts({{}, {}, written.before, {}}, {}, tag->line, board);
        for (const Text& text : written.texts)
            add_text(board, {Place::Kind::Question, 0}, text.text);
        for (const PbnToken& text : written.behind)
            add_text(board, {Place::Kind::Question, 0}, text);
        return;
    }
    if (!board.contract) return board.note(tag->line, "a play without a contract is left out");

    const Seat leader = board.contract->leader();
    const bool led_as_tagged = tag->value.size() == 1 && seat_of(tag->value[0]) == leader;
    Players players = players_by_column(written.rows, leader);
    if (!led_as_tagged || !hold_their_cards(written.rows, players, *board.deal)) {
        const auto by_hand = players_by_hand(written.rows, *board.deal);
        const Slot& first = written.rows.front().front();
        if (!by_hand || !first.card || by_hand->front().front() != leader) {
            return board.fail(tag->line, "the play does not fit the hands, or is not led from declarer's left");
        }
        board.note(tag->line, led_as_tagged ? "the cards of the play stand out of their columns"
                                            : "the play is led by another seat than its tag says");
        players = *by_hand;
    }
    const std::optional<Suit> trump = board.contract->trump();
    const TrueOrder order = in_true_order(written.rows, players, leader, trump);
    const std::string problem = order.play.problem(*board.deal, trump);
    if (!problem.empty()) {
        return board.fail(line_of_card(written, order, numeric_value(problem.substr(problem.find(' ')))), problem);
    }
    if (order.gap) {
        board.note(tag->line, "the play has a gap behind card " + std::to_string(order.play.cards.size()) +
                                  "; the rest is left out");
    }
    board.play = order.play;
    place_texts(written, order, tag->line, board);
}

}  // namespace exchange::pbn
