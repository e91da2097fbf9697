#include "exchange/LinReader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/Text.h"
#include "exchange/Texts.h"

namespace exchange {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

std::string without_blanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(kBlanks) - first + 1));
}

// Deals and dealers are written from Zuid on.
constexpr std::array kSeatsFromSouth{Seat::South, Seat::West, Seat::North, Seat::East};

// The first number in a text; 0 where there is none.
int number_in(const std::string& text) {
    return numeric_value(text.substr(std::min(text.find_first_of("0123456789"), text.size())));
}

// Cards of one hand: a suit's letter and the ranks behind it. False for anything else.
bool read_hand(const std::string& text, Hand& hand) {
    std::optional<Suit> suit;
    for (const char letter : replaced(text, "10", "T")) {
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

// Board numbers tell the dealer: Noord has the first.
Seat dealer_of(int board) { return after(Seat::North, board - 1); }

struct Result {
    std::optional<Contract> contract{};
    std::optional<int> tricks{};
    bool passed_out = false;
};

// "4SE+1", "3NTxW=", "PASS".
Result result_of(const std::string& text) {
    Result result;
    const std::string upper = upper_case(text);
    if (upper == "PASS" || upper == "P") return {{}, {}, true};
    const std::size_t sign = std::min(upper.find_first_of("+-="), upper.size());
    // The crosses of a double stand before or behind the declarer.
    std::string contract = replaced(upper.substr(0, sign), "X", "");
    const auto crosses = std::min<std::size_t>(sign - contract.size(), 2);
    if (contract.size() < 3) return result;
    const auto declarer = seat_of(contract.back());
    contract.pop_back();
    const auto doubling = static_cast<Doubling>(crosses);
    const auto bid = call_of(contract);
    if (!declarer || !bid || bid->kind != Call::Kind::Bid) return result;
    result.contract = Contract{bid->bid, doubling, *declarer};
    if (sign < upper.size()) {
        const int beyond = upper[sign] == '=' ? 0 : number_in(upper.substr(sign)) * (upper[sign] == '-' ? -1 : 1);
        result.tricks = 6 + bid->bid.level + beyond;
    }
    return result;
}

// The calls that stand one behind the other in a value; false where something else stands there.
bool read_calls(const std::string& value, std::vector<Call>& calls) {
    const std::string text = lower_case(value);
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == '!' || text[at] == '?' || kBlanks.find(text[at]) != std::string_view::npos) {
            ++at;
            continue;
        }
        std::optional<Call> call;
        for (std::size_t length = std::min<std::size_t>(5, text.size() - at); length > 0 && !call; --length) {
            call = call_of(text.substr(at, length));
            // "2d" is a bid, "1dd" one and a double; a lone letter may begin the next call.
            if (call) at += length;
        }
        if (!call) return false;
        calls.push_back(*call);
    }
    return true;
}

// Puts one board together, command by command.
class Assembly {
public:
    explicit Assembly(int line) { board_.line = line; }

    bool has_deal() const { return has_deal_; }
    Board& board() { return board_; }

    void take(const LinCommand& command) {
        const std::string value = without_blanks(command.value);
        if (command.name == "md") {
            take_deal(value, command.line);
        } else if (command.name == "qx" || command.name == "ah") {
            if (number_in(value) > 0) board_.board = std::to_string(number_in(value));
        } else if (command.name == "sv") {
            take_vulnerable(value);
        } else if (command.name == "mb") {
            take_calls(value, command.line);
        } else if (command.name == "an") {
            take_text(value, command.line);
        } else if (command.name == "nt" || command.name == "at") {
            take_text(without_blanks(command.value), command.line);
        } else if (command.name == "pc") {
            take_cards(value, command.line);
        } else if (command.name == "up") {
            if (!stopped_) board_.note(command.line, "cards are taken back; the play is read up to there");
            stopped_ = true;
        } else if (command.name == "mc") {
            if (!value.empty() && number_in(value) <= kTricks) board_.result = number_in(value);
            claimed_ = true;
        }
    }

    Board finish(const Result& result) {
        if (board_.error || !has_deal_) {
            if (!has_deal_ && !board_.unfit) board_.unfit = Remark{board_.line, "no deal"};
            join();
            return std::move(board_);
        }
        settle_auction(result);
        if (!board_.error) settle_play();
        join();
        return std::move(board_);
    }

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

