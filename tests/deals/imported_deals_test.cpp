// What an import makes, as the screens load it: the deals on the preparation screen, the lessons there, in the editor
// and at the table.
#include <filesystem>
#include <random>

#include "base/Text.h"
#include "deals/TestImport.h"
#include "support/Bridge.h"

namespace {

namespace fs = std::filesystem;
using bridge::Card;
using bridge::Deal;

std::string pbn_of(const Card& card) { return std::string(1, "SHDC"[card.suit]) + "23456789TJQKA"[card.rank - 2]; }

// A game with the texts at their cards, of which 0 is the question and 53 the answer.
std::string pbn_of(const Deal& deal, const std::map<int, std::string>& texts) {
    const auto text = [&](int card) {
        const auto found = texts.find(card);
        return found == texts.end() ? std::string() : " {" + found->second + "}";
    };
    std::string game = text(0) + "\n[Deal \"N:";
    for (const auto& hand : deal.hands) {
        for (int suit = 0; suit < 4; ++suit) {
            for (const Card& card : hand) {
                if (card.suit == suit) game += pbn_of(card)[1];
            }
            game += suit < 3 ? "." : " ";
        }
    }
    const char declarer = "NESW"[(deal.leader + 3) % 4];
    game += std::string("\"]\n[Declarer \"") + declarer + "\"]\n[Contract \"4" +
            (deal.trump ? std::string(1, "SHDC"[*deal.trump]) : "NT") + "\"]\n[Auction \"" + declarer + "\"]\n4" +
            (deal.trump ? std::string(1, "SHDC"[*deal.trump]) : "NT") + " AP\n[Play \"" + "NESW"[deal.leader] + "\"]\n";
    for (std::size_t t = 0; t < deal.play.size(); ++t) {
        const bridge::Trick& trick = deal.play[t];
        for (int column = 0; column < 4; ++column) {
            const int seat = (deal.leader + column) % 4;
            game += pbn_of(trick.cards[seat]) + " " + text(static_cast<int>(4 * t) + (seat - trick.leader + 4) % 4 + 1);
        }
        game += "\n";
    }
    return game + "*\n" + text(53);
}

class ImportedDeals : public TestImport, public testing::WithParamInterface<unsigned> {
protected:
    ImportedDeals() {
        std::mt19937 random(GetParam());
        const auto trump = random() % 5;
        deal = Deal::random(GetParam(), static_cast<int>(random() % 4),
                            trump == 4 ? std::nullopt : std::optional(static_cast<int>(trump)));
    }
    std::string get(const std::string& name) { return program.get(name); }

