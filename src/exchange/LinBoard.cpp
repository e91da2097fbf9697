#include "exchange/LinBoard.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "base/Text.h"
#include "exchange/Texts.h"

namespace exchange {

namespace {

// Deals and dealers are written from Zuid on.
constexpr std::array kSeatsFromSouth{Seat::South, Seat::West, Seat::North, Seat::East};

constexpr std::size_t kLongestCall = 5;  // "redbl"

// What may stand between calls and cards: blanks and marks of quality.
bool separates(char character) { return std::string_view(" \t\r\n!?").find(character) != std::string_view::npos; }

// Cards of one hand: a suit's letter and the ranks behind it. False for anything else.
bool read_hand(const std::string& text, Hand& hand) {
    std::optional<Suit> suit;
    for (const char letter : base::replaced(text, "10", "T")) {
        if (const auto next = suit_of(letter)) {
            suit = next;
            continue;
        }
        const auto rank = rank_of(letter);
        if (!rank || !suit || hand.holds(Card{*suit, *rank})) return false;
        hand.add({*suit, *rank});
    }
    return true;
}

// The calls that stand one behind the other in a value; false where something else stands there.
bool read_calls(const std::string& value, std::vector<Call>& calls) {
    for (std::size_t at = 0; at < value.size();) {
        if (separates(value[at])) {
            ++at;
            continue;
        }
        // The longest that is a call: "1dd" is a bid and a double, "pp" are two passes.
        std::optional<Call> call;
        for (std::size_t length = std::min(kLongestCall, value.size() - at); length > 0 && !call; --length) {
            call = call_of(value.substr(at, length));
            if (call) at += length;
        }
        if (!call) return false;
        calls.push_back(*call);
    }
    return true;
}

// Board numbers tell the dealer: Noord has the first.
Seat dealer_of(int board) { return after(Seat::North, board - 1); }

}  // namespace

int LinBoard::number() const { return base::numeric_value(board_.board); }

void LinBoard::take(const LinCommand& command) {
    const std::string value = lin::without_blanks(command.value);
    if (command.name == "md") {
        take_deal(value, command.line);
    } else if (command.name == "qx" || command.name == "ah") {
        take_number(value);
    } else if (command.name == "sv") {
        take_vulnerable(value, command.line);
    } else if (command.name == "mb") {
        take_calls(value, command.line);
    } else if (command.name == "an" || command.name == "nt" || command.name == "at") {
        take_text(value, command.line);
    } else if (command.name == "pc") {
        take_cards(value, command.line);
    } else if (command.name == "up") {
        if (!taken_back_) board_.note(command.line, "cards are taken back; what follows is left out");
        taken_back_ = true;
    } else if (command.name == "mc") {
        if (!value.empty() && lin::number_in(value) <= kTricks) board_.result = lin::number_in(value);
        claimed_ = true;
    } else if (command.name.size() != lin::kNameLength && !broken_) {
        board_.note(command.line, "not a command: " + command.name);
        broken_ = true;
    }
}

void LinBoard::take_number(const std::string& value) {
    if (const int number = lin::number_in(value); number > 0) board_.board = std::to_string(number);
    const std::string room = base::lower_case(base::left(value, 1));
    if (room == "o" || room == "c") room_ = room[0];
}

void LinBoard::take_deal(const std::string& value, int line) {
    has_deal_ = true;
    std::string hands = value;
    if (!hands.empty() && hands[0] >= '0' && hands[0] <= '4') {
        if (hands[0] != '0') board_.dealer = kSeatsFromSouth[static_cast<std::size_t>(hands[0] - '1')];
        hands.erase(0, 1);
    }
    Deal deal;
    const base::Pieces pieces = base::split(hands, ",");
    for (int i = 0; i <= pieces.last() && i < kSeatCount; ++i) {
        const Seat seat = kSeatsFromSouth[static_cast<std::size_t>(i)];
        if (!read_hand(lin::without_blanks(pieces[i]), deal.of(seat))) {
            return board_.fail(line, std::string("not a hand of ") + letter_of(seat) + ": " + pieces[i]);
        }
    }
    deal.complete();
    const bool full = std::ranges::any_of(kSeats, [&](Seat seat) { return deal.of(seat).count() >= kCardsInHand; });
    const auto unknown = std::ranges::count_if(kSeats, [&](Seat seat) { return deal.of(seat).empty(); });
    board_.deal = deal;
    if (!full) {
        board_.unfit = Remark{line, "a picture of a few cards"};
        board_.note(line, "a picture of a few cards is no deal");
    } else if (unknown > 1) {
        board_.unfit = Remark{line, "more than one hand is unknown"};
    } else if (const std::string problem = deal.problem(); !problem.empty()) {
        board_.fail(line, problem);
    }
}

void LinBoard::take_vulnerable(const std::string& value, int line) {
    static const std::map<std::string, Vulnerable> kLetters{{"o", Vulnerable::None},     {"0", Vulnerable::None},
                                                            {"-", Vulnerable::None},     {"n", Vulnerable::NorthSouth},
                                                            {"e", Vulnerable::EastWest}, {"b", Vulnerable::Both}};
    const auto found = kLetters.find(base::lower_case(base::left(value, 1)));
    if (found != kLetters.end()) {
        board_.vulnerable = found->second;
    } else if (!value.empty()) {
        board_.note(line, "not a vulnerability: " + value);
    }
}

void LinBoard::take_calls(const std::string& value, int line) {
    if (calls_line_ == 0) calls_line_ = line;
    if (bidding_known_ && value == "?") {
        bidding_known_ = false;
        board_.note(line, "the bidding is known up to here");
    }
    if (!bidding_known_ || board_.error) return;
    if (!read_calls(value, calls_)) board_.fail(line, "not a call: " + value);
    if (calls_.size() > kMostCalls) board_.fail(line, "an auction without an end");
}

void LinBoard::take_text(const std::string& text, int line) {
    if (taken_back_ || text.empty()) return;
    pieces_.push_back({calls_.size(), cards_.size(), claimed_, with_symbols_of_lin(text), line});
}

// Cards stand one behind the other; a suit alone is the lowest of it.
void LinBoard::take_cards(const std::string& value, int line) {
    if (taken_back_) return;
    claimed_ = false;
    const std::string text = base::replaced(base::upper_case(value), "10", "T");
    for (std::size_t at = 0; at < text.size();) {
        if (separates(text[at])) {
            ++at;
            continue;
        }
        if (!suit_of(text[at])) return board_.fail(line, "not a card: " + value);
        const std::size_t length = at + 1 < text.size() && rank_of(text[at + 1]) ? 2 : 1;
        cards_.push_back({text.substr(at, length), line});
        at += length;
    }
}

Board LinBoard::finish(const LinResult& result, const std::optional<Contract>& known) {
    if (!has_deal_ && !board_.unfit) board_.unfit = Remark{board_.line, "no deal"};
    if (has_deal_ && !board_.error) settle_auction(result);
    if (!board_.contract && !board_.passed_out) board_.contract = known;
    if (has_deal_ && !board_.error) settle_play();
    place_texts();
    return std::move(board_);
}

// False where an auction has no dealer.
bool LinBoard::settle_dealer() {
    if (board_.dealer) return true;
    if (number() < 1) {
        board_.fail(calls_line_, "an auction without a dealer");
        return false;
    }
    board_.dealer = dealer_of(number());
    board_.note(calls_line_, "the dealer is that of the board's number");
    return true;
}

void LinBoard::settle_auction(const LinResult& result) {
    if (calls_.empty()) {
        board_.contract = result.contract;
        board_.passed_out = result.passed_out;
        if (!board_.result) board_.result = result.tricks;
        return;
    }
    if (!settle_dealer()) return;
    Auction auction{*board_.dealer, calls_};
    if (auction.drop_superfluous_passes())
        board_.note(calls_line_, "passes behind the end of the auction are left out");
    if (const std::string problem = auction.problem(); !problem.empty()) return board_.fail(calls_line_, problem);
    board_.auction = auction;
    if (auction.over()) {
        board_.contract = auction.contract();
        board_.passed_out = !board_.contract;
        if (!board_.result && result.contract == board_.contract) board_.result = result.tricks;
    } else {
        if (result.contract && auction.may_end_in(*result.contract)) board_.contract = result.contract;
        board_.note(calls_line_, "the auction is not finished");
    }
}

void LinBoard::settle_play() {
    if (cards_.empty() || board_.unfit) return;
    if (!board_.contract) return board_.note(cards_.front().line, "a play without a contract is left out");
    const std::optional<Suit> trump = board_.contract->trump();
    Play play{board_.contract->leader(), {}};
    Deal rest = *board_.deal;
    Trick trick{play.leader, {}};
    for (const WrittenCard& written : cards_) {
        Hand& hand = rest.of(trick.turn());
        auto card = card_of(written.text);
        if (!card) {
            const auto held = hand.cards(*suit_of(written.text[0]));
            if (held.empty()) return board_.fail(written.line, "no card of that suit: " + written.text);
            card = held.back();
            board_.note(written.line, "a suit alone is its lowest card, " + text_of(*card));
        }
        hand.remove(*card);
        trick.cards.push_back(*card);
        play.cards.push_back(*card);
        if (trick.complete()) trick = Trick{trick.winner(trump), {}};
    }
    if (const auto fault = play.fault(*board_.deal, trump))
        return board_.fail(cards_[fault->card - 1].line, fault->text);
    board_.play = play;
}

// Before the play at their calls, then at the card before them, behind a claim the answer.
void LinBoard::place_texts() {
    const bool played = board_.play.has_value();
    const bool over = board_.auction && board_.auction->over();
    for (const Piece& piece : pieces_) {
        Place place{};
        std::string text = piece.text;
        if (played && piece.behind_claim) {
            place.kind = Place::Kind::Answer;
        } else if (played && piece.cards > 0) {
            place = {Place::Kind::Card, static_cast<int>(piece.cards)};
        } else if (piece.calls > 0 && !(over && piece.calls >= calls_.size())) {
            text.insert(0, text_of(calls_[piece.calls - 1]) + ": ");
        }
        board_.add_text({place, text, piece.line});
    }
}

}  // namespace exchange
