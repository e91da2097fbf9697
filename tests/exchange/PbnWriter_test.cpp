#include "exchange/PbnWriter.h"

#include <gtest/gtest.h>

#include <map>

#include "exchange/PbnReader.h"
#include "exchange/RandomLesson.h"
#include "exchange/TestBoards.h"

namespace {

using namespace exchange;

std::map<std::string, std::string> by_suffix(const std::vector<DealFile>& files) {
    std::map<std::string, std::string> all;
    for (const DealFile& file : files)
        all[file.suffix] = file.bytes;
    return all;
}

std::vector<DealFile> files_of(const Board& board) {
    std::vector<Remark> notes;
    auto files = lesson_files(board, notes);
    return files;
}

TEST(PbnWriter, BringsEveryByteOfALessonBack) {
    test::Random random(1);
    std::vector<std::vector<DealFile>> lessons;
    std::string bytes = pbn_head();
    for (int number = 1; number <= 250; ++number) {
        lessons.push_back(test::random_lesson(random));
        bytes += pbn_game(lesson_of("QVT_Spel " + std::to_string(number), lessons.back())) + "\r\n";
    }
    const auto boards = test::read<PbnReader>(bytes);
    ASSERT_EQ(boards.size(), lessons.size());
    std::size_t as_told = 0;
    for (std::size_t i = 0; i < boards.size(); ++i) {
        ASSERT_FALSE(boards[i].error) << i << " " << boards[i].error->text;
        EXPECT_EQ(by_suffix(files_of(boards[i])), by_suffix(lessons[i])) << i << "\n"
                                                                         << pbn_game(lesson_of("", lessons[i]));
        as_told += tells_a_lesson(boards[i]) ? 1 : 0;
    }
    EXPECT_GT(as_told, lessons.size() / 2) << "else the tags of our own do all the work";
}

// A lesson as the preparation saves it, with texts that need nothing of our own.
Lesson plain_lesson() {
    test::Random random(5);
    Board board = test::random_board(random);
    board.texts = {{{Place::Kind::Question, 0}, "Hoe speelt u?\n\nTel uw slagen.", 0},
                   {{Place::Kind::Card, 7}, "Een caf\u00E9.\nDe [snit].", 0},
                   {{Place::Kind::Card, 52}, "Klaar.", 0},
                   {{Place::Kind::Answer, 0}, "Eerst troef.", 0}};
    return lesson_of("QVT_Spel 007", files_of(board));
}

TEST(PbnWriter, NeedsNoTagsOfItsOwnForAPlainLesson) {
    const Lesson lesson = plain_lesson();
    EXPECT_EQ(lesson.problems, std::vector<std::string>());
    EXPECT_EQ(pbn_game(lesson), pbn_game(lesson.board));
    const Board board = test::read<PbnReader>(pbn_game(lesson)).front();
    EXPECT_EQ(board.deal, lesson.board.deal);
    EXPECT_EQ(board.auction, lesson.board.auction);
    EXPECT_EQ(board.play, lesson.board.play);
    EXPECT_EQ(test::told(board), test::told(lesson.board));
}

TEST(PbnWriter, LetsATextThatWasChangedElsewhereHold) {
    Lesson lesson = plain_lesson();
    const auto change = [](std::string& bytes, const char* from, const char* to) {
        bytes = base::replaced(bytes, from, to);
    };
    change(test::file(lesson.files, " vraag.txt").bytes, "Hoe", "~Hoe");
    change(test::file(lesson.files, " antwoord.txt").bytes, "\r\nEerst", "Eerst");
    std::string game = pbn_game(lesson_of(lesson.name, lesson.files));
    change(game, "Eerst troef", "Eerst harten");
    const Board board = test::read<PbnReader>(game).front();
    std::vector<Remark> notes;
    auto files = lesson_files(board, notes);
    EXPECT_EQ(test::file(files, " vraag.txt").bytes, "\r\n~Hoe speelt u?\r\n\r\nTel uw slagen.\r\n");
    EXPECT_EQ(test::file(files, " antwoord.txt").bytes, "\r\nEerst harten.\r\n");
    ASSERT_EQ(notes.size(), 1U);
    EXPECT_EQ(notes[0].text, "the board was changed since it was exported; antwoord.txt is made anew");
}

TEST(PbnWriter, WritesWhatTheStandardKnows) {
    const auto boards = test::read<PbnReader>(
        "[Board \"3\"]\n[Deal \"S:QJT.QJT98.QJ6.Q8 9876.76.T987.JT9 A32.K54.A32.K432 K54.A32.K54.A765\"]\n"
        "[Vulnerable \"EW\"]\n{Vraag?\n\nNu.}\n[Auction \"S\"]\n1H Pass 3NT X AP\n"
        "[Play \"E\"]\nCA C8 C9 C2\nC5 {Klein.} CQ CT CK\nS4 - - S2 {%50\n\nnaar de snit toe, en dat is "
        "lang}\n*\n{Ja}\n");
    const std::string game = pbn_game(boards.front());
    EXPECT_EQ(game.substr(game.find("[Dealer")),
              "[Dealer \"S\"]\r\n[Vulnerable \"EW\"]\r\n"
              "[Deal \"S:QJT.QJT98.QJ6.Q8 9876.76.T987.JT9 A32.K54.A32.K432 K54.A32.K54.A765\"]\r\n"
              "[Scoring \"?\"]\r\n[Declarer \"N\"]\r\n[Contract \"3NTX\"]\r\n[Result \"?\"]\r\n"
              "{\r\nVraag?\r\n\r\nNu.\r\n}\r\n[Auction \"S\"]\r\n1H Pass 3NT X\r\nPass Pass Pass\r\n"
              "[Play \"E\"]\r\nCA C8 C9 C2\r\nC5 {Klein.} CQ CT CK\r\n"
              "S4 - - S2 { %50\r\nnaar de snit toe, en dat is lang}\r\n*\r\n{Ja}\r\n");
}

}  // namespace
