#include "exchange/Play.h"

#include <algorithm>

namespace exchange {

Seat Trick::winner(std::optional<Suit> trump) const {
    std::size_t best = 0;
    for (std::size_t i = 1; i < cards.size(); ++i) {
        const bool higher = cards[i].suit == cards[best].suit && cards[i].rank > cards[best].rank;
        const bool ruffs = cards[i].suit == trump && cards[best].suit != trump;
        if (higher || ruffs) best = i;
    }
    return after(leader, static_cast<int>(best));
}

std::optional<Card> Trick::card_of(Seat seat) const {
    const auto place = static_cast<std::size_t>(distance(leader, seat));
    return place < cards.size() ? std::optional(cards[place]) : std::nullopt;
}

std::vector<Trick> Play::tricks(std::optional<Suit> trump) const {
    std::vector<Trick> all;
    Seat leads = leader;
    for (std::size_t at = 0; at < cards.size(); at += kSeatCount) {
        const std::size_t end = std::min(at + kSeatCount, cards.size());
        Trick trick{
            leads, {cards.begin() + static_cast<std::ptrdiff_t>(at), cards.begin() + static_cast<std::ptrdiff_t>(end)}};
        leads = trick.winner(trump);
        all.push_back(std::move(trick));
    }
    return all;
}

int Play::tricks_of(Seat seat, std::optional<Suit> trump) const {
    const std::vector<Trick> all = tricks(trump);
    return static_cast<int>(std::ranges::count_if(
        all, [&](const Trick& trick) { return trick.complete() && same_side(trick.winner(trump), seat); }));
}

std::optional<Fault> Play::fault(const Deal& deal, std::optional<Suit> trump) const {
    Deal hands = deal;
    std::size_t number = 0;
    for (const Trick& trick : tricks(trump)) {
        const Suit led = trick.cards.front().suit;
        for (std::size_t place = 0; place < trick.cards.size(); ++place) {
            const Card& card = trick.cards[place];
            const Seat seat = after(trick.leader, static_cast<int>(place));
            Hand& hand = hands.of(seat);
            const std::string where =
                "card " + std::to_string(++number) + " (" + text_of(card) + "): " + letter_of(seat);
            if (!hand.holds(card)) return Fault{number, where + " does not hold it"};
            if (card.suit != led && hand.holds(led)) return Fault{number, where + " does not follow suit"};
            hand.remove(card);
        }
    }
    return std::nullopt;
}

std::string Play::problem(const Deal& deal, std::optional<Suit> trump) const {
    const auto wrong = fault(deal, trump);
    return wrong ? wrong->text : std::string();
}

Deal Play::rest_of(const Deal& deal) const {
    Deal rest = deal;
    for (const Card& card : cards) {
        for (const Seat seat : kSeats)
            rest.of(seat).remove(card);
    }
    return rest;
}

}  // namespace exchange
