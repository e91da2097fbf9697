// Contract, declarer and auction of a PBN game, and what they say of each other.
#include <algorithm>

#include "base/Text.h"
#include "exchange/PbnReader.h"

namespace exchange::pbn {

namespace {

struct TaggedContract {
    Bid bid{};
    Doubling doubling = Doubling::None;
};

// "4H", "4HX", "3NTXX", also with blanks, and with D or R for the doubles.
std::optional<TaggedContract> contract_of(const std::string& value) {
    const std::string text = upper_case(replaced(value, " ", ""));
    if (text.size() < 2) return std::nullopt;
    const std::size_t strain_length = text.substr(1).starts_with("NT") || text.substr(1).starts_with("SA") ? 2 : 1;
    const auto bid = call_of(text.substr(0, 1 + strain_length));
    if (!bid || bid->kind != Call::Kind::Bid) return std::nullopt;
    const std::string rest = text.substr(1 + strain_length);
    const bool doubled = rest == "X" || rest == "D" || rest == "*";
    const bool redoubled = rest == "XX" || rest == "R" || rest == "DR" || rest == "**";
    if (!rest.empty() && !doubled && !redoubled) return std::nullopt;
    return TaggedContract{bid->bid, redoubled ? Doubling::Redoubled : doubled ? Doubling::Doubled : Doubling::None};
}

std::string text_with_declarer(const Contract& contract) {
    return text_of(contract) + " by " + letter_of(contract.declarer);
}

// The calls of a section as they stand there, with the texts at them.
struct WrittenAuction {
    Auction auction{};
    struct Text {
        std::size_t calls;  // how many stand in front of it; 0 behind the end too
        PbnToken text;
    };
    std::vector<Text> texts{};
    bool broken_off = false;  // by "*"
};

// The calls that a word stands for; none for one that is no call.
std::optional<std::vector<Call>> calls_of(const std::string& word, const Auction& auction) {
    if (const auto call = call_of(word)) return std::vector{*call};
    if (!equal_ignoring_case(word, "AP")) return std::nullopt;
    Auction ended = auction;
    while (!ended.over())
        ended.calls.push_back(Call::pass());
    return std::vector(ended.calls.begin() + static_cast<std::ptrdiff_t>(auction.calls.size()), ended.calls.end());
}

class SectionReader {
public:
    SectionReader(const PbnGame& game, const PbnTag& tag, Board& board)
        : tag_(tag), board_(board), notes_(notes_behind(game, tag)) {}

    // False if it is against the rules in a way that nobody can mend.
    bool read(WrittenAuction& written) {
        for (std::size_t i = 0; i < tag_.tokens.size(); ++i) {
            const PbnToken& token = tag_.tokens[i];
            if (token.kind == PbnToken::Kind::Comment) {
                const Auction& auction = written.auction;
                written.texts.push_back({auction.over() ? 0 : auction.calls.size(), token});
            } else if (written.broken_off) {
                continue;
            } else if (equal_ignoring_case(token.text, "all") && i + 1 < tag_.tokens.size()) {
                ++i;  // "all pass" in two words
                if (!take_word("AP", token.line, written)) return false;
            } else if (!take_word(token.text, token.line, written)) {
                return false;
            }
        }
        return true;
    }

private:
    bool take_word(const std::string& text, int line, WrittenAuction& written) {
        Auction& auction = written.auction;
        if (text == "*") {
            written.broken_off = true;
            return true;
        }
        if (text.starts_with('^')) {
            board_.fail(line, "an irregular call: " + text);
            return false;
        }
        if (text == "-") {
            // Seats in front of the dealer.
            if (auction.calls.empty()) auction.dealer = after(auction.dealer);
            return true;
        }
        const MarkedWord marked = without_marks(text);
        if (!marked.word.empty() && marked.word != "+") {
            const auto calls = calls_of(marked.word, auction);
            if (!calls) {
                board_.fail(line, "not a call: " + text);
                return false;
            }
            auction.calls.insert(auction.calls.end(), calls->begin(), calls->end());
        }
        if (const auto note = notes_.find(marked.note); note != notes_.end()) {
            written.texts.push_back({auction.calls.size(), {PbnToken::Kind::Comment, note->second, line}});
        }
        return true;
    }

