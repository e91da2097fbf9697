// Recording a deal by clicks, saving it, and taking it up again.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

#include "forms/Control.h"
#include "platform/CodePage.h"
#include "platform/SystemCalls.h"
#include "prepare/frmTavrin03.h"
#include "script/Names.h"
#include "support/Bridge.h"
#include "support/Places.h"
#include "support/System.h"

namespace {

using bridge::Card;
using bridge::Deal;
using bridge::Trick;

const std::string stem = "aftavrin/QVT_Spel 012/QVT_Spel 012";  // of the package, and of its files
constexpr const char* kWhite = "0xFFFFFF";
constexpr const char* kBlue = "0xFFC0C0";
constexpr const char* kGreen = "0x00FF00";

class Recording : public testing::Test {
protected:
    Recording() { program.install_companion(); }

    void open(const Deal& opened) {
        deal = opened;
        deal.write(program, "Spel 012");
        program("start\nclick frmTavrin01.cmdNieuwSpel\nselect frmTavrin03.lstRVLX 0");
    }
    std::string get(const std::string& name) { return program.get("frmTavrin03." + name); }
    std::string cell(int row, int col) {
        return get("msfgTavrin[" + std::to_string(row) + "," + std::to_string(col) + "].Text");
    }
    std::string colour(int seat, const Card& card) { return program.get(deal.label(seat, card) + ".BackColor"); }
    void click(int seat, const Card& card) { program("click " + deal.label(seat, card)); }
    std::string last_box() {
        const auto& boxes = program.interpreter.platform.boxes;
        return boxes.empty() ? "" : boxes.back().text;
    }

    // While the lead is fixed no heart is taken. A click on another suit frees it: where a heart was led it is refused,
    // a hand that has none of the suit led plays that card, and both it and the lead are taken back and led anew.
    void free_the_lead(int seat) {
        constexpr int kHearts = 1;
        if (deal.play[0].cards[seat].suit != kHearts) return;
        const auto other =
            std::ranges::find_if(deal.hands[seat], [](const Card& card) { return card.suit != kHearts; });
        click(seat, *other);
        EXPECT_EQ(program.shared("UitkomstVast"), "false");
        const Card& lead = deal.play[0].cards[deal.leader];
        if (lead.suit == kHearts) return;
        click(seat, *other);
        click(deal.leader, lead);
        click(deal.leader, lead);
    }

    // Plays tricks from one card on, in order; the first trick's lead lies there already.
    void play(std::size_t first_trick, std::size_t end_trick) {
        for (std::size_t t = first_trick; t < end_trick; ++t) {
            for (int step = t == 0 ? 1 : 0; step < 4; ++step) {
                const int seat = (deal.play[t].leader + step) % 4;
                if (t == 0 && step == 1) free_the_lead(seat);
                click(seat, deal.play[t].cards[seat]);
            }
        }
    }
    // How many of the first tricks a side has won, by the judge.
    std::string won(std::size_t tricks, int side) {
        int count = 0;
        for (std::size_t t = 0; t < tricks; ++t)
            count += deal.play[t].winner(deal.trump) % 2 == side ? 1 : 0;
        return std::to_string(count);
    }
    void expect_tricks(std::size_t tricks) {
        EXPECT_EQ(get("lblSlagenTellerNZ.Caption"), won(tricks, 0));
        EXPECT_EQ(get("lblSlagenTellerOW.Caption"), won(tricks, 1));
    }
    // A deal that is played and saved.
    void save(unsigned seed) {
        open(Deal::random(seed, 2, 2));
        play(0, 13);
        program("click frmTavrin03.cmdOpslaan");
    }
    std::string expected_rows() const {
        std::string rows;
        for (const Trick& trick : deal.play)
            rows += Deal::row(trick) + "\r\n";
        return rows;
    }

