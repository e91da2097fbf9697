// What is told of the play of lessons and boards.
#include <chrono>
#include <csignal>
#include <thread>

#include "base/Text.h"
#include "deals/TestImport.h"
#include "exchange/BestPlay.h"
#include "exchange/DoubleDummy.h"
#include "exchange/PbnWriter.h"
#include "exchange/RandomBoard.h"

namespace {

using namespace exchange;

TEST(BestPlay, TellsWhoGaveAwayWhat) {
    for (unsigned seed = 0; seed < 6; ++seed) {
        test::Random random(seed);
        const Board board = test::random_board(random);
        const BestPlay best = best_play(board);
        int tricks = best.tricks;
        for (const CostlyCard& costly : best.costly) {
            Play before = *board.play;
            before.cards.resize(static_cast<std::size_t>(costly.number - 1));
            std::vector<Card> better;
            for (const RatedCard& rated : rated_cards(*board.deal, *board.contract, before)) {
                if (rated.tricks == tricks) better.push_back(rated.card);
            }
            EXPECT_EQ(costly.best, better) << seed << " " << costly.number;
            EXPECT_TRUE(board.deal->of(costly.seat).holds(costly.card));
            tricks += same_side(costly.seat, board.contract->declarer) ? -costly.tricks : costly.tricks;
        }
        EXPECT_EQ(best.played, tricks) << seed;
    }
}

// Each hand is a suit; South's diamonds are trumps.
const std::string kDeal = "[Deal \"N:AKQJT98765432... .AKQJT98765432.. ..AKQJT98765432. ...AKQJT98765432\"]\n";
const std::string kContract = "[Declarer \"S\"]\n[Contract \"7D\"]\n";

class Check : public TestImport {};

TEST_F(Check, TellsEachBoardOfAFile) {
    program.write("club.pbn", "[Board \"1\"]\n" + kDeal + kContract + "\n[Board \"2\"]\n" + kDeal +
                                  "[Contract \"Pass\"]\n\n[Board \"3\"]\n" + kDeal + kContract +
                                  "[Play \"W\"]\nC2 S2 H2 D2\nC3 S3 H3 D3\nC4 S4 C5 D4\n*\n");
    const Told told = run("check", {"club.pbn"});
    EXPECT_EQ(told.status, 1);
    EXPECT_EQ(told.out,
              "board 1, line 1: 7D by S, sound; best play makes 13\n"
              "board 2, line 6: nothing to check: passed out\n"
              "board 3, line 10: 7D by S, against the rules: the play does not fit the hands, or is not led from "
              "declarer's left\n");
    const Told json = run("check", {"club.pbn", "nergens.pbn", "--json"});
    EXPECT_EQ(json.out.substr(0, json.out.find("},")),
              "[\n{\"deal\":\"club.pbn: board 1, line 1\",\"contract\":\"7D\",\"declarer\":\"S\",\"sound\":true,"
              "\"problems\":[],\"unfit\":null,\"best\":13,\"played\":null,\"costly\":[]");
    EXPECT_EQ(json.error, "error: nergens.pbn: no such lesson or file\n");
}

// On his partner's king North throws the ace.
TEST_F(Check, TellsACardThatGivesATrickAway) {
    program.write("les.pbn",
                  "[Board \"1\"]\n[Deal \"N:AQ2.A32.5432.432 J543.KJ5.AJT.765 K76.Q764.KQ9.AKQ T98.T98.876.JT98\"]\n"
                  "[Declarer \"S\"]\n[Contract \"3NT\"]\n[Play \"W\"]\nCJ C2 C5 CA\nS8 SA S3 SK\n*\n");
    const Told told = run("check", {"les.pbn"});
    EXPECT_EQ(told.status, 0);
    EXPECT_EQ(told.out,
              "board 1, line 1: 3N by S, sound; best play makes 11\n"
              "  card 7, trick 2: N plays SA and gives 2 tricks away; best: S2\n");
}

TEST_F(Check, EndsBehindAnInterrupt) {
    test::Random random(1);
    std::string file;
    for (int number = 1; number <= 1000; ++number)
        file += pbn_game(test::random_board(random)) + "\n";
    program.write("veel.pbn", file);
    const std::jthread interrupt([] {
        std::this_thread::sleep_for(std::chrono::milliseconds(2500));
        std::raise(SIGINT);
    });
    const Told told = run("check", {"veel.pbn", "--json"});
    EXPECT_EQ(told.status, 1);
    EXPECT_TRUE(told.out.ends_with("}\n]\n")) << base::right(told.out, 100);
    const int told_of = base::split(told.out, "\"deal\":").last();
    EXPECT_GT(told_of, 0);
    EXPECT_LT(told_of, 1000);
    EXPECT_NE(told.error.find("interrupted after " + std::to_string(told_of) + "\n"), std::string::npos) << told.error;
    EXPECT_NE(told.error.find("checked "), std::string::npos) << told.error;
}

}  // namespace
