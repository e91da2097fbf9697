#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "exchange/Auction.h"
#include "exchange/Cards.h"

// The play: cards in true order from the opening lead, and the tricks that they make.
namespace exchange {

inline constexpr int kTricks = 13;

// Up to four cards, the leader's first.
struct Trick {
    Seat leader = Seat::North;
    std::vector<Card> cards{};

    bool complete() const { return cards.size() == kSeatCount; }
    // Whose turn it is while it is not complete.
    Seat turn() const { return after(leader, static_cast<int>(cards.size())); }
    // Of the cards that lie there; the leader as long as there is none.
    Seat winner(std::optional<Suit> trump) const;
    // The card of that seat; none as long as it did not play.
    std::optional<Card> card_of(Seat seat) const;
};

// A card of a play that is against the rules.
struct Fault {
    std::size_t card = 0;  // its number, from 1
    std::string text{};
};

struct Play {
    Seat leader = Seat::North;
    std::vector<Card> cards{};  // at most 52

    bool complete() const { return cards.size() == kCardsInDeck; }
    // The tricks, the last of which may be incomplete. Who leads each follows from the cards.
    std::vector<Trick> tricks(std::optional<Suit> trump) const;
    // Tricks won by a side, of the complete ones.
    int tricks_of(Seat seat, std::optional<Suit> trump) const;
    // The first card that its hand doesn't hold, or that doesn't follow suit though the hand could; none in a legal
    // play.
    std::optional<Fault> fault(const Deal& deal, std::optional<Suit> trump) const;
    // What is wrong with that card, with its number; empty for a legal play.
    std::string problem(const Deal& deal, std::optional<Suit> trump) const;
    // The hands after the play.
    Deal rest_of(const Deal& deal) const;

    friend bool operator==(const Play&, const Play&) = default;
};

}  // namespace exchange