    Deal deal;
};

TEST_P(ImportedDeals, StandOnThePreparationScreenAsIfTheCompanionHadMadeThem) {
    program.write("club.pbn", pbn_of(deal, {{0, "Hoe speelt u dit?"}, {53, "Met beleid."}}));
    ASSERT_EQ(import({"club.pbn"}).out, "Spel 001\n");
    const auto made = program.tree(kSpellen + "Spel 001");
    fs::remove_all(program.path(kSpellen + "Spel 001"));
    deal.write(program, "Spel 001");
    // The bidding of the two is another.
    const auto but_bidding = [](std::vector<std::string> tree) {
        std::erase_if(tree, [](const std::string& entry) { return entry.find(" bieding.txt") != std::string::npos; });
        return tree;
    };
    EXPECT_EQ(but_bidding(made), but_bidding(program.tree(kSpellen + "Spel 001")));

    fs::remove_all(program.path(kSpellen + "Spel 001"));
    ASSERT_EQ(import({"club.pbn"}).out, "Spel 001\n");
    program("start\nclick frmTavrin01.cmdNieuwSpel\nselect frmTavrin03.lstRVLX 0");
    EXPECT_EQ(program.shared("foutNaam"), "") << "no failure";
    EXPECT_EQ(get("frmTavrin03.txtVraag.Text"), "Hoe speelt u dit?\\r\\n\\r\\n");
    EXPECT_EQ(get("frmTavrin03.txtAntwoord.Text"), "Met beleid.\\r\\n\\r\\n");
    EXPECT_EQ(get("frmTavrin03.fraBieding.Visible"), "true");
    const int declarer = (deal.leader + 3) % 4;
    const std::string bid = std::string("frmTavrin03.lblB") + "NOZW"[declarer] + "(0).Caption";
    EXPECT_EQ(get(bid), "4");
    EXPECT_EQ(get("frmTavrin03.lblNum(0).Visible"), "true");
    EXPECT_EQ(get("frmTavrin03.lblNum(1).Visible"), declarer == 0 ? "false" : "true") << "a round is Noord's cell";
    for (int seat = 0; seat < 4; ++seat) {
        for (const Card& card : deal.hands[seat])
            EXPECT_EQ(get(deal.label(seat, card) + ".Caption"), card.letter());
    }
    const Card& lead = deal.play[0].cards[deal.leader];
    EXPECT_EQ(get("frmTavrin03.msfgTavrin[1," + std::to_string(deal.leader + 1) + "].Text"), lead.in_grid());
    EXPECT_EQ(get(deal.label(deal.leader, lead) + ".BackColor"), "0xFFC0C0");
}

TEST_P(ImportedDeals, AsLessonsAreReadByEveryScreen) {
    program.write("les.pbn", pbn_of(deal, {{0, "Wat nu?"}, {1, "De uitkomst."}, {30, "Midden\nin."}, {52, "Klaar."}}));
    const Told told = import({"les.pbn"});
    ASSERT_EQ(told.out, "QVT_Spel 001\n") << told.error;
    std::string rows;
    for (const bridge::Trick& trick : deal.play)
        rows += Deal::row(trick) + "\r\n";
    const std::string stem = "aftavrin/QVT_Spel 001/QVT_Spel 001";
    EXPECT_EQ(program.read(stem + " aftavrin.txt"), rows);

    program.install_companion();
    program("start\nclick frmTavrin01.cmdNieuwSpel\nselect frmTavrin03.lstAfTavrin 0");
    EXPECT_EQ(get("frmTavrin03.cmdOpslaan.Enabled"), "true");
    for (std::size_t t = 0; t < deal.play.size(); ++t) {
        for (int seat = 0; seat < 4; ++seat) {
            const std::string cell = std::to_string(t + 1) + "," + std::to_string(seat + 1);
            EXPECT_EQ(get("frmTavrin03.msfgTavrin[" + cell + "].Text"), deal.play[t].cards[seat].in_grid());
        }
    }
    program("click frmTavrin03.cmdTerug\nclick frmTavrin01.cmdKaartenEditor\nselect frmTavrin05.lstSpellen 0");
    program("click frmTavrin05.picYesNo(29)");
    EXPECT_EQ(get("frmTavrin05.txtInformatie.Text"), "Midden\\r\\nin.");

    program("click frmTavrin05.cmdTerug\nselect frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin");
    EXPECT_EQ(get("frmTavrin02.txtVraag.Text").substr(0, 4), "\\r\\n") << "an empty line in front";
    program("click frmTavrin02.cmdStart");
    std::vector<std::string> shown;
    for (int tick = 0; tick < 60; ++tick) {
        if (program("tick frmTavrin02.timSpeelKaart") != "ok") {
            shown.push_back(get("frmTavrin02.txtInformatie.Text"));
            if (program("click frmTavrin02.cmdVerder") != "ok") break;
        }
    }
    EXPECT_EQ(shown, (std::vector<std::string>{"De uitkomst.\\r\\n", "Midden\\r\\nin.\\r\\n", "Klaar.\\r\\n"}));
    EXPECT_EQ(program.shared("kaartTeller"), "52");
    EXPECT_EQ(program.shared("foutNaam"), "") << "no failure";
}

INSTANTIATE_TEST_SUITE_P(Seeds, ImportedDeals, testing::Range(1U, 9U));

}  // namespace
