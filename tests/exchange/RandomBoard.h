#pragma once

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "exchange/Board.h"

// Random boards that keep to the rules.
namespace test {

using Random = std::mt19937;

inline int below(Random& random, int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }

inline exchange::Deal random_deal(Random& random) {
    std::vector<exchange::Card> pack;
    for (const exchange::Suit suit : exchange::kSuits) {
        for (int rank = exchange::kLowestRank; rank <= exchange::kAce; ++rank)
            pack.push_back({suit, rank});
    }
    // One pack in four is hardly shuffled: voids and long suits.
    if (below(random, 4) == 0) {
        for (int i = 0; i < 6; ++i)
            std::swap(pack[random() % pack.size()], pack[random() % pack.size()]);
    } else {
        std::ranges::shuffle(pack, random);
    }
    exchange::Deal deal;
    for (std::size_t i = 0; i < pack.size(); ++i)
        deal.of(static_cast<exchange::Seat>(i / 13)).add(pack[i]);
    return deal;
}

// An auction that ends in a contract, within nine rounds.
inline exchange::Auction random_auction(Random& random) {
    using exchange::Call;
    for (;;) {
        exchange::Auction auction{static_cast<exchange::Seat>(below(random, 4)), {}};
        while (!auction.over()) {
            const exchange::Bid bid{1 + below(random, 3), static_cast<exchange::Strain>(below(random, 5))};
            const std::vector<Call> calls{Call::pass(), Call::pass(), Call::of(bid), Call::doubled(),
                                          Call::redoubled()};
            auction.calls.push_back(calls[random() % calls.size()]);
            if (!auction.problem().empty()) auction.calls.back() = Call::pass();
        }
        if (auction.contract() && auction.calls.size() < 32) return auction;
    }
}

inline std::vector<exchange::Card> legal_cards(const exchange::Board& board) {
    const auto trump = board.contract->trump();
    exchange::Trick trick{board.contract->leader(), {}};
    for (const exchange::Trick& each : board.play->tricks(trump))
        trick = each.complete() ? exchange::Trick{each.winner(trump), {}} : each;
    const exchange::Hand hand = board.play->rest_of(*board.deal).of(trick.turn());
    const bool follows = !trick.cards.empty() && hand.holds(trick.cards.front().suit);
    return follows ? hand.cards(trick.cards.front().suit) : hand.cards();
}

// Deal, auction, contract and that many cards of a legal play.
inline exchange::Board random_board(Random& random, std::size_t played = exchange::kCardsInDeck) {
    exchange::Board board;
    board.deal = random_deal(random);
    board.auction = random_auction(random);
    board.dealer = board.auction->dealer;
    board.contract = board.auction->contract();
    board.play = exchange::Play{board.contract->leader(), {}};
    while (board.play->cards.size() < played) {
        const auto cards = legal_cards(board);
        board.play->cards.push_back(cards[random() % cards.size()]);
    }
    return board;
}

}  // namespace test
