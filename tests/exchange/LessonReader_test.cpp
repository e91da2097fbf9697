#include "exchange/LessonReader.h"

#include <gtest/gtest.h>

#include "exchange/RandomLesson.h"
#include "exchange/TestBoards.h"

namespace {

using namespace exchange;

// 4H by South over a pass of North, West leads.
std::vector<DealFile> sound_files() {
    test::Random random(11);
    Board board;
    board.deal = test::random_deal(random);
    board.dealer = Seat::North;
    board.auction =
        Auction{Seat::North,
                {Call::pass(), Call::pass(), Call::of({4, Strain::Hearts}), Call::pass(), Call::pass(), Call::pass()}};
    board.contract = board.auction->contract();
    board.play = Play{Seat::West, {}};
    while (!board.play->complete())
        board.play->cards.push_back(test::legal_cards(board).front());
    board.texts = {{{Place::Kind::Card, 3}, "Een\ntekst", 0}};
    std::vector<Remark> notes;
    return files_as_told(board, notes);
}

struct Spoiled {
    const char* suffix;
    const char* from;  // "" for the whole file
    const char* to;
    const char* told;  // notes and problems
};

void PrintTo(const Spoiled& row, std::ostream* stream) { *stream << row.suffix << " " << row.from << "->" << row.to; }

class LessonReader : public testing::TestWithParam<Spoiled> {};

TEST_P(LessonReader, TellsWhatKeepsALessonFromBeingSound) {
    auto files = sound_files();
    std::string& bytes = test::file(files, GetParam().suffix).bytes;
    bytes = *GetParam().from == '\0' ? GetParam().to : base::replaced(bytes, GetParam().from, GetParam().to);
    const Lesson lesson = lesson_of("QVT_Spel 012", files);
    std::string told;
    for (const Remark& note : lesson.board.notes)
        told += "(" + note.text + ")";
    for (const std::string& problem : lesson.problems)
        told += problem + ";";
    EXPECT_EQ(told, GetParam().told);
    EXPECT_EQ(lesson.board.board, "12");
}

INSTANTIATE_TEST_SUITE_P(
    All, LessonReader,
    testing::Values(
        Spoiled{" Contract.txt", "Harten", "harten", ""},
        Spoiled{" Contract.txt", "Zuid", "West", "the contract is played by W, but W leads;"},
        Spoiled{" Contract.txt", "4", "5", "bidding: it ends in 4H by S;"},
        Spoiled{" Contract.txt", "", "Zuid vier",
                "(1 texts stand at cards that are not played)not a contract: Zuid vier;"},
        Spoiled{" Contract.txt", "", "", "(1 texts stand at cards that are not played)no contract;"},
        Spoiled{" Uitkomst.txt", "", "West", "no opening lead;"},
        Spoiled{" Uitkomst.txt", "", "West - 32", "the opening lead is C2, the play begins with SK;"},
        Spoiled{" bieding.txt", "pas~~", "weet niet~~", "(the bidding cannot be read: weet niet)"},
        Spoiled{" bieding.txt", "4~2~", "4~2~*", ""},
        Spoiled{" bieding.txt", "4~2~", "4~4~", "bidding: it ends in 4N by S;"},
        Spoiled{" bieding.txt", "4~2~", "dbl~~", "bidding: call 3 (X): nothing to double;"},
        Spoiled{" handen.txt", "A", "", "hand of N has 11 cards;"},
        Spoiled{" aftavrin.txt", "|22", "|0", "(1 texts stand at cards that are not played)trick 1 is not recorded;"},
        Spoiled{" aftavrin.txt", "4123|2226", "1234|2226", "trick 4 is led by N in the record, not by W;"},
        Spoiled{" aftavrin.txt", "2205|2204|2223", "2205|2239|2223", "card 10 (DA): S does not follow suit;"},
        Spoiled{" aftavrin.txt", "", "", "(1 texts stand at cards that are not played)0 tricks are recorded;"}));

TEST(Lesson, HasTheHandsFromItsPlayWhereNoFileHasThem) {
    auto files = sound_files();
    const Lesson whole = lesson_of("QVT_Spel 012", files);
    std::erase_if(files, [](const DealFile& file) { return std::string_view(file.suffix) == " handen.txt"; });
    const Lesson lesson = lesson_of("QVT_Spel 012", files);
    EXPECT_EQ(lesson.board.deal, whole.board.deal);
    EXPECT_EQ(lesson.board.play, whole.board.play);
}

TEST(Lesson, TellsOfADoubleOnce) {
    test::Random random(1);
    Board board = test::random_board(random);
    while (board.contract->doubling != Doubling::Redoubled)
        board = test::random_board(random);
    board.texts = {{{Place::Kind::Question, 0}, "En nu?", 0}};
    std::vector<Remark> notes;
    const Lesson lesson = lesson_of("Spel 1", files_as_told(board, notes));
    EXPECT_EQ(lesson.board.contract, board.contract);
    EXPECT_EQ(lesson.board.texts.front().text, "En nu?");
}

}  // namespace
