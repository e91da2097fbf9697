// Who played which card of the rows of a PBN game, in which order.
#include <algorithm>
#include <array>
#include <utility>

#include "base/Text.h"
#include "exchange/PbnReader.h"
#include "exchange/PbnRows.h"

namespace exchange::pbn {

namespace {

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

// Who played which card of the rows, where that can be told; with a note where something was mended for it.
struct PlayedRows {
    WrittenPlay written{};
    Players players{};
};

std::optional<PlayedRows> in_columns(const WrittenPlay& written, Seat leader, const Board& board) {
    Players players = players_by_column(written.rows, leader);
    if (!hold_their_cards(written.rows, players, *board.deal)) return std::nullopt;
    return PlayedRows{written, std::move(players)};
}

// Mended where the first card is in the hand left of declarer and each row has one card of each hand.
std::optional<PlayedRows> out_of_columns(const WrittenPlay& written, Seat leader, const Board& board) {
    auto players = players_by_hand(written.rows, *board.deal);
    if (!players || !written.rows.front().front().card || players->front().front() != leader) return std::nullopt;
    return PlayedRows{written, std::move(*players)};
}

std::optional<PlayedRows> played_rows(RowReader& section, const WrittenPlay& fours, const PbnTag& tag, Board& board) {
    const Seat leader = board.contract->leader();
    const WrittenPlay lines = section.has_rows_in_lines() ? *section.read(Rows::Lines) : fours;
    const bool led_as_tagged = tag.value.size() == 1 && seat_of(tag.value[0]) == leader;
    if (led_as_tagged) {
        for (const WrittenPlay& written : {fours, lines}) {
            if (auto rows = in_columns(written, leader, board)) return rows;
        }
    }
    for (const WrittenPlay& written : {lines, fours}) {
        auto rows = out_of_columns(written, leader, board);
        if (!rows) continue;
        board.note(tag.line, led_as_tagged                ? "the cards of the play stand out of their columns"
                             : tells_something(tag.value) ? "the play is led by another seat than its tag says"
                                                          : "the play's tag names no seat");
        return rows;
    }
    board.fail(tag.line, "the play does not fit the hands, or is not led from declarer's left");
    return std::nullopt;
}

}  // namespace

void read_play(const PbnGame& game, Board& board) {
    const PbnTag* tag = game.find("Play");
    if (!tag || board.error || (!tells_something(tag->value) && !first_card_of(*tag))) return;
    RowReader section(game, *tag, board);
    const auto fours = section.read(Rows::Fours);
    if (!fours) return;
    const bool any = std::ranges::any_of(fours->rows, [](const Row& row) {
        return std::ranges::any_of(row, [](const Slot& slot) { return slot.card.has_value(); });
    });
    if (!any || !board.deal) return;
    if (!board.contract) return board.note(tag->line, "a play without a contract is left out");
    const auto rows = played_rows(section, *fours, *tag, board);
    if (!rows) return;

    const std::optional<Suit> trump = board.contract->trump();
    const TrueOrder order = in_true_order(rows->written.rows, rows->players, board.contract->leader(), trump);
    if (const auto fault = order.play.fault(*board.deal, trump))
        return board.fail(line_of_card(rows->written, order, static_cast<int>(fault->card)), fault->text);
    if (order.gap) {
        board.note(tag->line, "the play has a gap behind card " + std::to_string(order.play.cards.size()) +
                                  "; the rest is left out");
    }
    board.play = order.play;
    place_texts(rows->written, order, tag->line, board);
}

}  // namespace exchange::pbn
