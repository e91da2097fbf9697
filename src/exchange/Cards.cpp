#include "exchange/Cards.h"

#include <algorithm>
#include <bit>
#include <numeric>

namespace exchange {

namespace {

constexpr std::string_view kSeatLetters = "NESW";
constexpr std::string_view kSuitLetters = "SHDC";
constexpr std::string_view kRankLetters = "23456789TJQKA";

constexpr char upper(char letter) { return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 0x20) : letter; }

std::optional<int> place_in(std::string_view letters, char letter) {
    const std::size_t found = letters.find(upper(letter));
    if (found == std::string_view::npos) return std::nullopt;
    return static_cast<int>(found);
}

}  // namespace

char letter_of(Seat seat) { return kSeatLetters[static_cast<std::size_t>(seat)]; }
char letter_of(Suit suit) { return kSuitLetters[static_cast<std::size_t>(suit)]; }
char letter_of_rank(int rank) { return kRankLetters[static_cast<std::size_t>(rank - kLowestRank)]; }
std::string text_of(const Card& card) { return {letter_of(card.suit), letter_of_rank(card.rank)}; }

std::optional<Seat> seat_of(char letter) {
    const auto place = place_in(kSeatLetters, letter);
    return place ? std::optional(static_cast<Seat>(*place)) : std::nullopt;
}

std::optional<Suit> suit_of(char letter) {
    const auto place = place_in(kSuitLetters, letter);
    return place ? std::optional(static_cast<Suit>(*place)) : std::nullopt;
}

std::optional<int> rank_of(char letter) {
    const auto place = place_in(kRankLetters, letter);
    return place ? std::optional(*place + kLowestRank) : std::nullopt;
}

std::optional<Card> card_of(std::string_view text) {
    if (text.empty()) return std::nullopt;
    const auto suit = suit_of(text.front());
    const std::string_view rest = text.substr(1);
    const auto rank = rest == "10" ? std::optional(10) : rest.size() == 1 ? rank_of(rest.front()) : std::nullopt;
    if (!suit || !rank) return std::nullopt;
    return Card{*suit, *rank};
}

int Hand::count() const {
    return std::accumulate(ranks_.begin(), ranks_.end(), 0,
                           [](int sum, auto ranks) { return sum + std::popcount(ranks); });
}

std::vector<Card> Hand::cards(Suit suit) const {
    std::vector<Card> cards;
    for (int rank = kAce; rank >= kLowestRank; --rank) {
        if (holds(Card{suit, rank})) cards.push_back({suit, rank});
    }
    return cards;
}

std::vector<Card> Hand::cards() const {
    std::vector<Card> all;
    for (const Suit suit : kSuits) {
        for (const Card& card : cards(suit))
            all.push_back(card);
    }
    return all;
}

std::optional<Seat> Deal::holder(const Card& card) const {
    for (const Seat seat : kSeats) {
        if (of(seat).holds(card)) return seat;
    }
    return std::nullopt;
}

void Deal::complete() {
    const auto whole = std::ranges::count_if(hands_, [](const Hand& hand) { return hand.count() == kCardsInHand; });
    const auto empty = std::ranges::count_if(hands_, [](const Hand& hand) { return hand.empty(); });
    if (whole != kSeatCount - 1 || empty != 1) return;
    Hand& last = *std::ranges::find_if(hands_, [](const Hand& hand) { return hand.empty(); });
    Hand rest;
    for (const Suit suit : kSuits) {
        for (int rank = kLowestRank; rank <= kAce; ++rank) {
            if (!holder({suit, rank})) rest.add({suit, rank});
        }
    }
    last = rest;
}

std::string Deal::problem() const {
    for (const Suit suit : kSuits) {
        for (int rank = kAce; rank >= kLowestRank; --rank) {
            const Card card{suit, rank};
            const auto holders = std::ranges::count_if(hands_, [&](const Hand& hand) { return hand.holds(card); });
            if (holders > 1) return text_of(card) + " is held twice";
        }
    }
    for (const Seat seat : kSeats) {
        const int count = of(seat).count();
        if (count != kCardsInHand)
            return std::string("hand of ") + letter_of(seat) + " has " + std::to_string(count) + " cards";
    }
    return {};
}

}  // namespace exchange
