#include "exchange/Auction.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/Text.h"

namespace exchange {

namespace {

constexpr std::string_view kStrainLetters = "CDHSN";
constexpr int kHighestLevel = 7;

constexpr std::array<std::pair<std::string_view, Call::Kind>, 10> kWords{{
    {"p", Call::Kind::Pass},
    {"pass", Call::Kind::Pass},
    {"pas", Call::Kind::Pass},
    {"x", Call::Kind::Double},
    {"d", Call::Kind::Double},
    {"dbl", Call::Kind::Double},
    {"xx", Call::Kind::Redouble},
    {"r", Call::Kind::Redouble},
    {"rdbl", Call::Kind::Redouble},
    {"redbl", Call::Kind::Redouble},
}};

// Follows an auction call by call.
class Bidding {
public:
    explicit Bidding(const Auction& auction) : auction_(auction) {}

    // What is wrong with the next call; it is counted in all the same.
    std::string take(const Call& call) {
        const Seat caller = auction_.caller(number_++);
        std::string problem = over() ? "the auction is over" : problem_of(call, caller);
        passes_ = call.kind == Call::Kind::Pass ? passes_ + 1 : 0;
        if (call.kind == Call::Kind::Bid) {
            opened_ = true;
            bid_ = call.bid;
            bidder_ = caller;
            doubling_ = Doubling::None;
        } else if (call.kind != Call::Kind::Pass) {
            doubling_ = call.kind == Call::Kind::Double ? Doubling::Doubled : Doubling::Redoubled;
        }
        return problem;
    }

    bool over() const { return passes_ >= (opened_ ? 3 : 4); }
    std::size_t number() const { return number_; }
    bool opened() const { return opened_; }
    const Bid& bid() const { return bid_; }  // the last one
    Seat bidder() const { return bidder_; }
    Doubling doubling() const { return doubling_; }

private:
    std::string problem_of(const Call& call, Seat caller) const {
        const bool own = opened_ && same_side(caller, bidder_);
        switch (call.kind) {
            case Call::Kind::Pass:
                return {};
            case Call::Kind::Bid:
                return opened_ && !call.bid.is_above(bid_) ? "not above " + text_of(Call::of(bid_)) : "";
            case Call::Kind::Double:
                return !opened_ || own || doubling_ != Doubling::None ? "nothing to double" : "";
            case Call::Kind::Redouble:
                return !own || doubling_ != Doubling::Doubled ? "nothing to redouble" : "";
        }
        return {};
    }

    const Auction& auction_;
    std::size_t number_ = 0;
    int passes_ = 0;  // in a row
    bool opened_ = false;
    Bid bid_{};
    Seat bidder_ = Seat::North;
    Doubling doubling_ = Doubling::None;
};

Bidding follow(const Auction& auction) {
    Bidding bidding(auction);
    for (const Call& call : auction.calls)
        bidding.take(call);
    return bidding;
}

}  // namespace

std::optional<Suit> trump_of(Strain strain) {
    if (strain == Strain::NoTrump) return std::nullopt;
    return static_cast<Suit>(3 - static_cast<int>(strain));
}

std::string text_of(Strain strain) { return {kStrainLetters[static_cast<std::size_t>(strain)]}; }

std::optional<Strain> strain_of(std::string_view text) {
    if (base::equal_ignoring_case(text, "NT") || base::equal_ignoring_case(text, "SA")) return Strain::NoTrump;
    if (text.size() != 1) return std::nullopt;
    const std::size_t found = kStrainLetters.find(base::upper_case(text)[0]);
    if (found == std::string_view::npos) return std::nullopt;
    return static_cast<Strain>(found);
}

std::string text_of(const Call& call) {
    switch (call.kind) {
        case Call::Kind::Pass:
            return "P";
        case Call::Kind::Double:
            return "X";
        case Call::Kind::Redouble:
            return "XX";
        case Call::Kind::Bid:
            break;
    }
    return std::to_string(call.bid.level) + text_of(call.bid.strain);
}

std::optional<Call> call_of(std::string_view text) {
    for (const auto& [word, kind] : kWords) {
        if (base::equal_ignoring_case(text, word)) return Call{kind, {}};
    }
    if (text.size() < 2 || text[0] < '1' || text[0] > '0' + kHighestLevel) return std::nullopt;
    const auto strain = strain_of(text.substr(1));
    return strain ? std::optional(Call::of({text[0] - '0', *strain})) : std::nullopt;
}

std::string text_of(Doubling doubling) { return std::string(static_cast<std::size_t>(doubling), 'X'); }

std::string text_of(const Contract& contract) { return text_of(Call::of(contract.bid)) + text_of(contract.doubling); }

std::optional<Contract> contract_of(std::string_view text, Seat declarer) {
    const std::string whole = base::upper_case(base::replaced(text, " ", ""));
    if (whole.size() < 2) return std::nullopt;
    const std::string behind_level = whole.substr(1);
    const std::size_t strain = behind_level.starts_with("NT") || behind_level.starts_with("SA") ? 2 : 1;
    const auto bid = call_of(whole.substr(0, 1 + strain));
    if (!bid || bid->kind != Call::Kind::Bid) return std::nullopt;
    const std::string rest = behind_level.substr(strain);
    if (rest.empty()) return Contract{bid->bid, Doubling::None, declarer};
    if (rest == "X" || rest == "D" || rest == "*") return Contract{bid->bid, Doubling::Doubled, declarer};
    const bool redoubled = rest == "XX" || rest == "R" || rest == "DR" || rest == "**";
    return redoubled ? std::optional(Contract{bid->bid, Doubling::Redoubled, declarer}) : std::nullopt;
}

bool Auction::over() const { return follow(*this).over(); }

bool Auction::passed_out() const { return over() && !contract(); }

std::string Auction::problem() const {
    Bidding bidding(*this);
    for (const Call& call : calls) {
        const std::string problem = bidding.take(call);
        if (!problem.empty())
            return "call " + std::to_string(bidding.number()) + " (" + text_of(call) + "): " + problem;
    }
    return {};
}

bool Auction::drop_superfluous_passes() {
    const std::size_t length = calls.size();
    Auction shorter = *this;
    while (!shorter.calls.empty() && shorter.calls.back() == Call::pass()) {
        shorter.calls.pop_back();
        if (shorter.over()) calls = shorter.calls;
    }
    return calls.size() < length;
}

std::optional<Seat> Auction::first_to_name(Strain strain, Seat side) const {
    for (std::size_t number = 0; number < calls.size(); ++number) {
        const bool named = calls[number].kind == Call::Kind::Bid && calls[number].bid.strain == strain;
        if (named && same_side(caller(number), side)) return caller(number);
    }
    return std::nullopt;
}

std::optional<Contract> Auction::contract() const {
    const Bidding bidding = follow(*this);
    if (!bidding.opened()) return std::nullopt;
    const auto declarer = first_to_name(bidding.bid().strain, bidding.bidder());
    return Contract{bidding.bid(), bidding.doubling(), *declarer};
}

bool Auction::may_end_in(const Contract& end) const {
    const auto now = contract();
    if (now && now->bid == end.bid) return now->declarer == end.declarer;
    const bool goes_on = !over() && (!now || end.bid.is_above(now->bid));
    return goes_on && first_to_name(end.bid.strain, end.declarer).value_or(end.declarer) == end.declarer;
}

}  // namespace exchange
