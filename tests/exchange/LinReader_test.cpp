#include "exchange/LinReader.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/Text.h"
#include "exchange/Lines.h"
#include "exchange/TestBoards.h"

namespace {

using namespace exchange;

// South, West, North and East; South deals.
const std::string kHands = "SQJTHQJT98DQJ6CQ8,S9876H76DT987CJT9,SA32HK54DA32CK432,SK54HA32DK54CA765";
const std::string kDeal = "md|1" + kHands + "|";
const std::string kAuction = "mb|1H|mb|p|mb|4H|mb|p|mb|p|mb|p|";

class LinBoard : public testing::TestWithParam<test::Told> {};

TEST_P(LinBoard, IsReadAndTold) {
    const auto boards = test::read<LinReader>(GetParam().bytes);
    ASSERT_EQ(boards.size(), 1U);
    EXPECT_EQ(test::told(boards[0]), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, LinBoard,
    testing::Values(
        test::Told{"DealAlone", "qx|o1|" + kDeal + "sv|e|", "- 0"},
        test::Told{"AuctionAndPlay", kDeal + kAuction + "pc|DT|pc|D2|pc|DK|pc|D6|pg||pc|D5|pc|DJ|pc|D9|pc|DA|",
                   "4HS 8"},
        test::Told{"InCapitalsAndSeveralInOne", "MD|1" + kHands + "|MB|1h!p4HPpp|PC|DTD2DKD6|", "4HS 4"},
        test::Told{"OneHandMissing", "md|1" + kHands.substr(0, kHands.rfind(',') + 1) + "|" + kAuction, "4HS 0"},
        test::Told{"NoTrumpPassesAndDouble", kDeal + "mb|1np3nppdppp|", "3NXS 0"},
        test::Told{"SuitAlone", kDeal + kAuction + "pc|DT|pc|D|", "4HS 2 (a suit alone is its lowest card, D2)"},
        test::Told{"FirstHandMissing", "md|1," + kHands.substr(kHands.find(',') + 1) + "|" + kAuction + "pc|DTD2DKD6|",
                   "4HS 4"},
        test::Told{"Claimed", kDeal + kAuction + "pc|DT|mc|9|nt|Goed gespeeld|", "4HS 1 A=Goed gespeeld"},
        test::Told{"TextsAtTheirPlaces",
                   "nt|Wat nu?|" + kDeal +
                       "mb|1H|an|vijf harten|mb|p4Hppp|pc|DT|nt|Een tien @D, !s of @@. Mis!dan|at|^b@2Ja.|pc|D2|",
                   "4HS 2 Q=Wat nu?/1H: vijf harten C1=Een tien \u2666, \u2660 of @. Mis!dan/^b@2Ja."},
        test::Told{"TakenBack", kDeal + kAuction + "pc|DT|nt|Goed|pc|D2|up|2|pc|DT|nt|Beter|",
                   "4HS 2 C1=Goed (cards are taken back; what follows is left out)"},
        test::Told{"ClaimNotTaken", kDeal + kAuction + "pc|DT|mc|9|pc|D2|nt|Verder|", "4HS 2 C2=Verder"},
        test::Told{"BiddingUnknown", kDeal + "mb|1H|mb|?|",
                   "- 0 (the bidding is known up to here) (the auction is not finished)"},
        test::Told{"DealerByTheBoard", "qx|o3|md|0" + kHands + "|" + kAuction,
                   "4HS 0 (the dealer is that of the board's number)"},
        test::Told{"VulnerableInOtherLetters", kDeal + "sv|x|", "- 0 (not a vulnerability: x)"},
        test::Told{"NoDealer", "md|0" + kHands + "|" + kAuction, "- 0 !1: an auction without a dealer"},
        test::Told{"ResultWithoutAuction", "rs|4SNX-1,PASS|\nqx|o1|" + kDeal, "4SXN 0"},
        test::Told{"Picture", "md|1SAKQ,,,|", "- 0 (a picture of a few cards is no deal) <a picture of a few cards>"},
        test::Told{"PictureOfThreeHands", "md|1SAKQ,HAKQ,DAKQ,|",
                   "- 0 (a picture of a few cards is no deal) <a picture of a few cards>"},
        test::Told{
            "TwoHands", "md|1" + kHands.substr(0, kHands.find(",SA32")) + ",,|mb|1H|mb|?|",
            "- 0 (the bidding is known up to here) (the auction is not finished) <more than one hand is unknown>"},
        test::Told{"Revoke", kDeal + kAuction + "\npc|DT|pc|S2|", "4HS 0 !2: card 2 (S2): N does not follow suit"},
        test::Told{"BiddingWithoutEnd", kDeal + "mb|" + std::string(400, 'p') + "|",
                   "- 0 !1: an auction without an end"},
        test::Told{"NotACall", kDeal + "mb|1Z|", "- 0 !1: not a call: 1Z"},
        test::Told{"Comment", "% from a table\n" + kDeal + kAuction, "4HS 0"}),
    [](const auto& info) { return info.param.name; });

// The vulnerability stands in front of a deal or behind it.
TEST(LinReader, GivesTheVulnerabilityToItsOwnBoard) {
    for (const std::string& bytes :
         {"sv|n|" + kDeal + kAuction + "sv|b|" + kDeal + kAuction,
          kDeal + "sv|n|" + kAuction + kDeal + kAuction + "sv|B|", "qx|o1|" + kDeal + "sv|n|qx|o2|sv|b|" + kDeal}) {
        const auto boards = test::read<LinReader>(bytes);
        ASSERT_EQ(boards.size(), 2U) << bytes;
        EXPECT_EQ(boards[0].vulnerable, Vulnerable::NorthSouth) << bytes;
        EXPECT_EQ(boards[1].vulnerable, Vulnerable::Both) << bytes;
    }
    for (const char* none : {"o", "0", "-"})
        EXPECT_EQ(test::read<LinReader>(kDeal + "sv|" + none + "|")[0].vulnerable, Vulnerable::None) << none;
}

// Two rooms play each board; one of them may be missing in the file.
TEST(LinReader, TakesResultsByRoomAndBoard) {
    const auto boards = test::read<LinReader>("vg|Beker,1,I,17,18,A,0,B,0|rs|4HS=,3NTE-1,PASS,2SXN+1|\nqx|c17|" +
                                              kDeal + "qx|c18|" + kDeal + "qx|o18|" + kDeal + "qx|o19|" + kDeal);
    ASSERT_EQ(boards.size(), 4U);
    EXPECT_EQ(test::told(boards[0]), "3NE 0");
    EXPECT_EQ(boards[0].result, 8);
    EXPECT_EQ(test::told(boards[1]), "2SXN 0");
    EXPECT_EQ(boards[1].result, 9);
    EXPECT_EQ(test::told(boards[2]), "out 0");
    EXPECT_EQ(test::told(boards[3]), "- 0") << "no board of this match";
    EXPECT_EQ(test::read<LinReader>("rs|4HS+1|" + kDeal + kAuction)[0].result, 11);
    const auto unfinished = [](const std::string& result) {
        return test::told(test::read<LinReader>("rs|" + result + "|" + kDeal + "mb|1H|mb|p|mb|?|")[0]).substr(0, 3);
    };
    EXPECT_EQ(unfinished("4HS="), "4HS");
    EXPECT_EQ(unfinished("1CS="), "- 0") << "of other bidding";
    EXPECT_EQ(test::read<LinReader>("rs|3HS+1|" + kDeal + kAuction)[0].result, std::nullopt) << "of another contract";
}

TEST(LinReader, TellsBoardsApart) {
    const auto boards =
        test::read<LinReader>("vg|Cup,,I,1,2,A,0,B,0|rs|4HS=,3NTE-1|\npn|a,b,c,d|pg||\nqx|o1|" + kDeal + kAuction +
                              "pg||\nqx|c1,BOARD 1|" + kDeal + "sv|b|mb|1H|\n\n" + kDeal + "ah|Board 12|");
    ASSERT_EQ(boards.size(), 3U);
    EXPECT_EQ(boards[0].board, "1");
    EXPECT_EQ(boards[1].board, "1");
    EXPECT_EQ(boards[1].vulnerable, Vulnerable::Both);
    EXPECT_EQ(boards[1].result, std::nullopt);
    EXPECT_EQ(boards[2].board, "12");
}

// A bar too few or too many turns names into values.
TEST(LinReader, GoesOnWithTheNextBoardBehindABrokenCommand) {
    const std::string good = "qx|o2|" + kDeal + kAuction;
    for (const char* broken : {"nt|Wat|\u00E9\u00E9n?|pg||", "nt|Wat nu?pg||"}) {
        for (const std::string& next : {good, good.substr(good.find("md"))}) {
            const auto boards = test::read<LinReader>("qx|o1|" + kDeal + kAuction + broken + "\n" + next);
            ASSERT_EQ(boards.size(), 2U) << broken << next;
            ASSERT_EQ(boards[0].notes.size(), 1U) << broken;
            EXPECT_TRUE(boards[0].notes[0].text.starts_with("not a command: ")) << boards[0].notes[0].text;
            EXPECT_TRUE(is_utf8(boards[0].notes[0].text)) << boards[0].notes[0].text;
            EXPECT_EQ(test::told(boards[1]), "4HS 0");
        }
    }
}

}  // namespace
