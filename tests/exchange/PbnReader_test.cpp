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
        test::Told{"SignOfACallToCome", kHead + "[Auction \"S\"]\n1H Pass + \n", "- 0 (the auction is not finished)"},
        test::Told{"SeatsInFrontOfTheDealerAndBehindTheEnd", kHead + "[Auction \"N\"]\n- - 1H Pass\n4H AP - -\n",
                   "4HS 0"},
        test::Told{"CallLeftOut", kHead + "[Auction \"S\"]\n1H - 4H AP\n", "- 0 !6: a call is missing in front of 4H"},
        test::Told{"PassTooMany", kHead + "[Auction \"S\"]\n1H P 4H P P P P\n",
                   "4HS 0 (passes behind the end of the auction are left out)"},
        test::Told{"OpeningPassesLeftOut", kHead + "[Declarer \"N\"]\n[Contract \"4H\"]\n[Auction \"S\"]\n1H P 4H AP\n",
                   "4HN 0 (2 opening passes were left out and are put back)"},
        test::Told{"DoublingDiffers", kHead + "[Declarer \"S\"]\n[Contract \"4H\"]\n[Auction \"S\"]\n1H P 4H X AP\n",
                   "4HXS 0 (the auction's doubling holds, not the tag's)"},
        test::Told{"Unfinished", kHead + "[Declarer \"S\"]\n[Contract \"4H\"]\n[Auction \"S\"]\n1H P *\n",
                   "4HS 0 (the auction is not finished; the contract's tag holds)"},
        test::Told{"UnfinishedAboveTheContract",
                   kHead + "[Declarer \"S\"]\n[Contract \"1C\"]\n[Auction \"S\"]\n1H P *\n",
                   "1CS 0 !7: the auction cannot end in the tags' 1C by S"},
        test::Told{"OpeningPassesLeftOutBeforeAPlay",
                   kHead + "[Declarer \"N\"]\n[Contract \"4H\"]\n[Auction \"S\"]\n1H P 4H AP\n[Play \"E\"]\nC7\n*\n",
                   "4HN 1 (2 opening passes were left out and are put back)"},
        test::Told{"LedFromElsewhere",
                   kHead + "[Declarer \"N\"]\n[Contract \"4H\"]\n[Auction \"S\"]\n1H P 4H AP\n[Play \"E\"]\nDT\n*\n",
                   "4HN 0 !7: the auction ends in 4H by S, the tags say 4H by N"},
        test::Told{"OtherDealer", kHead + "[Auction \"E\"]\n1H P 4H AP\n",
                   "4HE 0 (the auction begins with E, not with the dealer's tag)"},
        test::Told{"PassedOut", kHead + "[Auction \"S\"]\nP P P P\n", "out 0"},
        test::Told{"TagsSayOtherwise", kHead + "[Declarer \"S\"]\n[Contract \"5C\"]\n" + kAuction,
                   "5CS 0 !7: the auction ends in 4H by S, the tags say 5C by S"},
        test::Told{"ContractTagAloneSaysOtherwise", kHead + "[Contract \"4S\"]\n" + kAuction,
                   "- 0 !6: the auction ends in 4H by S, the tags say 4S"},
        test::Told{"IllegalBid", kHead + "[Auction \"S\"]\n4H P 3H AP\n", "- 0 !5: call 3 (3H): not above 4H"},
        test::Told{"IrregularCall", kHead + "[Auction \"S\"]\n1H ^I 1D\n", "- 0 !6: an irregular call: ^I"},
        test::Told{"IrregularCard", kHead + kBidding + "[Play \"W\"]\nDT D2 ^R C8\n",
                   "4HS 0 !10: an irregular card: ^R"},
        test::Told{"Redoubled", kHead + "[Declarer \"S\"]\n[Contract \"5DR\"]\n", "5DXXS 0"},
        test::Told{"ColumnsFromTheLeader", kHead + kBidding + "[Play \"W\"]\nDT D2 DK D6\nD9 DA D5 DJ\n*\n", "4HS 8"},
        test::Told{"LeaderOfTheTrickFirst", kHead + kBidding + "[Play \"W\"]\nDT D2 DK D6\nD5 DJ D9 DA\n*\n",
                   "4HS 8 (the cards of the play stand out of their columns)"},
        test::Told{"WrongSeatInTheTag", kHead + kBidding + "[Play \"N\"]\nDT D2 DK D6\n*\n",
                   "4HS 4 (the play is led by another seat than its tag says)"},
        test::Told{"DealerAndVulnerableInOtherWords",
                   "[Dealer \"North\"]\n[Vulnerable \"red\"]\n" + kDeal + "[Auction \"\"]\n1H\n",
                   "- 0 (not a dealer: North) (not a vulnerability: red) (an auction without a dealer is left out)"},
        test::Told{"NoSeatInThePlaysTag", kHead + kBidding + "[Play \"?\"]\nDT D2 DK D6\n*\n",
                   "4HS 4 (the play's tag names no seat)"},
        test::Told{"NoSeatAndNoPlay", kHead + kBidding + "[Play \"\"]\n?\n", "4HS 0"},
        test::Told{"NoSeatInTheAuctionsTag", kHead + "[Auction \"\"]\n1H P 4H AP\n",
                   "4HS 0 (the auction's tag names no seat; the dealer's holds)"},
        test::Told{"NoDealerAtAll", kDeal + "[Auction \"?\"]\n1H {Een} P 4H AP\n",
                   "- 0 Q=Een (an auction without a dealer is left out)"},
        test::Told{"TurnedByOneSeat", kHead + kBidding + "[Play \"N\"]\nD2 DK D6 DT\n*\n",
                   "4HS 0 !9: the play does not fit the hands, or is not led from declarer's left"},
        test::Told{"Gap", kHead + kBidding + "[Play \"W\"]\nDT D2 - D6\nD9 DA D5 DJ\n*\n",
                   "4HS 2 (the play has a gap behind card 2; the rest is left out)"},
        test::Told{"CardToComeWithinARow", kHead + kBidding + "[Play \"W\"]\nDT D2 DK D6\n+ - D5 DJ\n", "4HS 6"},
        test::Told{"CardToComeBehindARow", kHead + kBidding + "[Play \"W\"]\nDT D2 DK D6 +\n", "4HS 4"},
        test::Told{"TextsAtCardsBehindAGap", kHead + kBidding + "[Play \"W\"]\nDT {een} D2 - D6 {twee}\n*\n",
                   "4HS 2 C1=een C2=twee (the play has a gap behind card 2; the rest is left out) "
                   "(a text has no card of its own and stands at the card before it)"},
        test::Told{"LinesThatEndAnywhere", kHead + kBidding + "[Play \"W\"]\nDT\n{een} D2 DK\nD6 D9 DA\n\tD5 DJ *",
                   "4HS 8 C1=een"},
        test::Told{"CardsLeftOutAtTheEndOfALine", kHead + kBidding + "[Play \"W\"]\nDT D2\nD9 DA D5 DJ\n*\n",
                   "4HS 2 (the play has a gap behind card 2; the rest is left out)"},
        test::Told{"SeveralTricksInALine", kHead + kBidding + "[Play \"W\"] DT D2 DK D6 D9 DA D5 DJ *", "4HS 8"},
        test::Told{"SectionsOfCommentsAlone", kHead + "[Auction \"S\"]\n{een}\n[Play \"W\"]\n{twee}\n*\n{drie}\n",
                   "- 0 Q=een/twee/drie"},
        test::Told{"PlayWithoutAContract", kHead + "[Play \"W\"]\nDT {een} D2 DK D6\n*\n{twee}\n",
                   "- 0 Q=een/twee (a play without a contract is left out)"},
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
        test::Told{"EndPositionWithAHandMissing", "[Deal \"N:A.K.. K.A.. Q.Q.. -\"]\n",
                   "- 0 (an end position is left out) <an end position>"},
        test::Told{"CardTwice", "[Deal \"N:A32.K54.A32.K432 K54.A32.K54.A765 QJT.QJT98.QJ6.A8 9876.76.T987.JT9\"]\n",
                   "- 0 !1: CA is held twice"},
        test::Told{"NoDeal", "[Board \"1\"]\n[Contract \"4H\"]\n[Declarer \"S\"]\n", "- 0 <no deal>"}),
    [](const auto& info) { return info.param.name; });

