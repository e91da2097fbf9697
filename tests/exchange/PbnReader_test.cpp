#include "exchange/PbnReader.h"

#include <gtest/gtest.h>

#include "base/Text.h"
#include "exchange/TestBoards.h"

namespace {

using namespace exchange;

// Noord-Zuid hold the tops; West leads against 4H by South.
const std::string kDeal = "[Deal \"N:A32.K54.A32.K432 K54.A32.K54.A765 QJT.QJT98.QJ6.Q8 9876.76.T987.JT9\"]\n";
const std::string kHead = "[Board \"7\"]\n[Dealer \"S\"]\n[Vulnerable \"EW\"]\n" + kDeal;
const std::string kAuction = "[Auction \"S\"]\n1H Pass 4H AP\n";
const std::string kBidding = "[Declarer \"S\"]\n[Contract \"4H\"]\n" + kAuction;

std::vector<Board> read(const std::string& bytes) { return test::read<PbnReader>(bytes); }

class PbnGame : public testing::TestWithParam<test::Told> {};

TEST_P(PbnGame, IsReadAndTold) {
    const auto boards = read(GetParam().bytes);
    ASSERT_EQ(boards.size(), 1U);
    EXPECT_EQ(test::told(boards[0]), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, PbnGame,
    testing::Values(
        test::Told{"DealAlone", kHead, "- 0"},
        test::Told{"ResultWithoutAuction", kHead + "[Declarer \"S\"]\n[Contract \"3NTX\"]\n[Result \"9\"]\n", "3NXS 0"},
        test::Told{"AuctionAlone", kHead + kAuction, "4HS 0"}, test::Told{"AuctionAndTags", kHead + kBidding, "4HS 0"},
        test::Told{"AllPassInTwoWords", kHead + "[Auction \"S\"]\n1H pass 4H all pass\n", "4HS 0"},
        test::Told{"MarksAndGlyphs",
                   kHead + "[Auction \"S\"]\n1H! $2 Pass? 4H=1= + AP *\n[Note \"1:naar de manche\"]\n",
                   "4HS 0 Q=4H: naar de manche"},
        test::Told{"PassTooMany", kHead + "[Auction \"S\"]\n1H P 4H P P P P\n",
                   "4HS 0 (passes behind the end of the auction are left out)"},
        test::Told{"OpeningPassesLeftOut", kHead + "[Declarer \"N\"]\n[Contract \"4H\"]\n[Auction \"S\"]\n1H P 4H AP\n",
                   "4HN 0 (2 opening passes were left out and are put back)"},
        test::Told{"DoublingDiffers", kHead + "[Declarer \"S\"]\n[Contract \"4H\"]\n[Auction \"S\"]\n1H P 4H X AP\n",
                   "4HXS 0 (the auction's doubling holds, not the tag's)"},
        test::Told{"Unfinished", kHead + "[Declarer \"S\"]\n[Contract \"4H\"]\n[Auction \"S\"]\n1H P *\n",
                   "4HS 0 (the auction is not finished; the contract's tag holds)"},
        test::Told{"OtherDealer", kHead + "[Auction \"E\"]\n1H P 4H AP\n",
                   "4HE 0 (the auction begins with E, not with the dealer's tag)"},
        test::Told{"PassedOut", kHead + "[Auction \"S\"]\nP P P P\n", "out 0"},
        test::Told{"TagsSayOtherwise", kHead + "[Declarer \"S\"]\n[Contract \"5C\"]\n" + kAuction,
                   "5CS 0 !7: the auction ends in 4H by S, the tags say 5C by S"},
        test::Told{"IllegalBid", kHead + "[Auction \"S\"]\n4H P 3H AP\n", "- 0 !5: call 3 (3H): not above 4H"},
        test::Told{"IrregularCall", kHead + "[Auction \"S\"]\n1H ^I 1D\n", "- 0 !6: an irregular call: ^I"},
        test::Told{"Redoubled", kHead + "[Declarer \"S\"]\n[Contract \"5DR\"]\n", "5DXXS 0"},
        test::Told{"ColumnsFromTheLeader", kHead + kBidding + "[Play \"W\"]\nDT D2 DK D6\nD9 DA D5 DJ\n*\n", "4HS 8"},
        test::Told{"LeaderOfTheTrickFirst", kHead + kBidding + "[Play \"W\"]\nDT D2 DK D6\nD5 DJ D9 DA\n*\n",
                   "4HS 8 (the cards of the play stand out of their columns)"},
        test::Told{"WrongSeatInTheTag", kHead + kBidding + "[Play \"N\"]\nDT D2 DK D6\n*\n",
                   "4HS 4 (the play is led by another seat than its tag says)"},
        test::Told{"TurnedByOneSeat", kHead + kBidding + "[Play \"N\"]\nD2 DK D6 DT\n*\n",
                   "4HS 0 !9: the play does not fit the hands, or is not led from declarer's left"},
        test::Told{"Gap", kHead + kBidding + "[Play \"W\"]\nDT D2 - D6\nD9 DA D5 DJ\n*\n",
                   "4HS 2 (the play has a gap behind card 2; the rest is left out)"},
        test::Told{"Claimed", kHead + kBidding + "[Play \"W\"]\nDT D2 DK D6\n- - D5 -\n*\n", "4HS 5"},
        test::Told{"Revoke", kHead + kBidding + "[Play \"W\"]\nDT D2 DK C8\n*\n",
                   "4HS 0 !10: card 4 (C8): S does not follow suit"},
        test::Told{"Comments",
                   "{Wat nu?}\n" + kHead + kBidding +
                       "[Play \"W\"]\n{Kijk.} DT {Een tien.\n\nOf niet?} D2 DK=1= D6\n* {Gedaan.}\n" +
                       "[Note \"1:hoog\"]\n{Klaar}\n",
                   "4HS 4 Q=Wat nu?/Kijk. C1=Een tien.//Of niet? C3=hoog A=Gedaan./Klaar"},
        test::Told{"CommentAtACall", kHead + "[Auction \"S\"]\n{Vooraf} 1H {Vijf harten} P 4H AP\n",
                   "4HS 0 Q=Vooraf/1H: Vijf harten"},
        test::Told{"CommentsWithoutPlay", kHead + kBidding + "{Wat bedoelt Noord?}\n; En Zuid?\n",
                   "4HS 0 Q=Wat bedoelt Noord?/En Zuid?"},
        test::Told{"TwoUnknownHands", "[Deal \"N:A32.K54.A32.K432 - QJT.QJT98.QJ6.Q8 -\"]\n",
                   "- 0 <more than one hand is unknown>"},
        test::Told{"EndPosition", "[Deal \"N:A.K.. K.A.. Q.Q.. 9.7..\"]\n",
                   "- 0 (an end position is left out) <an end position>"},
        test::Told{"CardTwice", "[Deal \"N:A32.K54.A32.K432 K54.A32.K54.A765 QJT.QJT98.QJ6.A8 9876.76.T987.JT9\"]\n",
                   "- 0 !1: CA is held twice"},
        test::Told{"NoDeal", "[Board \"1\"]\n[Contract \"4H\"]\n[Declarer \"S\"]\n", "- 0 <no deal>"}),
    [](const auto& info) { return info.param.name; });

TEST(PbnReader, TellsGamesApartHoweverTheyAreWritten) {
    const std::string game = replaced(kHead, "\n", "\r\n");
    for (const std::string& bytes :
         {kHead + "\n" + kHead, kHead + "  \t\n\n\n% no game\n" + kHead, game + "\r\n" + game, kHead + kHead,
          replaced(kHead, "\n", "\r") + "\r" + replaced(kHead, "\n", "\r"), "\xEF\xBB\xBF" + kHead + "\n" + kHead}) {
        const auto boards = read(bytes);
        ASSERT_EQ(boards.size(), 2U);
        for (const Board& board : boards) {
            EXPECT_EQ(board.board, "7");
            EXPECT_EQ(board.dealer, Seat::South);
            EXPECT_EQ(board.vulnerable, Vulnerable::EastWest);
            EXPECT_TRUE(board.deal && board.deal->problem().empty());
        }
    }
}

TEST(PbnReader, TakesOverWhatAGameDoesNotRepeat) {
    const auto boards = read(
        kHead + kBidding + "\n[Board \"7\"]\n[Declarer \"E\"]\n[Contract \"1NT\"]\n\n[Board \"#\"]\n[Dealer \"#\"]\n" +
        "\n[Board \"8\"]\n[Contract \"1NT\"]\n");
    ASSERT_EQ(boards.size(), 4U);
    EXPECT_EQ(test::told(boards[1]), "1NE 0");
    EXPECT_EQ(boards[1].deal, boards[0].deal) << "another table of the same board";
    EXPECT_EQ(boards[2].board, "7");
    EXPECT_EQ(boards[2].deal, boards[0].deal);
    EXPECT_FALSE(boards[3].deal) << "another board";
}

TEST(PbnReader, ReadsEitherEncodingAndUtf16) {
    const std::string utf8 = "[Board \"1\"]\n{na\xC3\xAFve}\n";
    std::string utf16 = "\xFF\xFE";
    for (const char character : std::string("[Board \"1\"]\n{na\xEFve}\n"))
        utf16 += std::string(1, character) + std::string(1, '\0');
    for (const std::string& bytes : {utf8, std::string("[Board \"1\"]\n{na\xEFve}\n"), utf16}) {
        ASSERT_EQ(read(bytes)[0].texts.size(), 1U);
        EXPECT_EQ(read(bytes)[0].texts[0].text, "na\xC3\xAFve");
    }
}

TEST(PbnReader, GoesOnBehindABrokenTag) {
    const auto boards = read("[Board \"1]\n" + kDeal + "\n" + kHead);
    ASSERT_EQ(boards.size(), 2U);
    EXPECT_EQ(test::told(boards[0]), "- 0 (a tag that does not end)");
    EXPECT_EQ(test::told(boards[1]), "- 0");
}

}  // namespace
