// Texts in Windows-1252: cutting, numbers, case.
#include "base/Text.h"

#include <gtest/gtest.h>

#include <climits>

#include "base/Fout.h"

namespace {

TEST(Text, SplitsAtEveryOccurrence) {
    using Expected = std::vector<std::string>;
    const struct {
        const char* text;
        const char* separator;
        Expected pieces;
    } cases[] = {
        {"a|b|c", "|", {"a", "b", "c"}},
        {"", "|", {}},
        {"|", "|", {"", ""}},
        {"a  b", " ", {"a", "", "b"}},
        {"West - 0Aas", " - ", {"West", "0Aas"}},
        {"a - - b", " - ", {"a", "- b"}},
        {"abc", "abcd", {"abc"}},
    };
    for (const auto& each : cases) {
        const base::Pieces pieces = base::split(each.text, each.separator);
        EXPECT_EQ(Expected(pieces.begin(), pieces.end()), each.pieces) << each.text;
        EXPECT_EQ(pieces.last(), static_cast<int>(each.pieces.size()) - 1);
        for (const int missing : {-1, pieces.last() + 1}) {
            try {
                pieces[missing];
                ADD_FAILURE() << missing;
            } catch (const base::Fout& fout) {
                EXPECT_EQ(fout.nummer(), 9);
            }
        }
    }
}

TEST(Text, NumericValueIsWhatStandsAtTheHead) {
    const struct {
        const char* text;
        int value;
    } cases[] = {{"12", 12},
                 {"  7x", 7},
                 {"12|tekst", 12},
                 {"007", 7},
                 {"-3", -3},
                 {"+4", 4},
                 {"- 3", 0},
                 {"", 0},
                 {"   ", 0},
                 {"x1", 0},
                 {"\t5", 0},
                 {"--2", 0},
                 {"1 2", 1},
                 {"1.9", 1},
                 {"99999999999999999999", INT_MAX},
                 {"-99999999999999999999", INT_MIN}};
    for (const auto& each : cases)
        EXPECT_EQ(base::numeric_value(each.text), each.value) << each.text;
}

TEST(Text, CaseFollowsTheCodePage) {
    EXPECT_EQ(base::lower_case("\xC9\xC0\x8A\x8C\x8E\x9FZ"), "\xE9\xE0\x9A\x9C\x9E\xFFz");
    EXPECT_EQ(base::upper_case("\xE9\xE0\x9A\x9C\x9E\xFFz"), "\xC9\xC0\x8A\x8C\x8E\x9FZ");
    const std::string same = "\xD7\xF7\xDF\x80\xA0@[`{09";
    EXPECT_EQ(base::lower_case(same), same);
    EXPECT_EQ(base::upper_case(same), same);
    int letters = 0;
    for (int code = 0; code < 256; ++code) {
        const std::string one(1, static_cast<char>(code));
        if (base::lower_case(one) == one) continue;
        ++letters;
        EXPECT_EQ(base::upper_case(base::lower_case(one)), one) << code;
    }
    EXPECT_EQ(letters, 26 + 30 + 4);
}

TEST(Text, ComparesWithoutCase) {
    EXPECT_TRUE(base::equal_ignoring_case("QVT_Spel \xC9", "qvt_sPEL \xE9"));
    EXPECT_FALSE(base::equal_ignoring_case("Spel", "Spel 1"));
    EXPECT_LT(base::compare_ignoring_case("a", "B"), 0);
    EXPECT_LT(base::compare_ignoring_case("Spel 1", "spel 10"), 0);
    EXPECT_GT(base::compare_ignoring_case("spel 2", "Spel 10"), 0);
}

TEST(Text, TakesApartAndReplaces) {
    EXPECT_EQ(base::trimmed("  a b \t "), "a b \t");
    EXPECT_EQ(base::trimmed("   "), "");
    EXPECT_EQ(base::replaced("a~b~", "~", "\r\n"), "a\r\nb\r\n");
    EXPECT_EQ(base::replaced("aaa", "aa", "a"), "aa") << "what was put in isn't looked at again";
    EXPECT_EQ(base::left("abc", 9) + base::left("abc", 1), "abca");
    EXPECT_EQ(base::right("abc", 9) + base::right("abc", 1), "abcc");
    EXPECT_EQ(base::middle("abc", 2) + base::middle("abc", 3) + base::middle("abc", 4) + base::middle("", 2), "bcc");
}

}  // namespace
