#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Seats, suits, cards and hands as values, apart from the codes and files of the screens.
namespace exchange {

// Clockwise.
enum class Seat { North, East, South, West };
inline constexpr std::array kSeats{Seat::North, Seat::East, Seat::South, Seat::West};
inline constexpr int kSeatCount = 4;

constexpr int index_of(Seat seat) { return static_cast<int>(seat); }
// The seat that many places further, clockwise.
constexpr Seat after(Seat seat, int places = 1) {
    return static_cast<Seat>((index_of(seat) + places % kSeatCount + kSeatCount) % kSeatCount);
}
constexpr Seat partner_of(Seat seat) { return after(seat, 2); }
constexpr bool same_side(Seat one, Seat other) { return (index_of(one) - index_of(other)) % 2 == 0; }
// How many places clockwise from the one to the other, 0 to 3.
constexpr int distance(Seat from, Seat to) { return (index_of(to) - index_of(from) + kSeatCount) % kSeatCount; }

// In the order in which hands are written.
enum class Suit { Spades, Hearts, Diamonds, Clubs };
inline constexpr std::array kSuits{Suit::Spades, Suit::Hearts, Suit::Diamonds, Suit::Clubs};
constexpr int index_of(Suit suit) { return static_cast<int>(suit); }

inline constexpr int kLowestRank = 2;
inline constexpr int kAce = 14;
inline constexpr int kCardsInHand = 13;
inline constexpr int kCardsInDeck = 52;

struct Card {
    Suit suit = Suit::Spades;
    int rank = kLowestRank;  // 2 to 14, the ace

    friend constexpr auto operator<=>(const Card&, const Card&) = default;
};

// "N", "E", "S", "W"; "S", "H", "D", "C"; "SA", "HT", "D2".
char letter_of(Seat seat);
char letter_of(Suit suit);
char letter_of_rank(int rank);
std::string text_of(const Card& card);

// From such letters, in either case; a rank may be "10" too where the text has two characters for it. Nothing for any
// other text.
std::optional<Seat> seat_of(char letter);
std::optional<Suit> suit_of(char letter);
std::optional<int> rank_of(char letter);
std::optional<Card> card_of(std::string_view text);

// A set of cards.
class Hand {
public:
    bool holds(const Card& card) const { return (ranks_[at(card.suit)] >> card.rank & 1U) != 0; }
    bool holds(Suit suit) const { return ranks_[at(suit)] != 0; }
    void add(const Card& card) { ranks_[at(card.suit)] |= bit(card.rank); }
    void remove(const Card& card) { ranks_[at(card.suit)] &= static_cast<std::uint16_t>(~bit(card.rank)); }

    int count() const;
    bool empty() const { return count() == 0; }
    // Highest first; all of them suit by suit.
    std::vector<Card> cards(Suit suit) const;
    std::vector<Card> cards() const;

    friend bool operator==(const Hand&, const Hand&) = default;

private:
    static constexpr std::size_t at(Suit suit) { return static_cast<std::size_t>(suit); }
    static constexpr std::uint16_t bit(int rank) {
        return static_cast<std::uint16_t>(1U << static_cast<unsigned>(rank));
    }

    std::array<std::uint16_t, 4> ranks_{};  // bit n: the card of rank n
};

// The four hands of a board.
class Deal {
public:
    Hand& of(Seat seat) { return hands_[static_cast<std::size_t>(seat)]; }
    const Hand& of(Seat seat) const { return hands_[static_cast<std::size_t>(seat)]; }

    // The seat that holds the card.
    std::optional<Seat> holder(const Card& card) const;
    // Gives the cards that nobody holds to the one hand that has none, where the others have thirteen each.
    void complete();
    // What keeps it from being a deal of 52 cards, thirteen a hand; empty for a whole deal.
    std::string problem() const;

    friend bool operator==(const Deal&, const Deal&) = default;

private:
    std::array<Hand, 4> hands_{};
};

}  // namespace exchange
