#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/Cards.h"

// The bidding: calls, their order and what contract they end in.
namespace exchange {

// In the order of bidding.
enum class Strain { Clubs, Diamonds, Hearts, Spades, NoTrump };

constexpr Strain strain_of(Suit suit) { return static_cast<Strain>(3 - index_of(suit)); }
// The trump suit; none in no trump.
std::optional<Suit> trump_of(Strain strain);
// "C", "D", "H", "S", "N"; from "NT" too, in either case.
std::string text_of(Strain strain);
std::optional<Strain> strain_of(std::string_view text);

struct Bid {
    int level = 1;  // 1 to 7
    Strain strain = Strain::Clubs;
    constexpr bool is_above(const Bid& other) const {
        return level != other.level ? level > other.level : strain > other.strain;
    }
    friend constexpr bool operator==(const Bid&, const Bid&) = default;
};

struct Call {
    enum class Kind { Pass, Double, Redouble, Bid };
    Kind kind = Kind::Pass;
    exchange::Bid bid{};  // of a bid
    friend bool operator==(const Call&, const Call&) = default;

    static Call pass() { return {}; }
    static Call doubled() { return {Kind::Double, {}}; }
    static Call redoubled() { return {Kind::Redouble, {}}; }
    static Call of(const exchange::Bid& bid) { return {Kind::Bid, bid}; }
};

// "P", "X", "XX", "1H", "3N".
std::string text_of(const Call& call);
// From these, and from "Pass", "1NT", "D", "DBL", "R", "RDBL" and "1SA", in either case. Nothing for any other text.
std::optional<Call> call_of(std::string_view text);

enum class Doubling { None, Doubled, Redoubled };
std::string text_of(Doubling doubling);  // "", "X", "XX"

struct Contract {
    Bid bid{};
    Doubling doubling = Doubling::None;
    Seat declarer = Seat::South;

    Seat leader() const { return after(declarer); }
    std::optional<Suit> trump() const { return trump_of(bid.strain); }
    friend bool operator==(const Contract&, const Contract&) = default;
};

// "4H", "4HX", "3NXX": without the declarer.
std::string text_of(const Contract& contract);
// From such a text, with blanks too; a double may be "D" or "*", a redouble "R", "DR" or "**".
std::optional<Contract> contract_of(std::string_view text, Seat declarer);

// The longest auction that there can be: three passes, each of 35 bids doubled and redoubled with two passes in front
// of either, and three at the end.
inline constexpr std::size_t kMostCalls = 319;

struct Auction {
    Seat dealer = Seat::North;
    std::vector<Call> calls{};

    Seat caller(std::size_t number) const { return after(dealer, static_cast<int>(number % kSeatCount)); }
    // Three passes after a bid, or four at the start.
    bool over() const;
    bool passed_out() const;
    // What is against the rules, with the number of the call, from 1; empty for a legal auction, over or not.
    std::string problem() const;
    // What it ends in as far as it goes; none without a bid. The declarer is the first of the side that named the
    // strain.
    std::optional<Contract> contract() const;

    // Whether a legal auction ends in that contract, or can go on to it; the doubling apart.
    bool may_end_in(const Contract& end) const;

    // Takes off the passes behind its end; whether there were any.
    bool drop_superfluous_passes();

    friend bool operator==(const Auction&, const Auction&) = default;

private:
    // Of that seat's side; none if neither did.
    std::optional<Seat> first_to_name(Strain strain, Seat side) const;
};

}  // namespace exchange