    Program program;
    Deal deal;
};

struct WholeDeal {
    unsigned seed;
    int leader;
    int trump;  // -1 for none
};

class WholeDeals : public Recording, public testing::WithParamInterface<WholeDeal> {};

TEST_P(WholeDeals, AreRecordedSavedTakenUpAgainAndReplayed) {
    const auto [seed, leader, trump] = GetParam();
    open(Deal::random(seed, leader, trump < 0 ? std::nullopt : std::optional(trump)));
    const auto companion_before = program.tree("RVLX");
    for (std::size_t t = 0; t < 13; ++t) {
        play(t, t + 1);
        if (t < 12) {
            const std::string seat = std::to_string(deal.play[t].winner(deal.trump) + 1);
            EXPECT_EQ(get("msfgTavrin[" + std::to_string(t + 2) + "," + seat + "].CellBackColor"), kBlue);
        }
        expect_tricks(t + 1);
    }
    EXPECT_EQ(last_box(), "Klik op de knop Opslaan om uw spel op te slaan.");
    program("click frmTavrin03.cmdOpslaan");
    EXPECT_EQ(get("cmdOpslaan.Enabled"), "false");
    EXPECT_EQ(program.read(stem + " aftavrin.txt"), expected_rows());
    EXPECT_EQ(program.read(stem + " informatie.txt").size(), 27664U);
    EXPECT_EQ(program.read(stem + " handen.txt"), program.read("RVLX/Spellen/Spel 012/Spel 012 handen.txt"));
    EXPECT_EQ(program.tree("RVLX"), companion_before);

    program("select frmTavrin03.lstAfTavrin 0");
    for (int row = 1; row <= 13; ++row) {
        for (int col = 1; col <= 4; ++col)
            EXPECT_EQ(cell(row, col), deal.play[row - 1].cards[col - 1].in_grid());
    }
    EXPECT_EQ(get("cmdOpslaan.Enabled"), "true");
    EXPECT_EQ(std::stoi(get("lblSlagenTellerNZ.Caption")) + std::stoi(get("lblSlagenTellerOW.Caption")), 13);

    program("key frmTavrin03 escape\nselect frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin");
    program("click frmTavrin02.cmdStart\nwait 60000");
    EXPECT_EQ(program.shared("kaartTeller"), "52");
    for (int seat = 0; seat < 4; ++seat) {
        const std::string list = "frmTavrin02.lstHand(" + std::to_string(seat + 1) + ").ListCount";
        EXPECT_EQ(program.get(list), "13");
    }
    // The table counts the last trick for Noord-Zuid, whoever won it.
    EXPECT_EQ(program.get("frmTavrin02.lblSlagenOW.Caption"), won(12, 1));
}

INSTANTIATE_TEST_SUITE_P(Deals, WholeDeals,
                         testing::Values(WholeDeal{1, 0, 0}, WholeDeal{2, 1, 1}, WholeDeal{3, 2, 2}, WholeDeal{4, 3, 3},
                                         WholeDeal{5, 3, -1}, WholeDeal{6, 1, 0}, WholeDeal{7, 2, -1},
                                         WholeDeal{8, 0, 1},
                                         // The second hand has none of the suit led and throws a heart away.
                                         WholeDeal{183, 2, 0}, WholeDeal{209, 2, -1}));

TEST_F(Recording, CompanionDealStandsReadyAfterItsLead) {
    open(Deal::random(1, 3, 1));
    const Card lead = deal.play[0].cards[3];
    EXPECT_EQ(cell(1, 4), lead.in_grid());
    EXPECT_EQ(get("msfgTavrin[1,4].CellBackColor"), kBlue);
    EXPECT_EQ(colour(3, lead), kBlue);
    EXPECT_EQ(get("lstKlaar.Tag"), "N");
    EXPECT_EQ(get("lblContract.Caption"), "Zuid 4 Harten");
    EXPECT_EQ(get("lblUitkomstWind.Caption"), "West - ");
    EXPECT_EQ(get("txtVraag.Text"), "Hoe speelt u dit?\\r\\n\\r\\n");
    EXPECT_EQ(get("cmdOpslaan.Enabled"), "false");
    EXPECT_EQ(get("fraBieding.Height"), std::to_string(3030 - 8 * 260));
    click(3, lead);
    EXPECT_EQ(last_box(), "U kunt de uitkomst niet verwijderen.");
}

TEST_F(Recording, DealWithoutTrumpsForgetsThoseOfTheDealBefore) {
    Deal::random(2, 3, std::nullopt).write(program, "Spel 013");
    open(Deal::random(1, 3, 1));
    const auto& screen = dynamic_cast<prepare::frmTavrin03&>(*program.programma.windows.find("frmTavrin03"));
    EXPECT_EQ(screen.TroefKleur, "H");
    program("select frmTavrin03.lstRVLX 1");
    EXPECT_EQ(screen.TroefKleur, "");
}

TEST_F(Recording, NoCardLiesOnAnotherAndHandsStandAtTheirSeats) {
    open(Deal::random(1, 3, 1));
    const std::array<std::string, 4> frames{"fraNoord", "fraOost", "fraZuid", "fraWest"};
    EXPECT_EQ(on_each_other(program, "frmTavrin03"), std::vector<std::string>{});
    EXPECT_EQ(around_the_table(program, "frmTavrin03", frames), std::vector(frames.begin(), frames.end()));
    for (const char* seat : {"N", "O", "Z", "W"}) {
        for (int suit = 0; suit < 4; ++suit)
            EXPECT_EQ(get(std::string("pic") + "SHRK"[suit] + seat + ".Picture"), std::to_string(109 - suit));
    }
}

TEST_F(Recording, WrongSeatAndRevokeAreRefusedInWords) {
    open(Deal::random(1, 3, 1));
    const Card lead = deal.play[0].cards[3];
    click(1, deal.hands[1][0]);
    if (deal.hands[1][0].suit == 1) {
        EXPECT_EQ(last_box(), "U kunt de uitkomst niet verwijderen.");
    } else {
        EXPECT_EQ(last_box(), "Wel de juiste volgorde aanhouden.\nGa verder met Noord!");
    }
    for (const Card& card : deal.hands[0]) {
        if (card.suit == lead.suit || card.suit == 1) continue;
        click(0, card);
        EXPECT_EQ(last_box(), std::string("Je moet wel (") + bridge::kSuitNames[lead.suit] + " ) bekennen");
        EXPECT_EQ(colour(0, card), kWhite);
        break;
    }
    EXPECT_EQ(get("lstKlaar.Tag"), "N");
}

// A hand for each seat in one suit, so that the odd handlers can be reached at will: Noord leads the suit given.
Deal deal_of_suits(const std::array<int, 4>& suit_of_seat, int leader) {
    Deal deal;
    deal.leader = leader;
    for (int seat = 0; seat < 4; ++seat) {
        for (int rank = 14; rank >= 2; --rank)
            deal.hands[seat].push_back({suit_of_seat[seat], rank});
    }
    std::mt19937 random(1);
    deal.play = bridge::random_play(deal, random);
    return deal;
}

// Each card as the third to the first trick: played, and taken back.
TEST_F(Recording, EveryHandlerTakesItsCardBackInItsOwnWay) {
    constexpr int kHearts = 1;
    constexpr int kZuid = 2;
    for (int suit = 0; suit < 4; ++suit) {
        for (int seat = 0; seat < 4; ++seat) {
            // No heart among the two cards before: the lead is fixed until then.
            std::array<int, 4> suits{};
            suits[seat] = suit;
            suits[(seat + 1) % 4] = suit == kHearts ? 0 : kHearts;
            for (int rest = 0, at = 2; rest < 4; ++rest) {
                if (rest != suit && rest != suits[(seat + 1) % 4]) suits[(seat + at++) % 4] = rest;
            }
            Program fresh;
            fresh.install_companion();
            deal = deal_of_suits(suits, (seat + 2) % 4);
            deal.write(fresh, "Spel 012");
            fresh("start\nclick frmTavrin01.cmdNieuwSpel\nselect frmTavrin03.lstRVLX 0");
            const int before = (seat + 3) % 4;
            fresh("click " + deal.label(before, deal.hands[before][0]));
            const Card card = deal.hands[seat][4];
            const std::string label = deal.label(seat, card);
            const std::string cell = "frmTavrin03.msfgTavrin[1," + std::to_string(seat + 1) + "].Text";
            SCOPED_TRACE(label);
            fresh("click " + label);
            EXPECT_EQ(fresh.get(label + ".BackColor"), kBlue);
            EXPECT_EQ(fresh.get(cell), card.in_grid());
            EXPECT_EQ(fresh.get("frmTavrin03.lstKlaar.Tag"), std::string(1, "NOZW"[(seat + 1) % 4]));
            fresh("click " + label);
            EXPECT_EQ(fresh.get(label + ".BackColor"), kWhite);
            EXPECT_EQ(fresh.get(cell), suit == kHearts && seat == kZuid ? card.in_grid() : "");
            EXPECT_EQ(fresh.get("frmTavrin03.lstKlaar.Tag"), std::string(1, suit == kHearts ? 'H' : "NOZW"[seat]));
            EXPECT_EQ(fresh("boxes"), ".");
            fresh("click " + deal.label(seat, deal.hands[seat][5]));
            EXPECT_EQ(fresh("boxes") == ".", suit != kHearts) << "a heart taken back stops the play";
        }
    }
}

TEST_F(Recording, HeartOfZuidTakenBackEmptiesTheCellOfWest) {
    open(deal_of_suits({0, 3, 1, 2}, 2));
    click(2, deal.hands[2][3]);
    EXPECT_EQ(last_box(), "U kunt de uitkomst niet verwijderen.") << "as long as it is fixed no heart is taken";
    click(3, deal.hands[3][0]);
    EXPECT_EQ(cell(1, 4), "R A");
    click(2, deal.play[0].cards[2]);
    EXPECT_EQ(cell(1, 4), "");
    EXPECT_EQ(colour(3, deal.hands[3][0]), kBlue);
}

TEST_F(Recording, NextCardAfterOneTakenBackCountsAsTheLead) {
    open(deal_of_suits({0, 3, 1, 2}, 0));
    const auto low = [&](int seat) { return deal.hands[seat][12]; };
    click(1, low(1));
    click(1, low(1));
    click(1, low(1));
    click(2, low(2));
    click(3, low(3));
    EXPECT_EQ(get("msfgTavrin[2,2].CellBackColor"), kBlue) << "Oost wins with a club on Noord's spade";
    EXPECT_EQ(get("lstKlaar.Tag"), "O");
    EXPECT_EQ(get("lblSlagenTellerOW.Caption"), "1");
}

struct FreeDiscard {
    const char* name;
    int seat;
    int suit;
    bool free;
};

class ClubLed : public Recording, public testing::WithParamInterface<FreeDiscard> {};

// Two cards may always be played on a club: a diamond by West, a spade by Oost.
TEST_P(ClubLed, IsFollowedByAllButTwo) {
    const FreeDiscard& tested = GetParam();
    // The tested seat holds six clubs and seven cards of its suit, and sits behind the leader.
    Deal made = deal_of_suits({0, 1, 2, 3}, 0);
    const int leader = (tested.seat + 3) % 4;
    std::array<std::vector<Card>, 4> hands;
    std::vector<Card> rest;
    for (const auto& hand : made.hands) {
        for (const Card& card : hand) {
            const bool own = (card.suit == 3 && card.rank < 8) || (card.suit == tested.suit && card.rank > 7);
            (own ? hands[tested.seat] : rest).push_back(card);
        }
    }
    hands[leader].push_back({3, 14});
    std::erase(rest, Card{3, 14});
    for (int seat = 0, at = 0; seat < 4; ++seat) {
        while (hands[seat].size() < 13)
            hands[seat].push_back(rest[at++]);
        std::ranges::sort(hands[seat], {}, [](const Card& c) { return c.suit * 20 - c.rank; });
    }
    made.hands = hands;
    made.leader = leader;
    made.play = {Trick{leader, {}}};
    made.play[0].cards[leader] = {3, 14};
    open(made);
    click(tested.seat, {tested.suit, 14});
    EXPECT_EQ(colour(tested.seat, {tested.suit, 14}), tested.free ? kBlue : kWhite);
}

INSTANTIATE_TEST_SUITE_P(Seats, ClubLed,
                         testing::Values(FreeDiscard{"RuitenWest", 3, 2, true}, FreeDiscard{"SchoppenOost", 1, 0, true},
                                         FreeDiscard{"RuitenOost", 1, 2, false},
                                         FreeDiscard{"SchoppenWest", 3, 0, false},
                                         FreeDiscard{"SchoppenZuid", 2, 0, false}),
                         [](const auto& info) { return info.param.name; });

TEST_F(Recording, GridClickTakesThePlayBackToATrick) {
    open(Deal::random(21, 3, 0));
    play(0, 13);
    program("answer no\nclick frmTavrin03.msfgTavrin[5,2]");
    EXPECT_EQ(get("msfgTavrin.Row"), "5");
    EXPECT_EQ(cell(13, 4), deal.play[12].cards[3].in_grid());
    for (const std::size_t row : {13U, 6U, 2U}) {
        program("answer yes\nclick frmTavrin03.msfgTavrin[" + std::to_string(row) + ",1]");
        expect_tricks(row - 1);
        EXPECT_EQ(get("cmdOpslaan.Enabled"), "true");
        for (std::size_t t = 0; t < 13; ++t) {
            for (int seat = 0; seat < 4; ++seat) {
                EXPECT_EQ(colour(seat, deal.play[t].cards[seat]), t + 1 < row ? kGreen : kWhite);
                EXPECT_EQ(cell(static_cast<int>(t) + 1, seat + 1).empty(), t + 1 >= row);
            }
        }
        EXPECT_EQ(get("lstKlaar.Tag"), std::string(1, "NOZW"[deal.play[row - 1].leader]));
    }
    play(1, 13);
    program("click frmTavrin03.cmdOpslaan");
    EXPECT_EQ(program.read(stem + " aftavrin.txt"), expected_rows());
}

TEST_F(Recording, GridClickOnRowOneReloadsACompanionDealAndEmptiesAPackage) {
    open(Deal::random(22, 3, 2));
    program("click frmTavrin03.msfgTavrin[1,1]");
    EXPECT_TRUE(program.interpreter.platform.boxes.empty()) << "no card of Noord, no question";
    play(0, 13);
    program("click frmTavrin03.cmdOpslaan\nanswer yes\nclick frmTavrin03.msfgTavrin[1,3]");
    EXPECT_EQ(cell(1, 4), deal.play[0].cards[3].in_grid());
    EXPECT_EQ(cell(1, 1), "");
    EXPECT_EQ(get("lblSlagenTellerNZ.Caption"), "0");
    EXPECT_EQ(program.shared("UitkomstVast"), "true");

    program("select frmTavrin03.lstAfTavrin 0\nanswer yes\nclick frmTavrin03.msfgTavrin[1,3]");
    EXPECT_EQ(cell(2, 1), "");
    EXPECT_EQ(get("msfgTavrin[1,4].CellBackColor"), kBlue);
    EXPECT_EQ(get("lstKlaar.Tag"), "N");
    EXPECT_EQ(colour(0, deal.play[0].cards[0]), kWhite);
}

TEST_F(Recording, OverwritingAsksFirstAndLosesTheCardTexts) {
    save(23);
    program("select frmTavrin03.lstAfTavrin 0");
    std::string records = program.read(stem + " informatie.txt");
    records.replace(532, 8, "2|Tekst!");
    program.write(stem + " informatie.txt", records + "tail");
    const auto before = program.tree("aftavrin");
    program("answer no\nclick frmTavrin03.cmdOpslaan");
    EXPECT_EQ(program.tree("aftavrin"), before);
    EXPECT_EQ(get("cmdOpslaan.Enabled"), "false");
    EXPECT_EQ(last_box(), "Het bestand QVT_Spel 012 bestaat al!\n\nWilt u het bestand QVT_Spel 012 overschrijven?");

    program(
        "select frmTavrin03.lstAfTavrin 0\ntext frmTavrin03.txtVraag Anders?\nanswer yes\nclick "
        "frmTavrin03.cmdOpslaan");
    EXPECT_EQ(program.read(stem + " informatie.txt").substr(532, 8), "2|      ");
    EXPECT_EQ(program.read(stem + " informatie.txt").substr(27664), "tail");
    EXPECT_EQ(program.read(stem + " vraag.txt"), "Anders?") << "under the spelling that is there";
    EXPECT_EQ(program.read(stem + " antwoord.txt").substr(0, 17), "Hoe speelt u dit?")
        << "the question's lines stand in it";

    program("select frmTavrin03.lstAfTavrin 0\ntext frmTavrin03.txtVraag\nanswer yes\nclick frmTavrin03.cmdOpslaan");
    EXPECT_EQ(program.read(stem + " vraag.txt"), "");
}

// Whatever the user was at, a refusal and a click in the grid take the focus away from it.
TEST_F(Recording, FocusGoesOutOfSightAfterEveryRefusalAndGridClick) {
    open(Deal::random(22, 3, 2));
    const auto expect_focus_gone = [&](const std::string& action) {
        program("text frmTavrin03.txtVraag Anders?");
        EXPECT_EQ(get("ActiveControl"), "txtVraag");
        program(action);
        EXPECT_EQ(get("ActiveControl"), "cmdFocus") << action;
    };
    expect_focus_gone("click " + deal.label(3, deal.play[0].cards[3]));
    expect_focus_gone("click " + deal.label(2, deal.play[0].cards[2]));
    expect_focus_gone("click frmTavrin03.msfgTavrin[1,1]");
    play(0, 13);
    for (const char* answer : {"no", "yes"}) {
        expect_focus_gone(std::string("answer ") + answer + "\nclick frmTavrin03.msfgTavrin[5,1]");
    }
    play(4, 13);
    program("click frmTavrin03.cmdOpslaan");
    expect_focus_gone("answer yes\nclick frmTavrin03.msfgTavrin[1,1]");
    program("select frmTavrin03.lstAfTavrin 0");
    expect_focus_gone("answer yes\nclick frmTavrin03.msfgTavrin[1,1]");
}

// Question and answer as they stand in their boxes are what is stored, and storing them again goes on from there: a
// long line is broken for good, every reading adds a line break, and the answer takes in the question.
TEST_F(Recording, OverwritingStoresTheTextsAsTheBoxesShowThem) {
    deal = Deal::random(23, 2, 2);
    deal.write(program, "Spel 012");
    const std::string companion = "RVLX/Spellen/Spel 012/Spel 012";
    const std::string words = "Dit is een vraag die zo lang is dat zij nooit op een regel van de doos past, één keer";
    program.write(companion + " vraag.txt", "\r\nKort.\r\n" + platform::from_utf8(words) + "\r\n");
    program.write(companion + " antwoord.txt", "\r\nMet beleid.\r\n");
    program("start\nclick frmTavrin01.cmdNieuwSpel\nselect frmTavrin03.lstRVLX 0");
    play(0, 13);
    program("click frmTavrin03.cmdOpslaan");

    const auto others = [&] { return program.read(stem + " handen.txt") + program.read(stem + " aftavrin.txt"); };
    const std::string others_before = others();
    const std::string shown =
        "Kort.\r\nDit is een vraag die zo lang is dat zij nooit op een regel van de\r\ndoos past, " +
        platform::from_utf8("één") + " keer\r\n";
    const struct {
        std::string question;
        std::string answer;
    } rounds[] = {
        {shown + "\r\n", shown + "\r\n\r\nMet beleid.\r\n\r\n"},
        {shown + "\r\n\r\n", shown + "\r\n\r\n" + shown + "\r\n\r\nMet beleid.\r\n\r\n\r\n"},
    };
    for (const auto& round : rounds) {
        program("select frmTavrin03.lstAfTavrin 0");
        EXPECT_EQ(script::unescaped(platform::from_utf8(get("txtVraag.Text"))), round.question);
        EXPECT_EQ(script::unescaped(platform::from_utf8(get("txtAntwoord.Text"))), round.answer);
        program("answer yes\nclick frmTavrin03.cmdOpslaan");
        EXPECT_EQ(program.read(stem + " vraag.txt"), round.question);
        EXPECT_EQ(program.read(stem + " antwoord.txt"), round.answer);
        EXPECT_EQ(others(), others_before);
    }
    EXPECT_EQ(program.shared("foutNummer"), "0");
}

// What a list shows may be gone at the click.
TEST_F(Recording, DealThatVanishedFromUnderItsListIsRefusedInWords) {
    save(23);
    program("select frmTavrin03.lstAfTavrin 0\nboxes");
    std::filesystem::remove_all(program.path("RVLX/Spellen/Spel 012"));
    std::filesystem::remove_all(program.path("aftavrin/QVT_Spel 012"));
    const std::string box = "64\tMaak een spel uit RVLX gereed om te tavrin\t";
    const std::string refused = box + "QVT_Spel 012 is niet compleet\\nKan het spel niet gebruiken\tok\n";
    program("select frmTavrin03.lstAfTavrin 0");
    EXPECT_EQ(program("boxes"), refused + refused + ".") << "for the contract, and for the play";
    EXPECT_EQ(cell(1, 1), "");
    EXPECT_EQ(get("lstAfTavrin.Tag"), "0");
    EXPECT_EQ(get("cmdOpslaan.Enabled"), "true") << "as it was";
    program("select frmTavrin03.lstRVLX 0");
    EXPECT_EQ(program("boxes"), box + "Spel 012is niet compleet\\r\\nKan het spel niet gebruiken\tok\n.");
    EXPECT_EQ(get("cmdOpslaan.Enabled"), "false");
    EXPECT_EQ(program.shared("foutNummer"), "0");
}

TEST_F(Recording, PackageThatLostItsPlayKeepsItsHandsOnView) {
    save(23);
    std::filesystem::remove(program.path(stem + " aftavrin.txt"));
    program("boxes\nselect frmTavrin03.lstAfTavrin 0");
    EXPECT_EQ(last_box(), "QVT_Spel 012 is niet compleet\nKan het spel niet gebruiken");
    EXPECT_EQ(get("cmdOpslaan.Enabled"), "false");
    EXPECT_EQ(get("lblContract.Caption"), "Oost 4 Ruiten");
    EXPECT_EQ(colour(2, deal.play[0].cards[2]), "0x80FF80") << "the lead, in a hand that nothing was played from";
    EXPECT_EQ(program.shared("UitkomstVast"), "true");
}

TEST_F(Recording, PackageOfMoreThanThirteenTricksIsReported) {
    save(23);
    const std::string file = stem + " aftavrin.txt";
    program.write(file, program.read(file) + "1234|2201|2202|2203|2204\r\n");
    program("select frmTavrin03.lstAfTavrin 0");
    EXPECT_EQ(program.shared("foutPlaats"), "frmTavrin03 - lstAftavrin - Click") << "in that spelling";
    EXPECT_EQ(program.shared("foutNummer"), "30009");
    EXPECT_EQ(cell(13, 4), deal.play[12].cards[3].in_grid());
    EXPECT_EQ(get("cmdOpslaan.Enabled"), "false");
}

// A reload that broke off offers nothing to a save, and the next one starts afresh.
TEST_F(Recording, PackageThatCannotBeReadIsNotSavedOver) {
    save(23);
    const std::string question = stem + " vraag.txt";
    program.write(question, "Hoe?\r\n");
    program("select frmTavrin03.lstAfTavrin 0");
    ASSERT_EQ(get("cmdOpslaan.Enabled"), "true");
    const auto reload_without = [&](const char* suffix) {
        const platform::system_calls::HookScope broken([&](platform::system_calls::Call call, const char* path) {
            return call == platform::system_calls::Call::Read && std::string_view(path).ends_with(suffix) ? EIO : 0;
        });
        program("select frmTavrin03.lstAfTavrin 0");
        EXPECT_EQ(program.shared("foutNummer"), "57");
    };
    reload_without("aftavrin.txt");
    EXPECT_EQ(get("cmdOpslaan.Enabled"), "false");
    EXPECT_FALSE(dynamic_cast<prepare::frmTavrin03&>(*program.programma.windows.find("frmTavrin03")).LeesModus);

    reload_without("raag.txt");
    EXPECT_EQ(program.shared("foutPlaats"), "frmTavrin03 - General - LeesSpelIn");
    EXPECT_EQ(get("cmdOpslaan.Enabled"), "true") << "the play is whole";
    program("answer yes\nclick frmTavrin03.cmdOpslaan");
    EXPECT_EQ(program.read(question), "Hoe?\r\n");
}

TEST_F(Recording, PackageIsNotSavedThroughALink) {
    open(Deal::random(23, 2, 2));
    play(0, 13);
    program.write("elders", "x");
    std::filesystem::create_directories(program.path("aftavrin/QVT_Spel 012"));
    if (!make_link(program.path("elders"), program.path("aftavrin/QVT_Spel 012/QVT_Spel 012 handen.txt")))
        GTEST_SKIP() << kNoLinks;
    const auto before = program.tree("aftavrin");
    program("click frmTavrin03.cmdOpslaan");
    EXPECT_EQ(program.shared("foutNummer"), "75");
    EXPECT_EQ(program.tree("aftavrin"), before);
    EXPECT_EQ(program.read("elders"), "x");
}

struct FailedSave {
    const char* name;
    void (*damage)(Program&);
    const char* number;
    std::vector<std::string> left;  // in the package's folder
};

class FailedSaves : public Recording, public testing::WithParamInterface<FailedSave> {};

// The save stops where it fails, and what was written stays.
TEST_P(FailedSaves, StopWhereTheyFail) {
    open(Deal::random(23, 2, 2));
    play(0, 13);
    GetParam().damage(program);
    program("click frmTavrin03.cmdOpslaan");
    EXPECT_EQ(program.shared("foutPlaats"), "frmTavrin03 - cmdOpslaan - Click");
    EXPECT_EQ(program.shared("foutNummer"), GetParam().number);
    EXPECT_EQ(get("cmdOpslaan.Enabled"), "false");
    std::vector<std::string> left;
    const std::filesystem::path folder = program.path("aftavrin/QVT_Spel 012");
    if (std::filesystem::is_directory(folder)) {
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            left.push_back(entry.path().filename().string());
    }
    std::ranges::sort(left);
    EXPECT_EQ(left, GetParam().left);
    EXPECT_NE(program.read("standaardtavrin.ini").find("LaatsteRVLX=Spel 012"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    Saves, FailedSaves,
    testing::Values(
        FailedSave{"deal_gone",
                   [](Program& program) { std::filesystem::remove_all(program.path("RVLX/Spellen/Spel 012")); },
                   "76",
                   {"QVT_Spel 012 aftavrin.txt", "QVT_Spel 012 informatie.txt"}},
        FailedSave{
            "file_for_folder", [](Program& program) { program.write("aftavrin/QVT_Spel 012", "file"); }, "76", {}},
        FailedSave{"folder_for_texts",
                   [](Program& program) { program.write("aftavrin/QVT_Spel 012/QVT_Spel 012 informatie.txt/x", ""); },
                   "75",
                   {"QVT_Spel 012 informatie.txt"}},
        FailedSave{"folder_for_play",
                   [](Program& program) { program.write("aftavrin/QVT_Spel 012/QVT_Spel 012 aftavrin.txt/x", ""); },
                   "75",
                   {"QVT_Spel 012 aftavrin.txt", "QVT_Spel 012 informatie.txt"}},
        FailedSave{"folder_for_copy",
                   [](Program& program) { program.write("aftavrin/QVT_Spel 012/QVT_Spel 012 bieding.txt/x", ""); },
                   "75",
                   {"QVT_Spel 012 aftavrin.txt", "QVT_Spel 012 antwoord.txt", "QVT_Spel 012 bieding.txt",
                    "QVT_Spel 012 informatie.txt"}}),
    [](const auto& info) { return info.param.name; });

struct BrokenDeal {
    const char* name;
    const char* file;
    const char* bytes;  // null: the file is removed
    const char* number;
};

class BrokenDeals : public Recording, public testing::WithParamInterface<BrokenDeal> {};

TEST_P(BrokenDeals, EndInTheReport) {
    deal = Deal::random(1, 3, 1);
    deal.write(program, "Spel 012");
    const std::string file = std::string("RVLX/Spellen/Spel 012/Spel 012") + GetParam().file;
    if (GetParam().bytes) {
        program.write(file, GetParam().bytes);
    } else {
        std::filesystem::remove(program.path(file));
    }
    program("start\nclick frmTavrin01.cmdNieuwSpel\nselect frmTavrin03.lstRVLX 0");
    EXPECT_EQ(program.shared("foutPlaats"), "frmTavrin03 - General - LeesRVLXSpelIn");
    EXPECT_EQ(program.shared("foutNummer"), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(Files, BrokenDeals,
                         testing::Values(BrokenDeal{"no_hands", " handen.txt", nullptr, "53"},
                                         BrokenDeal{"no_lead", " Uitkomst.txt", nullptr, "53"},
                                         BrokenDeal{"no_answer", " antwoord.txt", nullptr, "53"},
                                         BrokenDeal{"short_hands", " handen.txt", "AHVB\r\n", "62"},
                                         BrokenDeal{"long_line", " handen.txt", "AHVBT987654321\r\n", "340"},
                                         BrokenDeal{"odd_seat", " Uitkomst.txt", "Best - 0Aas\r\n", "5"},
                                         BrokenDeal{"odd_digit", " Uitkomst.txt", "West - 7Aas\r\n", "5"},
                                         BrokenDeal{"no_dash", " Uitkomst.txt", "West\r\n", "9"}),
                         [](const auto& info) { return info.param.name; });

TEST_F(Recording, WithoutTheCompanionBothListsStayEmpty) {
    write_package(program, Package::west_wins_all());
    program.write("standaardtavrin.ini", "[Standaard]\r\nchkSorteerRVLX=1\r\nLaatsteRVLX=Spel 007\r\n");
    std::filesystem::remove_all(program.path("RVLX"));
    program.interpreter.programma.windows.dispatch([] {});
    program("start");
    program.programma.windows.dispatch([&] { program.programma.schermen.toon("frmTavrin03"); });
    EXPECT_EQ(get("lstAfTavrin.ListCount"), "0");
    EXPECT_EQ(get("chkSorteerRVLX.Caption"), "Sorteer &laag-hoog");
    EXPECT_EQ(get("lblLaatste.Caption"), "");
}

TEST_F(Recording, LastDealAndSortChoicesComeBack) {
    for (const char* name : {"Spel 1", "Spel 10", "Spel 2"})
        Deal::random(1, 3, 1).write(program, name);
    program.write("standaardtavrin.ini", "[Standaard]\r\nchkSorteerRVLX=7\r\nLaatsteRVLX=Spel 2\r\n");
    program("start\nclick frmTavrin01.cmdNieuwSpel");
    EXPECT_EQ(get("lstRVLX[0].Text"), "Spel 2");
    EXPECT_EQ(get("lstRVLX[2].Text"), "Spel 1");
    EXPECT_EQ(get("lblLaatste.Caption"), "Laatst gebruikte spel: 2");
    program("click frmTavrin03.chkSorteerRVLX");
    EXPECT_EQ(get("lstRVLX[1].Text"), "Spel 10");
    EXPECT_NE(program.read("standaardtavrin.ini").find("chkSorteerRVLX=0"), std::string::npos);
}

TEST_F(Recording, DamagedPackagesShowWhatTheyHoldOrAreReported) {
    Package package = Package::west_wins_all();
    package.rows[1] = "x341|0|2239|2252|2213";
    write_package(program, package);
    program.write(stem + " aftavrin.txt", package.rows[0] + "\r\n\r\n" + package.rows[1] + "\r\n");
    program("start\nclick frmTavrin01.cmdNieuwSpel\nselect frmTavrin03.lstAfTavrin 0");
    EXPECT_EQ(program.shared("foutPlaats"), "frmTavrin03 - General - LeesSpelIn") << "it has no hands";
    EXPECT_EQ(cell(2, 1), "S -2199");
    EXPECT_EQ(get("msfgTavrin[2,0].CellBackColor"), kBlue);
    EXPECT_EQ(get("lstVoorWissen.ListCount"), "3");
}

TEST_F(Recording, DumpFileBringsAnyState) {
    std::string dump;
    for (int line = 0; line < 16; ++line)
        dump += line == 0 ? "1A|0H||0V|\r\n" : "\r\n";
    dump += "0R 5|1S A|0S 2|0S 3|\r\n0K 2|0K 3|1K 4|0K 5|\r\n";
    program.write("test.txt", dump);
    program("start\nclick frmTavrin01.cmdNieuwSpel");
    program.programma.windows.dispatch(
        [&] { program.programma.windows.find("frmTavrin03")->control("cmdOphalen").Click(); });
    EXPECT_EQ(get("lblSchoppenNoord(0).BackColor"), kGreen);
    EXPECT_EQ(get("lblSchoppenNoord(1).Caption"), "H");
    EXPECT_EQ(get("lblSchoppenNoord(2).Visible"), "false");
    EXPECT_EQ(cell(1, 2), "S A");
    EXPECT_EQ(get("msfgTavrin[2,3].CellBackColor"), kBlue);
    EXPECT_EQ(get("lblSlagenTellerNZ.Caption"), "1");
}

}  // namespace