    void take_deal(const std::string& value, int line) {
        has_deal_ = true;
        std::string hands = value;
        if (!hands.empty() && hands[0] >= '0' && hands[0] <= '4') {
            if (hands[0] != '0') board_.dealer = kSeatsFromSouth[static_cast<std::size_t>(hands[0] - '1')];
            hands.erase(0, 1);
        }
        Deal deal;
        const Pieces pieces = split(hands, ",");
        for (int i = 0; i <= pieces.last() && i < kSeatCount; ++i) {
            const Seat seat = kSeatsFromSouth[static_cast<std::size_t>(i)];
            if (!read_hand(without_blanks(pieces[i]), deal.of(seat))) {
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
        } else if (unknown > 0) {
            board_.unfit = Remark{line, "more than one hand is unknown"};
        } else if (const std::string problem = deal.problem(); !problem.empty()) {
            board_.fail(line, problem);
        }
    }

    void take_vulnerable(const std::string& value) {
        switch (value.empty() ? '-' : lower_case(value)[0]) {
            case 'o':
            case '0':
            case '-':
                board_.vulnerable = Vulnerable::None;
                break;
            case 'n':
                board_.vulnerable = Vulnerable::NorthSouth;
                break;
            case 'e':
                board_.vulnerable = Vulnerable::EastWest;
                break;
            case 'b':
                board_.vulnerable = Vulnerable::Both;
                break;
            default:
                break;
        }
    }

    void take_calls(const std::string& value, int line) {
        if (calls_line_ == 0) calls_line_ = line;
        if (bidding_known_ && without_blanks(value) == "?") {
            bidding_known_ = false;
            board_.note(line, "the bidding is known up to here");
        }
        if (!bidding_known_) return;
        if (!read_calls(value, calls_)) board_.fail(line, "not a call: " + value);
    }

    void take_text(const std::string& text, int line) {
        if (!text.empty()) pieces_.push_back({calls_.size(), cards_.size(), claimed_, with_symbols_of_lin(text), line});
    }

    // Cards stand one behind the other; a suit alone is the lowest of it.
    void take_cards(const std::string& value, int line) {
        if (stopped_) return;
        const std::string text = replaced(upper_case(value), "10", "T");
        for (std::size_t at = 0; at < text.size();) {
            if (kBlanks.find(text[at]) != std::string_view::npos || text[at] == '!' || text[at] == '?') {
                ++at;
                continue;
            }
            const bool has_rank = at + 1 < text.size() && rank_of(text[at + 1]);
            if (!suit_of(text[at])) return board_.fail(line, "not a card: " + value);
            cards_.push_back({text.substr(at, has_rank ? 2 : 1), line});
            at += has_rank ? 2 : 1;
        }
    }

    void settle_auction(const Result& result) {
        if (calls_.empty()) {
            board_.contract = result.contract;
            board_.passed_out = result.passed_out;
            if (!board_.result) board_.result = result.tricks;
            return;
        }
        if (!board_.dealer) {
            const int number = numeric_value(board_.board);
            if (number < 1) return board_.fail(calls_line_, "an auction without a dealer");
            board_.dealer = dealer_of(number);
            board_.note(calls_line_, "the dealer is that of the board's number");
        }
        Auction auction{*board_.dealer, calls_};
        bool dropped = false;
        while (auction.over() && auction.calls.back() == Call::pass()) {
            Auction shorter = auction;
            shorter.calls.pop_back();
            if (!shorter.over()) break;
            auction = shorter;
            dropped = true;
        }
        if (dropped) board_.note(calls_line_, "passes behind the end of the auction are left out");
        if (const std::string problem = auction.problem(); !problem.empty()) return board_.fail(calls_line_, problem);
        board_.auction = auction;
        if (!auction.over()) {
            board_.contract = result.contract;
            return board_.note(calls_line_, "the auction is not finished");
        }
        board_.contract = auction.contract();
        board_.passed_out = !board_.contract;
    }

    void settle_play() {
        if (cards_.empty()) return;
        if (!board_.contract) return board_.note(cards_.front().line, "a play without a contract is left out");
        if (board_.unfit) return;
        const std::optional<Suit> trump = board_.contract->trump();
        Play play{board_.contract->leader(), {}};
        Deal rest = *board_.deal;
        Trick trick{play.leader, {}};
        for (const WrittenCard& written : cards_) {
            const Hand& hand = rest.of(trick.turn());
            auto card = card_of(written.text);
            if (!card) {
                const auto held = hand.cards(*suit_of(written.text[0]));
                if (held.empty()) return board_.fail(written.line, "no card of that suit: " + written.text);
                card = held.back();
                board_.note(written.line, "a suit alone is its lowest card, " + text_of(*card));
            }
            rest.of(trick.turn()).remove(*card);
            trick.cards.push_back(*card);
            play.cards.push_back(*card);
            if (trick.complete()) trick = Trick{trick.winner(trump), {}};
        }
        if (const std::string problem = play.problem(*board_.deal, trump); !problem.empty()) {
            const auto number = static_cast<std::size_t>(numeric_value(problem.substr(problem.find(' '))));
            return board_.fail(cards_[std::min(number, cards_.size()) - 1].line, problem);
        }
        board_.play = play;
    }

    // Texts get their places: before the play at their calls, at the card before them, behind the claim the answer.
    void join() {
        const bool played = board_.play.has_value();
        const bool over = board_.auction && board_.auction->over();
        for (const Piece& piece : pieces_) {
            Place place{};
            std::string text = piece.text;
            if (played && piece.behind_claim) {
                place.kind = Place::Kind::Answer;
            } else if (played && piece.cards > 0) {
                place = {Place::Kind::Card, static_cast<int>(piece.cards)};
            } else if (piece.calls > 0 && !(over && piece.calls >= calls_.size()) && piece.calls <= calls_.size()) {
                text = text_of(calls_[piece.calls - 1]) + ": " + text;
            }
            const auto same = std::ranges::find(board_.texts, place, &PlacedText::place);
            if (same != board_.texts.end()) {
                same->text += "\n" + text;
            } else {
                board_.texts.push_back({place, text, piece.line});
            }
        }
    }

    Board board_;
    bool has_deal_ = false;
    bool bidding_known_ = true;
    bool stopped_ = false;
    bool claimed_ = false;
    int calls_line_ = 0;
    std::vector<Call> calls_;
    std::vector<WrittenCard> cards_;
    std::vector<Piece> pieces_;
};

}  // namespace

