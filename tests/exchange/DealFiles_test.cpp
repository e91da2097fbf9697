// The files of a deal and of a lesson, byte by byte.
#include "exchange/DealFiles.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/Text.h"
#include "exchange/PbnReader.h"
#include "exchange/PlayOut.h"
#include "exchange/TestBoards.h"

namespace {

using namespace exchange;

// West has no spades and leads the ten of diamonds.
const std::string kDeal = "[Deal \"N:A32.K54.A32.K432 K98764.A3.K54.A7 QJT5.QJT98.QJ6.Q .762.T987.JT9865\"]\n";
const std::string kPlay = "[Play \"W\"]\nDT D2 DK D6\n*\n";

Board board_of(const std::string& bytes) { return test::read<PbnReader>(bytes).at(0); }

std::string file(const std::vector<DealFile>& files, const std::string& suffix) {
    const auto found = std::ranges::find(files, suffix, &DealFile::suffix);
    return found == files.end() ? "none" : base::replaced(found->bytes, "\r\n", "/");
}

std::string companion_file(const Board& board, const std::string& suffix) {
    std::vector<Remark> notes;
    return file(companion_files(board, notes), suffix);
}

// Four columns of nine cells, without those that hold nothing at their end.
std::string bidding_of(const std::string& tags) {
    const Board board = board_of(kDeal + tags + kPlay);
    const base::Pieces lines = base::split(companion_file(board, " bieding.txt"), "/");
    EXPECT_EQ(lines.last(), 37) << "37 lines and what follows the last line end";
    std::string text = lines[0];
    for (int seat = 0; seat < 4; ++seat) {
        std::string column;
        for (int round = 0; round < 9; ++round)
            column += " " + lines[1 + 9 * seat + round];
        while (column.ends_with(" ~~"))
            column.resize(column.size() - 3);
        text += " |" + column;
    }
    return text;
}

TEST(DealFiles, HaveTheirExactForm) {
    const Board board = board_of("{Wat nu?}\n" + kDeal + "[Auction \"S\"]\n1H P 4H AP\n" + kPlay + "{Zo dus.}\n");
    EXPECT_EQ(companion_file(board, " Contract.txt"), "Zuid 4 Harten/");
    EXPECT_EQ(companion_file(board, " Uitkomst.txt"), "West - 2T/");
    EXPECT_EQ(companion_file(board, " handen.txt"),
              "A32/H54/A32/H432/H98764/A3/H54/A7/VBT5/VBT98/VB6/V//762/T987/BT9865/");
    EXPECT_EQ(companion_file(board, " vraag.txt"), "/Wat nu?/");
    EXPECT_EQ(companion_file(board, " antwoord.txt"), "/Zo dus./");
}

TEST(DealFiles, NameContractAndLeadInTheirOwnWords) {
    for (const auto& [contract, lead, words] : {std::tuple{"S1NT", "C6", "Zuid 1 SA/ West - 36/"},
                                                {"W7C", "SA", "West 7 Klaveren/ Noord - 0Aas/"},
                                                {"N2S", "HA", "Noord 2 Schoppen/ Oost - 1Aas/"},
                                                {"E3D", "SQ", "Oost 3 Ruiten/ Zuid - 0Vrouw/"},
                                                {"S4H", "CJ", "Zuid 4 Harten/ West - 3Boer/"},
                                                {"W4H", "DA", "West 4 Harten/ Noord - 2Aas/"},
                                                {"N4H", "DK", "Noord 4 Harten/ Oost - 2Heer/"}}) {
        const Additions additions{*contract_of(contract + 1, *seat_of(contract[0])), card_of(lead)};
        const Board board = with(board_of(kDeal), additions);
        ASSERT_FALSE(refusal(board)) << contract;
        EXPECT_EQ(companion_file(board, " Contract.txt") + " " + companion_file(board, " Uitkomst.txt"), words);
    }
}

TEST(DealFiles, FillNoordsCellInEveryRound) {
    EXPECT_EQ(bidding_of("[Declarer \"S\"]\n[Contract \"4H\"]\n"), " | | | |");
    EXPECT_EQ(bidding_of("[Auction \"S\"]\n1H P 4H AP\n"), "Zuid | -~~ 4~2~ | ~~ pas~~ | 1~2~ pas~~ | pas~~ pas~~");
    EXPECT_EQ(bidding_of("[Auction \"N\"]\nP P 1NT X XX AP\n"),
              "Noord | pas~~ rdbl~~ | pas~~ pas~~ | 1~4~ pas~~ | dbl~~ pas~~");
    EXPECT_EQ(
        bidding_of("[Auction \"W\"]\nP P P 1S P 2C P 2D P 3H P 4S AP\n"),
        "West | -~~ pas~~ 2~0~ 3~2~ pas~~ | ~~ pas~~ pas~~ pas~~ pas~~ | ~~ 1~3~ 2~1~ 4~3~ | pas~~ pas~~ pas~~ pas~~");
}

TEST(DealFiles, TellADoubleAndTheTextsAtCards) {
    const Board board =
        board_of("{Wat nu?}\n" + kDeal +
                 "[Auction \"S\"]\n1H P 4H X AP\n[Play \"W\"]\nDT {Een \\D.\nHoog?} D2 DK {Ja} D6\n*\n{Zo.}\n");
    EXPECT_EQ(companion_file(board, " vraag.txt"), "/Het contract is gedoubleerd./Wat nu?/");
    EXPECT_EQ(companion_file(board, " antwoord.txt"), "/Zo./Slag 1, Ruiten 10: Een R./Hoog?/Slag 1, Ruiten Heer: Ja/");
    EXPECT_EQ(companion_file(board_of(kDeal + "[Declarer \"S\"]\n[Contract \"4HXX\"]\n" + kPlay), " vraag.txt"),
              "/Het contract is geredoubleerd./");
}

// A row stands in columns from the opening leader on, whoever leads its trick.
TEST(DealFiles, TellTheTextsAtCardsInTheOrderOfPlay) {
    const Board board = board_of(kDeal + "[Auction \"S\"]\n1H P 4H AP\n[Play \"W\"]\nDT D2 DK D6\n" +
                                 "D9 {drie} DA {vier} D5 {een} DJ {twee}\n*\n");
    EXPECT_EQ(companion_file(board, " antwoord.txt"),
              "/Slag 2, Ruiten 5: een/Slag 2, Ruiten Boer: twee/Slag 2, Ruiten 9: drie/Slag 2, Ruiten Aas: vier/");
    EXPECT_EQ(test::told(board), "4HS 8 C5=een C6=twee C7=drie C8=vier");
}

TEST(DealFiles, OfALessonHoldThePlayBySeatAndATextACard) {
    // Each hand is a suit; Noord ruffs and leads all trumps. The last trick is not recorded but for its lead.
    std::string play = "[Play \"W\"]\n";
    const std::string deal = "[Deal \"N:AKQJT98765432... .AKQJT98765432.. ..AKQJT98765432. ...AKQJT98765432\"]\n";
    for (const char* trick : {"CA SA HA DA", "CK SK HK DK", "CQ SQ HQ DQ", "CJ SJ HJ DJ", "CT ST HT DT", "C9 S9 H9 D9",
                              "C8 S8 H8 D8", "C7 S7 H7 D7", "C6 S6 H6 D6", "C5 S5 H5 D5", "C4 S4 H4 D4", "C3 S3 H3 D3"})
        play += std::string(trick) + "\n";
    Board board = board_of(deal + "[Declarer \"S\"]\n[Contract \"1S\"]\n" + play + "- S2 {Klaar}\n*\n");
    play_last_cards(board);
    ASSERT_TRUE(board.play->complete()) << test::told(board);
    EXPECT_EQ(test::told(board), "1SS 52 C49=Klaar (the play ends with card 49; the last cards follow)");
    std::vector<Remark> notes;
    const auto files = lesson_files(board, notes);
    EXPECT_EQ(files.size(), 8U);
    const base::Pieces rows = base::split(file(files, " aftavrin.txt"), "/");
    EXPECT_EQ(rows.last(), 13);
    EXPECT_EQ(rows[0], "4123|2213|2226|2239|2252") << "led by West, taken by Noord's trump";
    EXPECT_EQ(rows[1], "1234|2212|2225|2238|2251");
    EXPECT_EQ(rows[12], "1234|2201|2214|2227|2240");
    const std::string records = files.back().bytes;
    ASSERT_EQ(records.size(), 52U * 532U);
    for (std::size_t card = 1; card <= 52; ++card) {
        const std::string record = base::trimmed(records.substr((card - 1) * 532, 532));
        EXPECT_EQ(record, std::to_string(card) + "|" + (card == 49 ? "Klaar" : ""));
    }
}

struct Refused {
    const char* name;
    std::string bytes;
    Additions additions;
    const char* reason;  // "" for a deal that can be made
};

class Refusals : public testing::TestWithParam<Refused> {};

TEST_P(Refusals, TellTheirReason) {
    const auto why = refusal(with(board_of(GetParam().bytes), GetParam().additions));
    EXPECT_EQ(why ? why->text : "", GetParam().reason);
}

const std::string kTags = "[Declarer \"S\"]\n[Contract \"4H\"]\n";
const Contract kFourHearts{{4, Strain::Hearts}, Doubling::None, Seat::South};
const Card kTen{Suit::Diamonds, 10};

INSTANTIATE_TEST_SUITE_P(
    Table, Refusals,
    testing::Values(
        Refused{"Nothing", kDeal + kTags + kPlay, {}, ""}, Refused{"NoContract", kDeal, {}, "no contract"},
        Refused{"NoLead", kDeal, {kFourHearts, {}}, "no opening lead"},
        Refused{"BothGiven", kDeal, {kFourHearts, kTen}, ""},
        Refused{"SameAsInTheFile", kDeal + kTags + kPlay, {kFourHearts, kTen}, ""},
        Refused{"OtherContract",
                kDeal + kTags,
                {Contract{{4, Strain::Hearts}, Doubling::Doubled, Seat::South}, kTen},
                "the file says 4H by S"},
        Refused{"OtherLead", kDeal + kTags + kPlay, {{}, Card{Suit::Diamonds, 9}}, "the file says the lead is DT"},
        Refused{"LeadOfAnother", kDeal, {kFourHearts, Card{Suit::Spades, 14}}, "W does not hold SA"},
        Refused{"PassedOut", kDeal + "[Auction \"N\"]\nAP\n", {}, "passed out"},
        Refused{
            "ContractOfAPassedOut", kDeal + "[Auction \"N\"]\nAP\n", {kFourHearts, kTen}, "the file says passed out"},
        Refused{"HigherBidInTheFile",
                kDeal + "[Auction \"S\"]\n1H P 4S *\n",
                {kFourHearts, kTen},
                "the auction in the file cannot end in it"},
        Refused{"NoDeal", kTags, {}, "no deal"},
        Refused{
            "NineRounds",
            kDeal + "[Auction \"S\"]\nP P P 1C P 1D P 1H P 1S P 1NT P 2C P 2D P 2H P 2S P 2NT P 3C P 3D P 3H P 3S AP\n",
            {{}, Card{Suit::Spades, 14}},
            ""},
        Refused{"TenRounds",
                kDeal + "[Auction \"S\"]\nP P P 1C P 1D P 1H P 1S P 1NT P 2C P 2D P 2H P 2S P 2NT P 3C P 3D P 3H P 3S "
                        "P 3NT P 4C AP\n",
                {{}, Card{Suit::Spades, 12}},
                "an auction of 10 rounds; nine are the most"}),
    [](const auto& info) { return info.param.name; });

}  // namespace
