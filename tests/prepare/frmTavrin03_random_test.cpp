// Clicks on any card at any time. Without hearts taken back and clicks in the grid the recording keeps the rules: every
// green card stands in the grid.
#include <gtest/gtest.h>

#include "support/Bridge.h"

namespace {

class LegalClicks : public testing::TestWithParam<unsigned> {
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

    Program program;
};

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
