#include "exchange/LinWriter.h"

#include <gtest/gtest.h>

#include "exchange/LinReader.h"
#include "exchange/RandomBoard.h"
#include "exchange/TestBoards.h"

namespace {

using namespace exchange;

TEST(LinWriter, BringsBoardsBack) {
    test::Random random(3);
    std::vector<Board> boards;
    for (int number = 1; number <= 60; ++number) {
        Board& board = boards.emplace_back(test::random_board(random, number % 4 == 0 ? 1 + number % 51U : 52U));
        board.board = std::to_string(number);
        board.vulnerable = static_cast<Vulnerable>(number % 4);
        const int cards = static_cast<int>(board.play->cards.size());
        board.texts = {{{Place::Kind::Question, 0}, "Vraag \u00E9\u00E9n.\n%Twee @ drie", 0},
                       {{Place::Kind::Card, 1 + number % cards}, "Een tekst,\n\nlang.", 0},
                       {{Place::Kind::Answer, 0}, "Hoera!", 0}};
        if (number % 5 == 0) board.auction.reset();
    }
    const std::string file = lin_file(boards);
    const auto read = test::read<LinReader>(file);
    ASSERT_EQ(read.size(), boards.size());
    for (std::size_t i = 0; i < boards.size(); ++i) {
        EXPECT_EQ(read[i].board, boards[i].board);
        EXPECT_EQ(read[i].deal, boards[i].deal) << i;
        EXPECT_EQ(read[i].dealer, boards[i].dealer) << i;
        EXPECT_EQ(read[i].vulnerable, boards[i].vulnerable) << i;
        EXPECT_EQ(read[i].auction, boards[i].auction) << i;
        EXPECT_EQ(read[i].play, boards[i].play) << i;
        EXPECT_EQ(base::replaced(test::told(read[i]), "/ %", "/%"), test::told(boards[i])) << i;
    }
}

TEST(LinWriter, WritesNoSignThatMeansSomethingElse) {
    test::Random random(4);
    Board board = test::random_board(random, 1);
    board.texts = {{{Place::Kind::Question, 0}, "Of|of !Schoppen? Nee! @H {a} A!h, ga!dan", 0}};
    EXPECT_EQ(test::read<LinReader>(lin_file({board})).front().texts.front().text,
              "Of/of ! Schoppen? Nee! @H {a} A! h, ga!dan");
}

}  // namespace