std::optional<std::string> LinCommands::field() {
    std::string text;
    bool any = false;
    for (;;) {
        if (!open_) {
            auto line = lines_.next();
            if (!line) return any && !without_blanks(text).empty() ? std::optional(std::move(text)) : std::nullopt;
            if (line->starts_with('%')) continue;
            if (any) text += '\n';
            rest_ = std::move(*line);
            at_ = 0;
            open_ = true;
        }
        if (!any) line_ = lines_.number();
        any = true;
        const std::size_t bar = rest_.find('|', at_);
        text += rest_.substr(at_, bar - at_);
        if (bar == std::string::npos) {
            open_ = false;
            continue;
        }
        at_ = bar + 1;
        if (at_ >= rest_.size()) open_ = false;
        return text;
    }
}

std::optional<LinCommand> LinCommands::next() {
    auto name = field();
    if (!name) return std::nullopt;
    const int line = line_;
    auto value = field();
    return LinCommand{lower_case(without_blanks(*name)), value.value_or(""), line};
}

std::optional<Board> LinReader::next() {
    std::optional<Assembly> assembly;
    const auto begins_board = [&](const LinCommand& command) {
        return command.name == "qx" || (command.name == "md" && assembly->has_deal());
    };
    for (auto command = ahead_ ? std::exchange(ahead_, std::nullopt) : commands_.next(); command;
         command = commands_.next()) {
        if (command->name == "rs") {
            results_.clear();
            for (const std::string& result : split(command->value, ","))
                results_.push_back(without_blanks(result));
        }
        if (!assembly) {
            assembly.emplace(command->line);
        } else if (begins_board(*command) && assembly->has_deal()) {
            ahead_ = command;
            break;
        }
        assembly->take(*command);
    }
    if (!assembly || (!assembly->has_deal() && !ahead_)) return std::nullopt;
    const std::size_t number = boards_++;
    return assembly->finish(number < results_.size() ? result_of(results_[number]) : Result{});
}

}  // namespace exchange