    const PbnTag& tag_;
    Board& board_;
    std::map<std::string, std::string> notes_;
};

// Passes behind the end are no calls.
void drop_superfluous_passes(Auction& auction, const PbnTag& tag, Board& board) {
    std::size_t dropped = 0;
    while (!auction.calls.empty() && auction.calls.back() == Call::pass()) {
        Auction shorter = auction;
        shorter.calls.pop_back();
        if (!shorter.over()) break;
        auction = shorter;
        ++dropped;
    }
    if (dropped > 0) board.note(tag.line, "passes behind the end of the auction are left out");
}

// Some programs leave opening passes out. They are put back where contract and declarer both stand in tags, and fit
// the auction only then.
int put_passes_back(Auction& auction, const Contract& tagged, const std::optional<Seat>& leader) {
    if (leader && *leader != tagged.leader()) return 0;
    for (int passes = 1; passes < kSeatCount; ++passes) {
        Auction longer = auction;
        longer.calls.insert(longer.calls.begin(), static_cast<std::size_t>(passes), Call::pass());
        const auto contract = longer.contract();
        const bool fits = contract && contract->bid == tagged.bid && contract->declarer == tagged.declarer;
        if (!fits || !longer.problem().empty()) continue;
        auction = longer;
        return passes;
    }
    return 0;
}

std::optional<Seat> seat_of_play(const PbnGame& game) {
    const PbnTag* play = game.find("Play");
    return play && play->value.size() == 1 ? seat_of(play->value[0]) : std::nullopt;
}

// Which of the two holds where tags and auction differ.
void settle(const Auction& auction, const PbnTag& tag, Board& board) {
    const auto bidden = auction.contract();
    if (!auction.over()) {
        if (!board.contract)
            board.note(tag.line, "the auction is not finished");
        else if (bidden != board.contract)
            board.note(tag.line, "the auction is not finished; the contract's tag holds");
        return;
    }
    if (!bidden) {
        if (board.contract)
            return board.fail(tag.line, "passed out, but the tags say " + text_with_declarer(*board.contract));
        board.passed_out = true;
        return;
    }
    if (board.passed_out)
        return board.fail(tag.line, "the tag says passed out, the auction " + text_with_declarer(*bidden));
    if (board.contract && (board.contract->bid != bidden->bid || board.contract->declarer != bidden->declarer)) {
        return board.fail(tag.line, "the auction ends in " + text_with_declarer(*bidden) + ", the tags say " +
                                        text_with_declarer(*board.contract));
    }
    if (board.contract && *board.contract != *bidden)
        board.note(tag.line, "the auction's doubling holds, not the tag's");
    board.contract = bidden;
}

}  // namespace

void read_contract(const PbnGame& game, Board& board) {
    const PbnTag* contract = game.find("Contract");
    const PbnTag* declarer = game.find("Declarer");
    if (const PbnTag* result = game.find("Result"); result && tells_something(result->value)) {
        const std::string digits =
            result->value.substr(std::min(result->value.find_first_of("0123456789"), result->value.size()));
        if (!digits.empty() && numeric_value(digits) <= kTricks) board.result = numeric_value(digits);
    }
    if (!contract || !tells_something(contract->value)) return;
    if (equal_ignoring_case(contract->value, "Pass") || equal_ignoring_case(contract->value, "P")) {
        board.passed_out = true;
        return;
    }
    const auto tagged = contract_of(contract->value);
    if (!tagged) return board.fail(contract->line, "not a contract: " + contract->value);
    if (!declarer || !tells_something(declarer->value)) return;
    const std::string seat = declarer->value.substr(declarer->value.starts_with('^') ? 1 : 0, 1);
    const auto by = seat.empty() ? std::nullopt : seat_of(seat[0]);
    if (!by) return board.fail(declarer->line, "not a declarer: " + declarer->value);
    board.contract = Contract{tagged->bid, tagged->doubling, *by};
}

void read_auction(const PbnGame& game, Board& board) {
    const PbnTag* tag = game.find("Auction");
    if (!tag || !tells_something(tag->value) || board.error) return;
    const auto first = tag->value.size() == 1 ? seat_of(tag->value[0]) : std::nullopt;
    if (!first) return board.fail(tag->line, "not a seat: " + tag->value);
    WrittenAuction written{.auction = {*first, {}}};
    if (!SectionReader(game, *tag, board).read(written)) return;
    Auction& auction = written.auction;
    if (auction.calls.empty()) {
        for (const auto& text : written.texts)
            add_text(board, {Place::Kind::Question, 0}, text.text);
        return;
    }
    drop_superfluous_passes(auction, *tag, board);

    const auto fits = [&] {
        const auto contract = auction.contract();
        return auction.problem().empty() && contract && board.contract &&
               contract->declarer == board.contract->declarer;
    };
    std::size_t put_back = 0;
    if (board.contract && !fits()) {
        put_back = static_cast<std::size_t>(put_passes_back(auction, *board.contract, seat_of_play(game)));
        if (put_back > 0)
            board.note(tag->line, std::to_string(put_back) + " opening passes were left out and are put back");
    }
    if (const std::string problem = auction.problem(); !problem.empty()) return board.fail(tag->line, problem);
    if (board.dealer && *board.dealer != auction.dealer) {
        board.note(tag->line,
                   std::string("the auction begins with ") + letter_of(auction.dealer) + ", not with the dealer's tag");
    }
    board.dealer = auction.dealer;
    settle(auction, *tag, board);
    board.auction = auction;
    for (const auto& [calls, text] : written.texts) {
        const std::string call =
            calls > 0 ? text_of(auction.calls[std::min(calls + put_back, auction.calls.size()) - 1]) + ": " : "";
        add_text(board, {Place::Kind::Question, 0}, {text.kind, call + text.text, text.line});
    }
}

}  // namespace exchange::pbn
