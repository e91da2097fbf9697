// Measuring and wrapping of text.
#include <gtest/gtest.h>

#include "forms/Label.h"
#include "forms/TextMeasure.h"
#include "support/TestForm.h"

namespace {

using forms::box_lines;

constexpr double kBox = 5325;  // 355 pixels, of which 349 hold text
constexpr double kPoints = 12;

std::vector<std::string> wrapped(const std::string& text, double width = kBox) {
    std::vector<std::string> lines;
    const auto starts = box_lines(text, width, kPoints);
    for (std::size_t i = 0; i < starts.size(); ++i) {
        const std::size_t end = i + 1 < starts.size() ? starts[i + 1] : text.size();
        lines.push_back(text.substr(starts[i], end - starts[i]));
    }
    return lines;
}

TEST(Measure, RoundsEachCharacterHalfUp) {
    // At 16 pixels a lower-case i of 562 units is 4.39 pixels wide, an m of 1992 units 15.56.
    EXPECT_EQ(forms::character_width('i', {12, false}), 4);
    EXPECT_EQ(forms::character_width('m', {12, false}), 16);
    EXPECT_EQ(forms::text_width_in_pixels("mim", {12, false}), 36);
    EXPECT_EQ(forms::text_width("mim", {12, false}), 36 * 15);
    EXPECT_GT(forms::character_width('a', {12, true}), forms::character_width('a', {12, false}));
    EXPECT_EQ(forms::character_width('\r', {12, false}), 0);
}

struct WrapCase {
    const char* name;
    std::string text;
    std::vector<std::string> lines;
};

const std::string k21m(21, 'm');  // 336 pixels
const std::string k22m(22, 'm');  // 352 pixels: too wide

class Wrap : public testing::TestWithParam<WrapCase> {};

TEST_P(Wrap, BreaksAsTheBoxDoes) { EXPECT_EQ(wrapped(GetParam().text), GetParam().lines); }

INSTANTIATE_TEST_SUITE_P(Lines, Wrap,
                         testing::Values(WrapCase{"empty", "", {""}}, WrapCase{"short_text", "een twee", {"een twee"}},
                                         WrapCase{
                                             "blanks_at_the_end_hang_over", k21m + "      x", {k21m + "      ", "x"}},
                                         WrapCase{"after_a_blank", k21m + " mm", {k21m + " ", "mm"}},
                                         WrapCase{"wide_word_is_cut", k22m, {k21m, "m"}},
                                         WrapCase{"wide_word_begins_a_line", "a " + k22m + " b", {"a ", k21m, "m b"}},
                                         WrapCase{"hard_break", "a\r\nb", {"a\r\n", "b"}},
                                         WrapCase{"hard_break_at_the_end", "a\r\n", {"a\r\n", ""}},
                                         WrapCase{"empty_line", "a\r\n\r\nb", {"a\r\n", "\r\n", "b"}},
                                         WrapCase{"blank_line_first", "  a", {"  a"}}),
                         [](const auto& info) { return info.param.name; });

TEST(Wrap, LosesNothingAndFitsForAnyText) {
    unsigned seed = 7;
    const auto next = [&] { return seed = seed * 1103515245U + 12345U; };
    for (int round = 0; round < 300; ++round) {
        std::string text;
        for (unsigned length = next() % 400; text.size() < length;) {
            const unsigned kind = next() / 65536 % 9;
            text += kind == 0                     ? " "
                    : kind == 1 && round % 3 == 0 ? "\r\n"
                                                  : std::string(1, static_cast<char>(33 + next() / 65536 % 220));
        }
        std::string all;
        for (const std::string& line : wrapped(text)) {
            all += line;
            const std::string visible = line.substr(0, line.find_last_not_of(" \r\n") + 1);
            EXPECT_LE(forms::text_width_in_pixels(visible, {kPoints, false}), 349);
        }
        EXPECT_EQ(all, text);
    }
}

TEST(Label, GrowsWithItsText) {
    TestWindows test;
    test.show({"A"});
    forms::Label label(test.form("A"), "label", {0, 0, 100, 100});
    label.Caption = "mim";
    EXPECT_EQ(label.Width(), 100);
    label.FontSize = 12;
    label.AutoSize = true;
    EXPECT_EQ(label.Width(), 36 * 15);
    const double one_line = label.Height;
    label.Caption = "m\nmim";
    EXPECT_EQ(label.Height(), 2 * one_line);
    EXPECT_EQ(label.Width(), 36 * 15);
}

}  // namespace
