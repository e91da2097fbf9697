// Thousands of clicks on any card and any cell, with any answer: nothing may break, and some things always hold.
#include <gtest/gtest.h>

#include "support/Bridge.h"

namespace {

constexpr int kClicks = 4000;

class RandomClicks : public testing::TestWithParam<unsigned> {
protected:
    std::string get(const std::string& name) { return program.get("frmTavrin03." + name); }

    // Whether a card stands somewhere in its seat's column.
    bool in_column(int seat, const std::string& card) {
        for (int row = 1; row <= 13; ++row) {
            if (get("msfgTavrin[" + std::to_string(row) + "," + std::to_string(seat + 1) + "].Text") == card)
                return true;
        }
        return false;
    }

    void expect_invariants(const bridge::Deal& deal) {
        int light_blue = 0;
        for (int seat = 0; seat < 4; ++seat) {
            for (const bridge::Card& card : deal.hands[seat]) {
                const std::string colour = program.get(deal.label(seat, card) + ".BackColor");
                light_blue += colour == "0xFFC0C0" ? 1 : 0;
                EXPECT_TRUE(colour == "0xFFC0C0" || colour == "0xFFFFFF" || colour == "0x00FF00");
            }
        }
        EXPECT_LE(light_blue, 13);
        const int tricks = std::stoi(get("lblSlagenTellerNZ.Caption")) + std::stoi(get("lblSlagenTellerOW.Caption"));
        EXPECT_LE(tricks, 14);
        EXPECT_EQ(get("msfgTavrin.Visible"), "true");
        EXPECT_EQ(get("cmdOpslaan.Visible"), "true");
    }

    Program program;
};

TEST_P(RandomClicks, NeverBreakTheScreen) {
    std::mt19937 random(GetParam());
    const bridge::Deal deal =
        bridge::Deal::random(GetParam(), static_cast<int>(random() % 4), static_cast<int>(random() % 4));
    program.install_companion();
    deal.write(program, "Spel 012");
    program("start\nclick frmTavrin01.cmdNieuwSpel\nselect frmTavrin03.lstRVLX 0");
    auto& platform = program.interpreter.platform;
    for (int i = 0; i < kClicks; ++i) {
        platform.answers = {random() % 2 == 0 ? Answer::Yes : Answer::No};
        const auto kind = random() % 40;
        if (kind == 0) {
            program("click frmTavrin03.msfgTavrin[" + std::to_string(random() % 14) + "," +
                    std::to_string(random() % 5) + "]");
        } else if (kind == 1) {
            program("click frmTavrin03.cmdOpslaan");
        } else if (kind == 2 && get("lstAfTavrin.ListCount") != "0") {
            program("select frmTavrin03.lstAfTavrin 0");
        } else {
            const int seat = static_cast<int>(random() % 4);
            program("click " + deal.label(seat, deal.hands[seat][random() % 13]));
        }
        if (i % 50 == 0) expect_invariants(deal);
    }
    expect_invariants(deal);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomClicks, testing::Range(1U, 5U));

// Without hearts taken back and clicks in the grid the recording keeps the rules: every green card stands in the grid.
class LegalClicks : public RandomClicks {};

TEST_P(LegalClicks, KeepEveryPlayedCardInTheGrid) {
    std::mt19937 random(GetParam());
    const bridge::Deal deal =
        bridge::Deal::random(GetParam(), static_cast<int>(random() % 4), static_cast<int>(random() % 4));
    program.install_companion();
    deal.write(program, "Spel 012");
    program("start\nclick frmTavrin01.cmdNieuwSpel\nselect frmTavrin03.lstRVLX 0");
    for (int i = 0; i < 3000 && get("cmdOpslaan.Enabled") == "false"; ++i) {
        const int seat = static_cast<int>(random() % 4);
        const bridge::Card card = deal.hands[seat][random() % 13];
        if (program.get(deal.label(seat, card) + ".BackColor") == "0xFFC0C0") continue;
        program("click " + deal.label(seat, card));
        if (i % 100 != 0) continue;
        int light_blue = 0;
        for (int s = 0; s < 4; ++s) {
            for (const bridge::Card& c : deal.hands[s]) {
                const std::string colour = program.get(deal.label(s, c) + ".BackColor");
                light_blue += colour == "0xFFC0C0" ? 1 : 0;
                EXPECT_EQ(colour != "0xFFFFFF", in_column(s, c.in_grid())) << c.in_grid();
            }
        }
        EXPECT_LE(light_blue, 3);
    }
    EXPECT_EQ(get("cmdOpslaan.Enabled"), "true") << "any card that may be played is taken in the end";
    EXPECT_EQ(std::stoi(get("lblSlagenTellerNZ.Caption")) + std::stoi(get("lblSlagenTellerOW.Caption")), 13);
}

INSTANTIATE_TEST_SUITE_P(Seeds, LegalClicks, testing::Range(1U, 5U));

}  // namespace
