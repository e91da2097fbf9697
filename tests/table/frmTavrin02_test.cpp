// The table: what it shows at load, how the play runs, and where it stops.
#include <gtest/gtest.h>

#include "support/Places.h"

namespace {

// A program with one package, at the table.
class Table : public testing::Test {
protected:
    void open(const Package& package) {
        write_package(program, package);
        program.install_companion();
        program("start\nselect frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin");
    }
    void start(const Package& package) {
        open(package);
        program("click frmTavrin02.cmdStart");
    }
    void ticks(int count) {
        for (int i = 0; i < count; ++i)
            program("tick frmTavrin02.timSpeelKaart");
    }
    std::string get(const std::string& name) { return program.get("frmTavrin02." + name); }
    int card() { return std::stoi(program.shared("kaartTeller")); }

    Program program;
};

// Rows that each seat of which plays its own suit, led by the given seat throughout.
Package led_by(int seat) {
    static const char* const orders[] = {"1234", "2341", "3412", "4123"};
    static const char* const leads[] = {"Noord - 1Aas", "Oost - 2Aas", "Zuid - 3Aas", "West - 0Aas"};
    Package package = Package::west_wins_all();
    for (std::string& row : package.rows)
        row.replace(0, 4, orders[seat - 1]);
    package.lead = leads[seat - 1];
    return package;
}

TEST_F(Table, StandsAsADealShowsBeforePlay) {
    open(Package::west_wins_all());
    EXPECT_EQ(get("picKaartNoord(1).Left"), "3200");
    EXPECT_EQ(get("picKaartZuid(1).Left"), "2800");
    EXPECT_GE(std::stod(get("lblUitkomstKaart.Left")), std::stod(get("picUitkomst.Left")) + 14 * 15);
    EXPECT_EQ(get("picKaartWest(4).Left"), "2850");
    EXPECT_EQ(get("picKaartWest(13).Top"), "4800");
    EXPECT_EQ(get("picKaartOost(5).Left"), "9660");
    EXPECT_EQ(get("picKaartOost(5).Top"), "3800");
    EXPECT_EQ(get("picPlay(1).Left"), "6255");
    EXPECT_EQ(get("picPlay(1).Top"), "2768");
    EXPECT_EQ(get("picPlay(3).Top"), "5212");
    EXPECT_EQ(get("picPlay(4).Left"), "4538");
    EXPECT_EQ(get("picPlay(2).Left"), "7972");
    EXPECT_EQ(get("picPlay(2).Top"), get("picPlay(4).Top"));
    EXPECT_EQ(get("picKaartZuid(13).Picture"), "2253");
    EXPECT_EQ(get("lblNummer.Caption"), "12");
    EXPECT_EQ(get("lblContractWie.Caption"), "Zuid: 3");
    EXPECT_EQ(get("picContract.Picture"), "110");
    EXPECT_EQ(get("lblUitkomstKaart.Caption"), "Aas");
    EXPECT_EQ(get("picUitkomst.Picture"), "109");
    EXPECT_EQ(get("lblSlag(1).Visible"), "false");
    EXPECT_EQ(get("fraBieding.Height"), "3030") << "no file: full height, nine round numbers";
    EXPECT_EQ(get("txtVraag.Height"), "1080") << "no question: one empty line and five spare ones";
}

TEST_F(Table, NumberOfADealWithoutABlankGetsTheWordBeforeIt) {
    Package package = Package::west_wins_all();
    package.name = "17";
    open(package);
    EXPECT_EQ(get("lblNummer.Caption"), "17");
    EXPECT_EQ(program.shared("spelNaam"), "Spel 17");
    EXPECT_EQ(get("picContract.Visible"), "false") << "the files are looked for under the changed name";
}

using Names = std::vector<std::string>;
constexpr const char* kTable = "frmTavrin02";
const std::array<std::string, 4> kHands{"picKaartNoord", "picKaartOost", "picKaartZuid", "picKaartWest"};

// Closed, with two hands open, in the middle of a trick, and all open at the end.
TEST_F(Table, NoCardLiesOnAnotherAndHandsStandAtTheirSeats) {
    program.add_samples();
    program("start");
    for (int deal = 0; deal < 5; ++deal) {
        program("select frmTavrin01.lstSpellen " + std::to_string(deal) + "\nclick frmTavrin01.cmdTavrin");
        const auto expect_places = [&] {
            EXPECT_EQ(on_each_other(program, kTable), Names{});
            EXPECT_EQ(around_the_table(program, kTable, kHands), Names(kHands.begin(), kHands.end()));
        };
        expect_places();
        program("click frmTavrin02.cmdStart");
        const std::array<std::string, 4> played{"picPlay(1)", "picPlay(2)", "picPlay(3)", "picPlay(4)"};
        EXPECT_EQ(around_the_table(program, kTable, played), Names(played.begin(), played.end()));
        expect_places();
        for (int step = 0; step < 100 && card() < 52; ++step) {
            program(get("cmdVerder.Visible") == "true" ? "click frmTavrin02.cmdVerder"
                                                       : "tick frmTavrin02.timSpeelKaart");
            if (card() == 15) expect_places();
            if (card() % 4 != 1 || card() == 1) continue;
            int empty = 0;
            for (const std::string& name : played)
                empty += get(name + ".Picture").empty();
            EXPECT_EQ(empty, 3) << "the trick before is gone";
        }
        expect_places();
        program("key frmTavrin02 escape");
    }
}

struct LeadCase {
    int leader;
    const char* dummy;
    const char* hole;        // the card that the closed hand of the leader loses at once
    std::vector<int> seats;  // of trick 1, in the order in which they come
};

class FirstTrick : public Table, public testing::WithParamInterface<LeadCase> {};

// The turn is moved on twice after the lead: only West's lead plays the trick in order.
TEST_P(FirstTrick, SkipsTheSeatThatItIsMeantToSkip) {
    start(led_by(GetParam().leader));
    EXPECT_EQ(program.shared("dummyWind"), GetParam().dummy);
    EXPECT_EQ(get(std::string(GetParam().hole) + "(13).Visible"), "false");
    std::vector<int> seats{GetParam().leader};
    for (int i = 0; i < 3; ++i) {
        ticks(1);
        seats.push_back(std::stoi(program.shared("aanDeBeurt")));
    }
    EXPECT_EQ(seats, GetParam().seats);
    ticks(1);
    EXPECT_EQ(program.shared("aanDeBeurt"), std::to_string(GetParam().leader)) << "from trick 2 on the order is right";
    ticks(47);
    EXPECT_EQ(card(), 52);
    const bool noord_zuid = GetParam().leader % 2 == 1;
    EXPECT_EQ(get("lblSlagenNZ.Caption"), noord_zuid ? "13" : "1") << "the last trick goes to Noord-Zuid in every deal";
    EXPECT_EQ(get("lblSlagenOW.Caption"), noord_zuid ? "0" : "12");
    EXPECT_EQ(get("timSpeelKaart.Enabled"), "false");
}

INSTANTIATE_TEST_SUITE_P(Leaders, FirstTrick,
                         testing::Values(LeadCase{1, "Oost", "picKaartNoord", {1, 3, 4, 1}},
                                         LeadCase{2, "Zuid", "picKaartOost", {2, 4, 1, 2}},
                                         LeadCase{3, "West", "picKaartZuid", {3, 1, 2, 3}},
                                         LeadCase{4, "Noord", "picKaartWest", {4, 1, 2, 3}}));

TEST_F(Table, OpensDummyAndDeclarerAndHidesWhatTheyPlay) {
    start(Package::west_wins_all());
    EXPECT_EQ(get("picKaartNoord(1).Tag"), "2226");
    EXPECT_EQ(get("picKaartZuid(13).Tag"), "2240");
    EXPECT_EQ(get("picKaartOost(1).Picture"), "2253");
    EXPECT_EQ(get("picPlay(4).Picture"), "2213");
    ticks(2);
    EXPECT_EQ(get("picKaartNoord(1).Visible"), "false");
    EXPECT_EQ(get("picKaartOost(13).Visible"), "false") << "a closed hand loses cards from its end";
    EXPECT_EQ(get("lblN(1).Caption"), "Aas");
    EXPECT_EQ(get("lblN(1).ForeColor"), "0x0000FF");
    EXPECT_EQ(get("picN(1).Picture"), "108");
    EXPECT_EQ(get("lblSlag(1).Visible"), "true");
    EXPECT_EQ(get("lblSlag(2).Visible"), "false");
}

TEST_F(Table, ShowsAllHandsAtTheEndWithALongSuitSlidLeft) {
    start(Package::west_wins_all());
    ticks(51);
    EXPECT_EQ(get("picKaartOost(1).Tag"), "2239");
    EXPECT_EQ(get("picKaartOost(13).Visible"), "true");
    // Thirteen cards in a row end left of the box: nine steps of 570 off the usual place.
    EXPECT_EQ(get("picKaartOost(1).Left"), std::to_string(9090 + 570 - 9 * 570));
    EXPECT_EQ(get("picKaartOost(1).Top"), std::to_string(3300 + 3 * 500)) << "empty suits keep their row";
    EXPECT_EQ(get("picKaartWest(1).Left"), "1140");
    EXPECT_EQ(get("picPlay(1).Picture"), "");
    EXPECT_EQ(get("lstZuidKlaveren.ListCount"), "13");
}

TEST_F(Table, StopsAtEveryTextUntilVerder) {
    Package package = Package::west_wins_all();
    package.texts = {{1, "Eerste"}, {2, "Tweede~regel"}, {3, "   "}, {52, "Laatste"}};
    start(package);
    EXPECT_EQ(get("cmdVerder.Visible"), "true");
    EXPECT_EQ(get("timSpeelKaart.Enabled"), "false");
    EXPECT_EQ(get("txtInformatie.Text"), "Eerste\\r\\n");
    program("click frmTavrin02.cmdVerder");
    EXPECT_EQ(card(), 2);
    EXPECT_EQ(get("txtInformatie.Text"), "Tweede\\r\\nregel\\r\\n");
    EXPECT_EQ(get("cmdVerder.Visible"), "true");
    program("click frmTavrin02.cmdVerder");
    EXPECT_EQ(get("cmdVerder.Visible"), "false") << "a text of blanks is none";
    EXPECT_EQ(get("txtInformatie.Text"), "");
    program("wait 120000");
    EXPECT_EQ(card(), 52);
    EXPECT_EQ(get("cmdVerder.Visible"), "false");
    EXPECT_EQ(get("txtInformatie.Text"), "Laatste\\r\\n");
    EXPECT_EQ(get("picKaartWest(1).Tag"), "2213");
}

TEST_F(Table, VerderAfterATextOnTheLastCardButOneEndsTheDeal) {
    Package package = Package::west_wins_all();
    package.texts = {{51, "Bijna"}};
    start(package);
    program("wait 120000\nclick frmTavrin02.cmdVerder");
    EXPECT_EQ(card(), 52);
    EXPECT_EQ(get("timSpeelKaart.Enabled"), "false");
}

TEST_F(Table, TextIsFoundByItsNumberWhereverItStands) {
    open(Package::west_wins_all());
    std::string records;
    for (int i = 52; i >= 1; --i) {
        std::string record = i == 2 ? "2|Hier" : std::to_string(i) + "|";
        record.resize(532, ' ');
        records += record;
    }
    program.write("aftavrin/QVT_Spel 012/QVT_Spel 012 informatie.txt", records);
    program("key frmTavrin02 escape\nselect frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin");
    program("click frmTavrin02.cmdStart\ntick frmTavrin02.timSpeelKaart");
    EXPECT_EQ(get("txtInformatie.Text"), "Hier\\r\\n");
}

TEST_F(Table, SpeedWrapsAtBothEndsAndIsKept) {
    open(Package::west_wins_all());
    const auto expect_speed = [&](const char* position, const char* speed) {
        program(std::string("scroll frmTavrin02.vscrSnelHeid ") + position);
        EXPECT_EQ(get("txtSnelHeid.Text"), speed);
        EXPECT_EQ(program.shared("speelSnelheid"), speed);
        EXPECT_EQ(get("timSpeelKaart.Interval"), speed);
    };
    EXPECT_EQ(get("vscrSnelHeid.Value"), "20") << "1000 is the twenty-first step";
    expect_speed("5", "2500");
    expect_speed("-1", "100");
    EXPECT_EQ(get("vscrSnelHeid.Value"), "29");
    expect_speed("30", "3000");
    EXPECT_NE(program.read("standaardtavrin.ini").find("Snelheid=3000"), std::string::npos);
}

TEST_F(Table, OddStoredSpeedIsUsedAsItStands) {
    program.write("standaardtavrin.ini", "[Standaard]\r\nSnelheid=250\r\n");
    start(Package::west_wins_all());
    EXPECT_EQ(get("txtSnelHeid.Text"), "250");
    EXPECT_EQ(get("vscrSnelHeid.Value"), "0");
    program("wait 500");
    EXPECT_EQ(card(), 3);
}

TEST_F(Table, EscapeGoesBackAndNoTickCanArrive) {
    start(Package::west_wins_all());
    program("key frmTavrin02 escape\nwait 5000");
    EXPECT_EQ(program("screens"), "frmTavrin01 visible\n.");
    EXPECT_EQ(card(), 0);
}

struct DamagedCase {
    const char* name;
    std::function<void(Package&)> damage;
    int ticks;
    const char* place;
    const char* number;
};

class Damaged : public Table, public testing::WithParamInterface<DamagedCase> {};

TEST_P(Damaged, EndsInTheReport) {
    Package package = Package::west_wins_all();
    GetParam().damage(package);
    start(package);
    for (int i = 0; i < GetParam().ticks; ++i)
        program.interpreter.run("tick frmTavrin02.timSpeelKaart");
    EXPECT_EQ(program.shared("foutPlaats"), GetParam().place);
    EXPECT_EQ(program.shared("foutNummer"), GetParam().number);
    EXPECT_EQ(program.get("frmTavrin08.Visible"), "true");
}

INSTANTIATE_TEST_SUITE_P(Packages, Damaged,
                         testing::Values(DamagedCase{"too_few_rows", [](Package& p) { p.rows.resize(2); }, 8,
                                                     "frmTavrin02 - timSPeelKaart - Timer", "9"},
                                         DamagedCase{"code_zero",
                                                     [](Package& p) { p.rows[0] = "4123|0|2239|2252|2213"; }, 1,
                                                     "Kaarten - General - PlaatsKaart", "326"},
                                         DamagedCase{"no_order", [](Package& p) { p.rows[1].erase(0, 4); }, 4,
                                                     "Kaarten - General - PlaatsKaart", "5"},
                                         DamagedCase{"five_cards", [](Package& p) { p.rows[0] += "|2201"; }, 0,
                                                     "Kaarten - General - VerdeelDeKaarten", "340"},
                                         DamagedCase{"contract_of_two_words", [](Package& p) { p.contract = "Zuid 4"; },
                                                     0, "Kaarten - General - OverigeStartPositie", "9"},
                                         DamagedCase{"unknown_value_in_lead", [](Package& p) { p.lead = "West - 010"; },
                                                     0, "Kaarten - General - PlaatdeUitkomst", "326"},
                                         DamagedCase{"unknown_seat_in_lead", [](Package& p) { p.lead = "Best - 0Aas"; },
                                                     0, "Kaarten - General - PlaatdeUitkomst", "9"}),
                         [](const auto& info) { return info.param.name; });

TEST_F(Table, TimerStaysOffAfterATickThatFailed) {
    Package package = Package::west_wins_all();
    package.rows.resize(1);
    package.texts = {{4, "Stop"}};
    start(package);
    program("wait 10000\nclick frmTavrin02.cmdVerder");
    EXPECT_EQ(program.shared("foutPlaats"), "frmTavrin02 - timSPeelKaart - Timer");
    EXPECT_EQ(get("timSpeelKaart.Enabled"), "false");
}

TEST_F(Table, HugeAndOddFilesAreReadOrReported) {
    Package package = Package::west_wins_all();
    package.question = std::string(1 << 20, 'x') + " " + std::string(1 << 20, ' ') + std::string("\0y", 2) + "\r\n";
    package.texts = {{2, std::string("a\0b", 3)}};
    for (int i = 0; i < 100000; ++i)
        package.rows.push_back(package.rows[0]);
    start(package);
    ticks(1);
    EXPECT_EQ(get("cmdVerder.Visible"), "true");
    EXPECT_EQ(program.shared("foutNummer"), "340") << "a hand has no fourteenth card";
}

}  // namespace
