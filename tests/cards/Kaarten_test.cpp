// The reading routines where the table's tests don't come.
#include <gtest/gtest.h>

#include <functional>

#include "cards/Kaarten.h"
#include "support/Program.h"
#include "table/frmTavrin02.h"

namespace {

class Cards : public testing::Test {
protected:
    void open() {
        program("start\nclick frmTavrin01.chkSorteer\nselect frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin");
    }
    table::frmTavrin02& table() {
        return dynamic_cast<table::frmTavrin02&>(*program.programma.windows.find("frmTavrin02"));
    }
    std::string get(const std::string& name) { return program.get("frmTavrin02." + name); }

    Program program;
};

TEST_F(Cards, AreToldByTheirCode) {
    program("start");
    auto& screen = dynamic_cast<services::Scherm&>(*program.programma.windows.find("frmTavrin01"));
    const struct {
        const char* code;
        const char* text;
    } cases[] = {{"2201", "s 2"},
                 {"2213", "s A"},
                 {"2214", "h 2"},
                 {"2226", "h A"},
                 {"2227", "r 2"},
                 {"2239", "r A"},
                 {"2240", "k 2"},
                 {"2252", "k A"},
                 {"2208", "s 9"},
                 {"2209", "s T"},
                 {"2223", "h B"},
                 {"2237", "r V"},
                 {"2251", "k H"},
                 {"99999999999", "k 2147481409"},
                 {"-99999999999", "s -2147483647"}};
    for (const auto& each : cases) {
        cards::Kaarten::WelkeKaartIsDit(screen, each.code);
        EXPECT_EQ(program.shared("kaartTekst"), each.text) << each.code;
        EXPECT_EQ(program.shared("kleurLetter") + " " + program.shared("waardeLetter"), each.text);
    }
    EXPECT_EQ(cards::titel(2213) + ", " + cards::titel(2214) + ", " + cards::titel(2253), "Schoppen Aas, Harten 2, ");
}

TEST_F(Cards, SeatThatIsNoneIsTheFailureOfItsOwner) {
    write_package(program, Package::west_wins_all());
    open();
    const struct {
        const char* owner;
        int number;
        std::function<void(int)> reach;
    } cases[] = {{"hands on the table", 9, [&](int seat) { table().picKaart(seat); }},
                 {"played cards", 9, [&](int seat) { table().picGespeeld(seat); }},
                 {"values", 9, [](int seat) { cards::kPlaatsNaam(seat); }},
                 {"cards of a trick", 340, [&](int seat) { table().picPlay(seat); }},
                 {"string lists", 340, [&](int seat) { table().lijsten.lstHand(seat); }},
                 {"bids", 340, [&](int seat) { table().bieding.lblB(seat); }}};
    for (const auto& each : cases) {
        for (const int seat : cards::kPlaatsen)
            each.reach(seat);
        for (const int seat : {0, 5, -1}) {
            try {
                each.reach(seat);
                ADD_FAILURE() << each.owner << " of seat " << seat;
            } catch (const base::Fout& fout) {
                EXPECT_EQ(fout.nummer(), each.number) << each.owner << " of seat " << seat;
            }
        }
    }
}

TEST_F(Cards, AreDealtTwiceIntoTheSuitsByASecondCall) {
    write_package(program, Package::west_wins_all());
    open();
    EXPECT_EQ(get("lstHand(1)[0].Text"), "2214") << "the lowest card of Noord";
    EXPECT_EQ(get("lstSchoppen(4).ListCount"), "13");
    cards::Kaarten::VerdeelDeKaarten(table(), table().lijsten);
    EXPECT_EQ(get("lstHand(4).ListCount"), "13");
    EXPECT_EQ(get("lstSchoppen(4).ListCount"), "26");
}

TEST_F(Cards, ShortFilesReadAsBlanksAndBlankLinesAreNoTricks) {
    Package package = Package::west_wins_all();
    package.rows.insert(package.rows.begin() + 1, {"", "   "});
    write_package(program, package);
    const std::string stem = "aftavrin/QVT_Spel 012/QVT_Spel 012 ";
    program.write(stem + "informatie.txt", "1|a" + std::string(529, ' ') + "2|b");
    open();
    EXPECT_EQ(get("lstAfTavrin.ListCount"), "13");
    EXPECT_EQ(get("lstInformatie.ListCount"), "52");
    EXPECT_EQ(get("lstInformatie[1].Text"), "2|b" + std::string(529, ' '));
    EXPECT_EQ(get("lstInformatie[51].Text"), std::string(532, ' '));
    program("key frmTavrin02 escape");
    program.write(stem + "informatie.txt", "");
    program.write(stem + "aftavrin.txt", "");
    open();
    EXPECT_EQ(get("lstInformatie.ListCount") + get("lstAfTavrin.ListCount") + get("lstHand(1).ListCount"), "000");
    EXPECT_EQ(program.shared("foutPlaats"), "");
}

}  // namespace
