// The bidding box.
#include <gtest/gtest.h>

#include <map>

#include "support/Program.h"

namespace {

class Bidding : public testing::Test {
protected:
    using Bids = std::map<std::pair<int, int>, std::string>;  // seat 0 to 3 and round 0 to 8, to a line

    static std::string file_of(const Bids& bids) {
        std::string lines = "Zuid\r\n";
        for (int seat = 0; seat < 4; ++seat) {
            for (int round = 0; round < 9; ++round) {
                const auto bid = bids.find({seat, round});
                lines += (bid == bids.end() ? "~~" : bid->second) + "\r\n";
            }
        }
        return lines;
    }
    void open(const std::string& bytes) {
        write_package(program, Package::west_wins_all());
        program.write("aftavrin/QVT_Spel 012/QVT_Spel 012 Bieding.txt", bytes);
        program("start\nselect frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin");
    }
    std::string get(const std::string& name) { return program.get("frmTavrin02." + name); }
    // The numbers of the rounds that are shown.
    std::string rounds() {
        std::string shown;
        for (const char* round : {"0", "1", "2", "3", "4", "5", "6", "7", "8"}) {
            const std::string label = std::string("lblNum(") + round + ").";
            if (get(label + "Visible") == "true") shown += get(label + "Caption");
        }
        return shown;
    }

    Program program;
};

TEST_F(Bidding, RoundsAreThoseOfNoord) {
    const struct {
        Bids bids;
        const char* rounds;
        const char* height;
    } cases[] = {
        {{{{0, 0}, "1~3~"}, {{0, 1}, "pas~~"}}, "1:2:", "1210"},
        {{{{0, 0}, "1~3~"}, {{0, 2}, "pas~~"}}, "1:3:", "1210"},
        {{{{1, 0}, "1~3~"}, {{3, 8}, "pas~~"}}, "", "690"},
        {{{{0, 8}, "~3~*"}}, "", "690"},
    };
    for (const auto& each : cases) {
        open(file_of(each.bids));
        EXPECT_EQ(rounds(), each.rounds);
        EXPECT_EQ(get("fraBieding.Height"), each.height);
        EXPECT_EQ(get("fraBieding.Visible"), "true");
        program("click frmTavrin02.cmdStart");
        EXPECT_EQ(std::stod(get("fraSlagen.Top")), std::stod(get("fraBieding.Top")) + std::stod(each.height) + 128);
        program("key frmTavrin02 escape");
    }
}

TEST_F(Bidding, CellShowsBidStrainAndMark) {
    const struct {
        const char* line;
        const char* bid;
        const char* strain;  // picture, or "hidden"
        const char* mark;
    } cases[] = {{"1~0~", "1", "106", "hidden"},
                 {"2~1~*", "2", "107", "*"},
                 {"3~2~", "3", "108", "hidden"},
                 {"4~3~", "4", "109", "hidden"},
                 {"7~4~!", "7", "110", "!"},
                 {"1~5~", "1", "hidden", "hidden"},
                 {"1~44~", "1", "hidden", "hidden"},
                 {"1~x~", "1", "", "hidden"},
                 {"pas~~", "pas", "hidden", "hidden"},
                 {"~~*", "hidden", "hidden", "*"},
                 {"redoublet~~", "redoublet", "hidden", "hidden"}};
    Bids bids;
    int round = 0;
    for (const auto& each : cases) {
        bids[{round / 9, round % 9}] = each.line;
        ++round;
    }
    open(file_of(bids));
    round = 0;
    for (const auto& each : cases) {
        const std::string cell = std::string(1, "NO"[round / 9]) + "(" + std::to_string(round % 9) + ").";
        const auto shown = [&](const std::string& control, const char* property) {
            return get(control + cell + "Visible") == "true" ? get(control + cell + property) : "hidden";
        };
        EXPECT_EQ(shown("lblB", "Caption"), each.bid) << each.line;
        EXPECT_EQ(shown("picB", "Picture"), each.strain) << each.line;
        EXPECT_EQ(shown("lblA", "Caption"), each.mark) << each.line;
        ++round;
    }
    EXPECT_EQ(program.shared("foutPlaats"), "");
}

TEST_F(Bidding, FileThatEndsTooEarlyHidesTheBox) {
    const std::string whole = file_of({{{0, 0}, "1~3~"}});
    const struct {
        std::string bytes;
        const char* number;
    } cases[] = {{"Zuid\r\n1~3~\r\n~~\r\n", "62"},
                 {whole.substr(0, whole.size() - 4), "62"},
                 {"Zuid\r\n1~3~\r\n\r\n", "9"},
                 {"Zuid\r\n1~3~\r\npas~\r\n", "9"}};
    for (const auto& each : cases) {
        Program one;
        write_package(one, Package::west_wins_all());
        one.write("aftavrin/QVT_Spel 012/QVT_Spel 012 bieding.txt", each.bytes);
        one("start\nselect frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin");
        EXPECT_EQ(one.shared("foutPlaats"), "Kaarten - General - ToonBieding");
        EXPECT_EQ(one.shared("foutNummer"), each.number);
        EXPECT_EQ(one.get("frmTavrin02.fraBieding.Visible"), "false");
        EXPECT_EQ(one.get("frmTavrin02.lblBN(0).Caption"), "1") << "what was read stays";
        EXPECT_EQ(one.get("frmTavrin02.lstAfTavrin.ListCount"), "13") << "the load goes on";
    }
}

TEST_F(Bidding, EmptyFileIsNone) {
    open("");
    EXPECT_EQ(rounds(), "1:2:3:4:5:6:7:8:9:");
    EXPECT_EQ(get("fraBieding.Height"), "3030");
}

}  // namespace
