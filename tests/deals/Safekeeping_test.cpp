// Lessons that are saved in one file, and brought back.
#include "deals/Safekeeping.h"

#include "exchange/DealWords.h"
#include "exchange/RandomBoard.h"
#include "support/TemporaryFolder.h"

namespace {

using namespace deals;

class CollectedReport final : public Report {
public:
    void note(const std::string& text) override { all += "note: " + text + "\n"; }
    void made(const std::string& name) override { all += name + "\n"; }
    void refused(const std::string& text) override { all += "refused: " + text + "\n"; }
    std::string all;
};

class Safekeeping : public TemporaryFolder {
protected:
    void make_lesson(const std::string& name, unsigned seed) {
        test::Random random(seed);
        exchange::Board board = test::random_board(random);
        for (const int card : {3, 20})
            board.texts.push_back({{exchange::Place::Kind::Card, card}, "tekst " + std::to_string(card), 0});
        for (const exchange::DealFile& file : exchange::lesson_files(board, board.notes))
            put(path(name, file.suffix), file.bytes);
    }
    static std::string path(const std::string& name, const std::string& suffix) {
        return "aftavrin/" + name + "/" + name + suffix;
    }
    // All files of a lesson.
    std::string lesson(const std::string& name) {
        std::string all;
        for (const char* const suffix : exchange::kSuffixes)
            all += bytes_of(path(name, suffix)) + "|";
        return all;
    }
    void save() { save_all(folder.string(), in("alles.pbn"), report); }
    std::vector<Difference> found() { return differences(in("alles.pbn"), folder.string()); }
    // Takes the text off a card.
    void lose_text(const std::string& name, const std::string& text) {
        std::string records = bytes_of(path(name, exchange::suffix::kCardTexts));
        records.replace(records.find(text), text.size(), text.size(), ' ');
        put(path(name, exchange::suffix::kCardTexts), records);
    }
    std::string bring(BringBack how) {
        CollectedReport brought;
        bring_back(found(), folder.string(), how, brought);
        return brought.all;
    }

    CollectedReport report;
};

TEST_F(Safekeeping, TellsWhatDiffersAndBringsItBackBesideOrInPlace) {
    for (unsigned number = 1; number <= 4; ++number)
        make_lesson("QVT_Spel 00" + std::to_string(number), number);
    make_lesson("Slemmen", 5);
    save();
    EXPECT_EQ(report.all, "QVT_Spel 001\nQVT_Spel 002\nQVT_Spel 003\nQVT_Spel 004\nSlemmen\n");
    EXPECT_TRUE(found().empty());

    const std::string second = lesson("QVT_Spel 002"), third = lesson("QVT_Spel 003"), fourth = lesson("QVT_Spel 004");
    lose_text("QVT_Spel 002", "tekst 20");
    make_lesson("QVT_Spel 003", 33);
    std::filesystem::remove_all(folder / "aftavrin/QVT_Spel 004");
    const auto differ = found();
    ASSERT_EQ(differ.size(), 3U);
    EXPECT_EQ(differ[0].name + std::to_string(differ[0].texts_lost) + std::to_string(differ[0].play), "QVT_Spel 00210");
    EXPECT_TRUE(differ[1].play);
    EXPECT_EQ(differ[1].texts_lost, 0);
    EXPECT_TRUE(differ[2].gone);

    EXPECT_EQ(bring(BringBack::Beside), "QVT_Spel 004\nQVT_Spel 005\nQVT_Spel 006\n");
    EXPECT_EQ(lesson("QVT_Spel 004").substr(0, 40), second.substr(0, 40)) << "under the next number";
    EXPECT_NE(lesson("QVT_Spel 002"), second) << "what is there stays";

    std::filesystem::remove_all(folder / "aftavrin/QVT_Spel 004");
    const std::string before = lesson("QVT_Spel 003");
    EXPECT_EQ(bring(BringBack::InPlace), "QVT_Spel 002\nQVT_Spel 003\nQVT_Spel 004\n");
    EXPECT_EQ(lesson("QVT_Spel 002"), second);
    EXPECT_EQ(lesson("QVT_Spel 003"), third);
    EXPECT_EQ(lesson("QVT_Spel 004"), fourth);
    EXPECT_TRUE(found().empty());
    const auto lost = differences(in("bewaard/lessen voor terugzetten 1.pbn"), folder.string());
    ASSERT_EQ(lost.size(), 2U) << "what was replaced is kept";
    EXPECT_EQ(lost[1].name, "QVT_Spel 003");
    EXPECT_NE(before, third);
}

TEST_F(Safekeeping, KeepsACopyADayOfWhatHasChangedAndTheLastThirty) {
    EXPECT_FALSE(keep_copy(folder.string(), "2026-01-01")) << "there is nothing to keep";
    make_lesson("QVT_Spel 001", 1);
    const auto day = [](int number) {
        return "2026-01-" + std::string(number < 10 ? "0" : "") + std::to_string(number);
    };
    EXPECT_TRUE(keep_copy(folder.string(), day(1)));
    EXPECT_FALSE(keep_copy(folder.string(), day(2))) << "nothing has changed";
    EXPECT_EQ(names("bewaard"), std::vector<std::string>{"lessen 2026-01-01.pbn"});
    make_lesson("QVT_Spel 002", 2);
    EXPECT_FALSE(keep_copy(folder.string(), day(1))) << "once a day";
    for (unsigned number = 2; number <= 31; ++number) {
        make_lesson("QVT_Spel 002", number);
        EXPECT_TRUE(keep_copy(folder.string(), day(static_cast<int>(number))));
    }
    EXPECT_EQ(names("bewaard").size(), 30U);
    EXPECT_EQ(names("bewaard").front(), "lessen 2026-01-02.pbn");
}

TEST_F(Safekeeping, ALessonWithoutANumberIsKnownByItsHands) {
    make_lesson("Slemmen", 5);
    make_lesson("Uitkomsten", 6);
    save();
    const std::string before = lesson("Slemmen");
    lose_text("Slemmen", "tekst 20");
    const auto differ = found();
    ASSERT_EQ(differ.size(), 1U);
    EXPECT_EQ(differ[0].name + std::to_string(differ[0].texts_lost), "Slemmen1");
    EXPECT_EQ(bring(BringBack::InPlace), "Slemmen\n");
    EXPECT_EQ(lesson("Slemmen"), before);
}

TEST_F(Safekeeping, AFileWithoutLessonsIsRefused) {
    put("alles.pbn", "[Board \"1\"]\n[Contract \"Pass\"]\n");
    EXPECT_THROW(found(), std::runtime_error);
}

}  // namespace
