#include "exchange/DoubleDummy.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <span>

#include "exchange/RandomBoard.h"

namespace {

using namespace exchange;

using test::legal_cards;

Board board_of(unsigned seed, std::size_t played) {
    test::Random random(seed);
    return test::random_board(random, played);
}

Seat turn_of(const Board& board) { return *board.play->rest_of(*board.deal).holder(legal_cards(board).front()); }

// Declarer's tricks by trying everything.
int tried(Board& board) {
    if (board.play->complete()) return board.play->tricks_of(board.contract->declarer, board.contract->trump());
    const bool declarer = same_side(turn_of(board), board.contract->declarer);
    int best = declarer ? -1 : kTricks + 1;
    for (const Card& card : legal_cards(board)) {
        board.play->cards.push_back(card);
        best = declarer ? std::max(best, tried(board)) : std::min(best, tried(board));
        board.play->cards.pop_back();
    }
    return best;
}

TEST(DoubleDummy, FindsWhatTryingEveryCardFinds) {
    for (unsigned seed = 0; seed < 60; ++seed) {
        Board board = board_of(seed, 40 + seed % 13);
        EXPECT_EQ(best_tricks(*board.deal, *board.contract, *board.play), tried(board)) << seed;
        const auto cards = legal_cards(board);
        const auto rated = rated_cards(*board.deal, *board.contract, *board.play);
        ASSERT_EQ(rated.size(), board.play->complete() ? 0 : cards.size()) << seed;
        for (std::size_t i = 0; i < rated.size(); ++i) {
            EXPECT_EQ(rated[i].card, cards[i]) << seed;
            board.play->cards.push_back(cards[i]);
            EXPECT_EQ(rated[i].tricks, tried(board)) << seed << " " << text_of(cards[i]);
            board.play->cards.pop_back();
        }
    }
}

TEST(DoubleDummy, FollowsAPlayCardByCard) {
    for (unsigned seed = 0; seed < 4; ++seed) {
        Board board = board_of(seed, 52);
        const auto tricks = tricks_card_by_card(*board.deal, *board.contract, *board.play);
        ASSERT_EQ(tricks.size(), 53U);
        for (std::size_t played = 0; played <= 52; ++played) {
            Play part = *board.play;
            part.cards.resize(played);
            EXPECT_EQ(tricks[played], best_tricks(*board.deal, *board.contract, part)) << seed << " " << played;
        }
    }
}

TEST(DoubleDummy, PlaysOutLegallyAndAtNobodysCost) {
    for (unsigned seed = 0; seed < 8; ++seed) {
        const Board board = board_of(seed, 1 + seed * 7);
        const Play whole = played_out(*board.deal, *board.contract, *board.play);
        EXPECT_TRUE(whole.complete());
        EXPECT_EQ(whole.problem(*board.deal, board.contract->trump()), "") << seed;
        EXPECT_TRUE(std::ranges::equal(board.play->cards, std::span(whole.cards).first(1 + seed * 7)));
        EXPECT_EQ(whole.tricks_of(board.contract->declarer, board.contract->trump()),
                  best_tricks(*board.deal, *board.contract, *board.play))
            << seed;
    }
}

}  // namespace