TEST(PbnReader, TellsGamesApartHoweverTheyAreWritten) {
    const std::string game = base::replaced(kHead, "\n", "\r\n");
    for (const std::string& bytes :
         {kHead + "\n" + kHead, kHead + "  \t\n\n\n% no game\n" + kHead, game + "\r\n" + game, kHead + kHead,
          base::replaced(kHead, "\n", "\r") + "\r" + base::replaced(kHead, "\n", "\r"),
          "\xEF\xBB\xBF" + kHead + "\n" + kHead}) {
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

// However the hands are written, they are those of kDeal.
TEST(PbnReader, ReadsADealFromAnySeatAndHoweverItIsWritten) {
    const auto deal = read(kDeal)[0].deal;
    ASSERT_TRUE(deal && deal->problem().empty());
    for (const char* text :
         {"[Deal \"W:9876.76.T987.JT9 A32.K54.A32.K432 K54.A32.K54.A765 QJT.QJT98.QJ6.Q8\"]",
          "[Deal \"S:QJT.QJT98.QJ6.Q8 - A32.K54.A32.K432 K54.A32.K54.A765\"]",
          "[DEAL \"e:k54.a32.k54.a765 qj10.qj1098.qj6.q8 9876.76.10987.j109 -\"]",
          "[ deal\n  \"N:A32.K54.A32.K432\n K54.A32.K54.A765 QJT.QJT98.QJ6.Q8\n -\"\n]",
          "[Event \"a ]\\\" b\"][Deal \"N:32A.K54.A32.K432 K54.A32.K54.A765 - 9876.76.T987.JT9\"][Site \"\"]"}) {
        const auto boards = read(text);
        ASSERT_EQ(boards.size(), 1U) << text;
        EXPECT_EQ(boards[0].deal, deal) << text;
        EXPECT_EQ(test::told(boards[0]), "- 0") << text;
    }
}

TEST(PbnReader, HoldsAValueForAllLaterGamesButNotOfTheDealItself) {
    const auto boards = read("[Board \"##5\"]\n[Vulnerable \"##NS\"]\n[Dealer \"##W\"]\n" + kDeal +
                             "\n% [Board \"9\"]\n[Event \"#\"]\n" + kDeal + "\n[Board \"6\"]\n\n[Event \"\"]\n");
    ASSERT_EQ(boards.size(), 4U);
    EXPECT_EQ(boards[0].dealer, Seat::West);
    EXPECT_EQ(boards[0].vulnerable, Vulnerable::NorthSouth);
    EXPECT_EQ(boards[1].board, "5");
    EXPECT_FALSE(boards[1].dealer || boards[1].vulnerable);
    EXPECT_EQ(boards[2].board, "6");
    EXPECT_FALSE(boards[2].deal);
    EXPECT_EQ(boards[3].board, "5");
}

TEST(PbnReader, TakesAContractThatIsKnownWhereTheFileTellsNone) {
    const std::string play = "[Play \"W\"]\nDT D2 DK D6\n*\n";
    const Contract known{{4, Strain::Hearts}, Doubling::None, Seat::South};
    for (const auto& [tags, expected] : {std::pair{"", "4HS 4"},
                                         {"[Contract \"4H\"]\n", "4HS 4"},
                                         {"[Contract \"3S\"]\n", "- 0 !1: the file says 3S"},
                                         {"[Declarer \"N\"]\n", "- 0 !1: the file says by N"},
                                         {"[Contract \"Pass\"]\n", "out 0 (a play without a contract is left out)"},
                                         {"[Declarer \"S\"]\n[Contract \"5H\"]\n", "5HS 4"}}) {
        std::istringstream stream(kHead + tags + play);
        EXPECT_EQ(test::told(*PbnReader(stream).next(known)), expected) << tags;
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
    EXPECT_EQ(test::told(read("[Board \"1\"]\n[Deal \"N:A.K.. K.A.. Q.Q.. 9.7..\"]\n\n[Board \"1\"]\n")[1]),
              "- 0 <no deal>");
}

TEST(PbnReader, ReadsEitherEncodingAndUtf16) {
    const std::string utf8 = "[Board \"1\"]\n{na\xC3\xAFve}\n";
    std::string utf16 = "\xFF\xFE";
    for (const char character : std::string("[Board \"1\"]\n{na\xEFve}\n"))
        utf16 += std::string(1, character) + std::string(1, '\0');
    std::string utf16_big = "\xFE\xFF";
    for (std::size_t at = 2; at < utf16.size(); at += 2)
        utf16_big += std::string{utf16[at + 1], utf16[at]};
    const std::string windows = "[Board \"1\"]\n{na\xEFve}\n";
    for (const std::string& bytes : {utf8, windows, "% charset utf-8\n" + windows, utf16, utf16_big}) {
        ASSERT_EQ(read(bytes)[0].texts.size(), 1U);
        EXPECT_EQ(read(bytes)[0].texts[0].text, "na\xC3\xAFve");
    }
}

TEST(PbnReader, GoesOnBehindWhatDoesNotEnd) {
    for (const auto& [broken, expected] :
         {std::pair{"[Board \"1]\n" + kDeal, "- 0 (a tag that does not end)"},
          {"[Event 1\n" + kDeal, "- 0 (a tag that does not end)"},
          {"[Event 1]\n" + kDeal, "- 0 (not a tag: [Event 1])"},
          {kDeal + "[Site\n", "- 0 (a tag that does not end)"},
          {kDeal + kBidding + "{Wat nu?\n\n[Later.]\n", "4HS 0 Q=Wat nu?//[Later.] (a comment that does not end)"}}) {
        const auto boards = read(broken + "\n" + kHead + "{Of nu?}\n");
        ASSERT_EQ(boards.size(), 2U) << broken;
        EXPECT_EQ(test::told(boards[0]), expected);
        EXPECT_EQ(test::told(boards[1]), "- 0 Q=Of nu?");
    }
    for (const std::string& bytes : {kHead + "{Wat nu?\n", "{Wat nu?\n\n" + kHead}) {
        ASSERT_EQ(read(bytes).size(), 1U) << bytes;
        EXPECT_EQ(test::told(read(bytes)[0]), "- 0 Q=Wat nu? (a comment that does not end)");
    }
}

}  // namespace
