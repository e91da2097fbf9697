// Contract, declarer and auction of a PBN game, and what they say of each other.
#include <algorithm>

#include "base/Text.h"
#include "exchange/PbnReader.h"

namespace exchange::pbn {

namespace {

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
    if (!base::equal_ignoring_case(word, "AP")) return std::nullopt;
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
            } else if (base::equal_ignoring_case(token.text, "all") && i + 1 < tag_.tokens.size()) {
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
            // A seat in front of the dealer, or one behind what is known.
            if (auction.calls.empty()) auction.dealer = after(auction.dealer);
            behind_ = behind_ || !auction.calls.empty();
            return true;
        }
        const MarkedWord marked = without_marks(text);
        if (!marked.word.empty() && marked.word != "+") {
            const auto calls = calls_of(marked.word, auction);
            if (!calls || behind_) {
                board_.fail(line, calls ? "a call is missing in front of " + text : "not a call: " + text);
                return false;
            }
            auction.calls.insert(auction.calls.end(), calls->begin(), calls->end());
            if (auction.calls.size() > kMostCalls) {
                board_.fail(line, "an auction without an end");
                return false;
            }
        }
        if (const auto note = notes_.find(marked.note); note != notes_.end()) {
            written.texts.push_back({auction.calls.size(), {PbnToken::Kind::Comment, note->second, line}});
        }
        return true;
    }

    const PbnTag& tag_;
    Board& board_;
    std::map<std::string, std::string> notes_;
    bool behind_ = false;  // what is known
};

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

// Whose card the play begins with; none without a play.
std::optional<Seat> leader_in_play(const PbnGame& game, const Board& board) {
    const PbnTag* play = game.find("Play");
    if (!play || !board.deal) return std::nullopt;
    const auto card = first_card_of(*play);
    return card ? board.deal->holder(*card) : std::nullopt;
}

// Whose call the auction begins with: the seat of its tag, or the dealer where that tells none.
std::optional<Seat> first_caller(const PbnTag& tag, Board& board) {
    if (tells_something(tag.value)) {
        const auto first = tag.value.size() == 1 ? seat_of(tag.value[0]) : std::nullopt;
        if (!first) board.fail(tag.line, "not a seat: " + tag.value);
        return first;
    }
    const bool any = std::ranges::any_of(tag.tokens, [](const PbnToken& token) {
        return token.kind == PbnToken::Kind::Word && call_of(without_marks(token.text).word);
    });
    if (!any) return std::nullopt;
    board.note(tag.line, board.dealer ? "the auction's tag names no seat; the dealer's holds"
                                      : "an auction without a dealer is left out");
    return board.dealer;
}

// What the tags tell of the contract, each by itself.
struct Tags {
    std::optional<Contract> contract{};  // the declarer apart from it
    std::optional<Seat> declarer{};
};

Tags tags_of(const PbnGame& game) {
    Tags tags;
    if (const PbnTag* contract = game.find("Contract")) tags.contract = contract_of(contract->value, {});
    if (const PbnTag* declarer = game.find("Declarer")) {
        // "^S" is a declarer after an irregularity.
        const std::string seat = declarer->value.substr(declarer->value.starts_with('^') ? 1 : 0);
        if (seat.size() == 1) tags.declarer = seat_of(seat[0]);
    }
    return tags;
}

std::string text_of(const Tags& tags) {
    std::string text;
    if (tags.contract) text = exchange::text_of(*tags.contract);
    if (tags.declarer) text += std::string(text.empty() ? "" : " ") + "by " + letter_of(*tags.declarer);
    return text;
}

