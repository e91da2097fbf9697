#include "resources/MessageTable.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>

#include "base/Fout.h"

using resources::message;
using resources::message_text;

TEST(MessageTable, HoldsItsNumbersAndNoOthers) {
    std::set<int> missing;
    for (int number = 10001; number <= 10106; ++number) {
        if (!message(number)) missing.insert(number);
    }
    EXPECT_EQ(missing, (std::set<int>{10069, 10070, 10100, 10101}));
    for (const int number : {-1, 0, 1, 34, 10000, 10107, 10128})
        EXPECT_EQ(message(number), nullptr) << number;
}

// Any letter that is mended, or blank that is dropped, changes the sum (FNV-1a over "number=text" and a line feed).
// The four texts with the owner or an address in them stand below.
TEST(MessageTable, NoLetterOfTheTextsHasChanged) {
    std::uint32_t sum = 2166136261U;
    for (int number = 10001; number <= 10106; ++number) {
        if (!message(number) || number == 10003 || number == 10067 || number == 10096 || number == 10105) continue;
        for (const char letter : std::to_string(number) + "=" + message_text(number) + "\n") {
            sum = (sum ^ static_cast<unsigned char>(letter)) * 16777619U;
        }
    }
    EXPECT_EQ(sum, 0xab9690d1U);
}

TEST(MessageTable, TextsWithTheMakersAddress) {
    const std::string question =
        "Er is geen update voor Zandolin Lomert.|Probeer het later nog eens een keer.||Raadpleeg altijd mijn "
        "website:https://www.zandolin.example";
    EXPECT_EQ(message_text(10067), question);
    EXPECT_EQ(message_text(10105), question + "||Wilt u naar de website?");
    EXPECT_EQ(message_text(10096), R"(https:\\www.zandolin.example\QVTMelding)");
    EXPECT_EQ(message_text(10003).front(), '\xA9');
}

TEST(MessageTable, UnknownNumberFails) {
    try {
        message_text(10070);
        FAIL();
    } catch (const base::Fout& fout) {
        EXPECT_EQ(fout.nummer(), 326);
    }
}
