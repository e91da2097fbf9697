// Texts of other programs in the signs and the room that the program's own files have.
#include "exchange/CardTexts.h"

#include <gtest/gtest.h>

#include "base/Text.h"
#include "exchange/OwnText.h"
#include "forms/TextMeasure.h"

namespace {

using namespace exchange;

TEST(OwnText, WritesOutWhatTheFilesCannotHold) {
    const struct {
        const char* text;
        const char* bytes;
        bool lossless;
    } cases[] = {
        {"\u2660A \u2665H \u2666V \u2663B", "SA HH RV KB", true},
        {"a|b ~5", "a/b ca. 5", true},
        {"na\u00EFef \u20AC \u2026",
         "na\xEF"
         "ef \x80 \x85",
         true},
        {"A \u2192 B, \u2265 12", "A -> B, >= 12", true},
        {"\u0416 \U0001F600", "? ?", false},
        {"een\ntwee", "een\r\ntwee", true},
        {"een\ttwee\x01", "een twee ", true},
    };
    for (const auto& each : cases) {
        const OwnText own = own_text(each.text);
        EXPECT_EQ(own.bytes, each.bytes) << each.text;
        EXPECT_EQ(own.lossless, each.lossless) << each.text;
    }
}

class CardTexts : public testing::Test {
protected:
    void put(int card, const std::string& text) {
        board.texts.push_back({{Place::Kind::Card, card}, text, 100 + card});
    }
    std::array<std::string, kCardsInDeck> texts() {
        notes.clear();
        return card_texts(board, notes);
    }
    std::string told() const {
        std::string text;
        for (const Remark& note : notes)
            text += std::to_string(note.line) + ": " + note.text + "\n";
        return text;
    }

    Board board;
    std::vector<Remark> notes;
};

std::string words(int count) {
    std::string text;
    for (int number = 100; number < 100 + count; ++number)
        text += (text.empty() ? "" : " ") + std::to_string(number);
    return text;
}

TEST_F(CardTexts, StandAtTheirCardsWithTheirLines) {
    put(1, "Een.\n\nTwee \u2660.");
    put(52, words(64));  // 255 characters
    const auto all = texts();
    EXPECT_EQ(all[0], "Een.~~Twee S.");
    EXPECT_EQ(all[51], words(64));
    EXPECT_EQ(told(), "");
}

TEST_F(CardTexts, GoOnAtTheNextCardsWithoutOne) {
    put(3, words(200));  // 799 characters
    put(10, "Ander.");
    const auto all = texts();
    std::string whole;
    for (std::size_t at = 2; at < 6; ++at) {
        EXPECT_LE(all[at].size(), 255U);
        whole += (whole.empty() ? "" : " ") + all[at];
    }
    EXPECT_EQ(whole, words(200)) << "every word once and whole";
    EXPECT_EQ(all[6], "");
    EXPECT_EQ(all[9], "Ander.");
    EXPECT_EQ(told(), "");
}

TEST_F(CardTexts, AreCutBeforeTheNextText) {
    put(3, words(200));
    put(5, "Ander.");
    const auto all = texts();
    EXPECT_EQ(all[2] + " " + all[3], words(128));
    EXPECT_EQ(all[4], "Ander.");
    EXPECT_EQ(all[5], "");
    EXPECT_EQ(told(), "103: a text is too long; cut before \"" + words(200).substr(words(128).size() + 1, 40) + "\"\n");
}

TEST_F(CardTexts, AreCutBehindTheLastCard) {
    put(52, words(65));
    EXPECT_EQ(texts()[51], words(64));
    EXPECT_EQ(told(), "152: a text is too long; cut before \"164\"\n");
}

TEST_F(CardTexts, HaveNoMoreLinesThanTheTableShows) {
    put(1, base::replaced(words(12), " ", "\n"));
    put(3, std::string(300, 'M'));  // no place to cut a word
    const auto all = texts();
    EXPECT_EQ(all[0], base::replaced(words(9), " ", "~"));
    EXPECT_EQ(all[1], "109~110~111");
    for (const std::string& text : all)
        EXPECT_LE(forms::box_lines(base::replaced(text, "~", "\r\n"), 5325, 12).size(), 9U);
    EXPECT_EQ(all[2] + all[3], std::string(300, 'M'));
}

TEST_F(CardTexts, TellSignsThatWereLost) {
    put(7, "\u0416");
    EXPECT_EQ(texts()[6], "?");
    EXPECT_EQ(told(), "107: a text has signs that the program cannot hold; they became ?\n");
}

}  // namespace