// Which of the two holds where tags and auction differ.
void settle(const Auction& auction, const Tags& tags, int line, Board& board) {
    if (!auction.over()) {
        if (board.contract && !auction.may_end_in(*board.contract))
            return board.fail(line, "the auction cannot end in the tags' " + text_with_declarer(*board.contract));
        const char* const holds = board.contract ? "; the contract's tag holds" : "";
        return board.note(line, std::string("the auction is not finished") + holds);
    }
    const auto bidden = auction.contract();
    if (!bidden) {
        if (tags.contract) return board.fail(line, "passed out, but the tags say " + text_of(tags));
        board.passed_out = true;
        return;
    }
    if (board.passed_out)
        return board.fail(line, "the tag says passed out, the auction " + text_with_declarer(*bidden));
    const bool same_bid = !tags.contract || tags.contract->bid == bidden->bid;
    const bool same_declarer = !tags.declarer || *tags.declarer == bidden->declarer;
    if (!same_bid || !same_declarer) {
        return board.fail(line,
                          "the auction ends in " + text_with_declarer(*bidden) + ", the tags say " + text_of(tags));
    }
    if (tags.contract && tags.contract->doubling != bidden->doubling)
        board.note(line, "the auction's doubling holds, not the tag's");
    board.contract = bidden;
}

bool says_passed_out(const std::string& value) {
    return base::equal_ignoring_case(value, "Pass") || base::equal_ignoring_case(value, "P");
}

}  // namespace

void read_contract(const PbnGame& game, Board& board) {
    if (const PbnTag* result = game.find("Result")) {
        const std::string& value = result->value;
        const bool number = !value.empty() && value.find_first_not_of("0123456789") == std::string::npos;
        if (number && base::numeric_value(value) <= kTricks) board.result = base::numeric_value(value);
    }
    const PbnTag* contract = game.find("Contract");
    if (!contract || !tells_something(contract->value)) return;
    if (says_passed_out(contract->value)) {
        board.passed_out = true;
        return;
    }
    const PbnTag* declarer = game.find("Declarer");
    const Tags tags = tags_of(game);
    if (!tags.contract) return board.fail(contract->line, "not a contract: " + contract->value);
    if (!tags.declarer && declarer && tells_something(declarer->value))
        return board.fail(declarer->line, "not a declarer: " + declarer->value);
    if (tags.declarer) board.contract = Contract{tags.contract->bid, tags.contract->doubling, *tags.declarer};
}

void take_known_contract(const PbnGame& game, const Contract& known, Board& board) {
    if (board.contract || board.passed_out) return;
    const Tags tags = tags_of(game);
    const bool same_contract =
        !tags.contract || (tags.contract->bid == known.bid && tags.contract->doubling == known.doubling);
    if (!same_contract || (tags.declarer && *tags.declarer != known.declarer))
        return board.fail(game.line, "the file says " + text_of(tags));
    board.contract = known;
}

void read_auction(const PbnGame& game, Board& board) {
    const PbnTag* tag = game.find("Auction");
    if (!tag || board.error) return;
    const auto first = first_caller(*tag, board);
    if (!first) return;
    WrittenAuction written{.auction = {*first, {}}};
    if (!SectionReader(game, *tag, board).read(written)) return;
    Auction& auction = written.auction;
    if (auction.calls.empty()) return;
    if (auction.drop_superfluous_passes()) board.note(tag->line, "passes behind the end of the auction are left out");

    const auto fits = [&] {
        const auto contract = auction.contract();
        return auction.problem().empty() && contract && board.contract &&
               contract->declarer == board.contract->declarer;
    };
    std::size_t put_back = 0;
    if (board.contract && !fits()) {
        put_back = static_cast<std::size_t>(put_passes_back(auction, *board.contract, leader_in_play(game, board)));
        if (put_back > 0)
            board.note(tag->line, std::to_string(put_back) + " opening passes were left out and are put back");
    }
    if (const std::string problem = auction.problem(); !problem.empty()) return board.fail(tag->line, problem);
    if (board.dealer && *board.dealer != auction.dealer) {
        board.note(tag->line,
                   std::string("the auction begins with ") + letter_of(auction.dealer) + ", not with the dealer's tag");
    }
    board.dealer = auction.dealer;
    settle(auction, tags_of(game), tag->line, board);
    board.auction = auction;
    for (const auto& [calls, text] : written.texts) {
        const std::string call =
            calls > 0 ? text_of(auction.calls[std::min(calls + put_back, auction.calls.size()) - 1]) + ": " : "";
        add_text(board, {Place::Kind::Question, 0}, {text.kind, call + text.text, text.line});
    }
}

}  // namespace exchange::pbn
