// What stands on printed lessons, as a reader of the file finds it.
#include "paper/Paper.h"

#include <gtest/gtest.h>
#include <stdio.h>

#include <QPdfWriter>
#include <filesystem>

#include "deals/TestImport.h"
#include "exchange/BestPlay.h"
#include "exchange/RandomLesson.h"
#include "platform/CodePage.h"

namespace {

using exchange::Place;

class Paper : public TestImport {
protected:
    static exchange::Lesson lesson(std::vector<exchange::PlacedText> texts, unsigned seed = 1) {
        test::Random random(seed);
        exchange::Board board = test::random_board(random);
        board.board = std::to_string(seed);
        board.texts = std::move(texts);
        return {.name = "les", .files = {{" aftavrin.txt", ""}}, .board = std::move(board), .problems = {}};
    }
    // The pages of a file, each as words with one blank between them.
    std::vector<std::string> pages_of(const std::string& file) const {
        std::FILE* const reader = popen(("pdftotext " + program.path(file).string() + " -").c_str(), "r");
        std::vector<std::string> pages(1);
        for (int sign = getc(reader); sign != EOF; sign = getc(reader)) {
            const bool blank = sign == ' ' || sign == '\n';
            if (sign == '\f')
                pages.emplace_back();
            else if (!blank)
                pages.back() += static_cast<char>(sign);
            else if (!pages.back().empty() && pages.back().back() != ' ')
                pages.back() += ' ';
        }
        EXPECT_EQ(pclose(reader), 0);
        pages.pop_back();  // behind the last page's end
        return pages;
    }
    std::vector<std::string> printed(const std::vector<exchange::Lesson>& lessons, paper::Options options = {}) {
        QPdfWriter writer(QString::fromStdString(program.path("les.pdf").string()));
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF());
        paper::print(lessons, writer, options);
        return pages_of("les.pdf");
    }
    static std::string joined(const std::vector<std::string>& pages) {
        std::string text;
        for (const std::string& page : pages)
            text += page;
        return text;
    }
    // Whether all of them are there, one behind the other.
    static void expect_in_order(const std::string& text, const std::vector<std::string>& parts) {
        std::size_t at = 0;
        for (const std::string& part : parts) {
            const std::size_t found = text.find(part, at);
            ASSERT_NE(found, std::string::npos) << part << " in " << text;
            at = found + part.size();
        }
    }
};

TEST_F(Paper, HoldsEveryTextAtItsCard) {
    std::vector<exchange::PlacedText> texts{
        {{Place::Kind::Question, 0}, "Wat nu, \u2660 of \u2665? <b>&amp;</b> é ï €", 0}};
    std::vector<std::string> expected{"Spel 1", "Contract", "Noord", "Bieding", texts[0].text, "Spel 1", "Spelverloop"};
    for (int card = 1; card <= exchange::kCardsInDeck; ++card) {
        texts.push_back({{Place::Kind::Card, card}, "Bij kaart nummer " + std::to_string(card) + ".", 0});
        expected.push_back(texts.back().text);
    }
    texts.push_back({{Place::Kind::Answer, 0}, "Dus \u2666 en \u2663.", 0});
    expected.insert(expected.end(), {"Slagen: Noord-Zuid", "Antwoord", texts.back().text});
    expect_in_order(joined(printed({lesson(texts)})), expected);
}

TEST_F(Paper, GoesOnOnTheNextPages) {
    std::string text;
    std::vector<std::string> words;
    for (int word = 1; word <= 2000; ++word) {
        words.push_back("woord" + std::to_string(word) + " ");
        text += words.back();
    }
    const auto pages = printed({lesson({{{Place::Kind::Question, 0}, text, 0}, {{Place::Kind::Card, 30}, text, 0}})});
    EXPECT_GE(pages.size(), 6U);
    std::string all;
    for (const std::string& page : pages)  // each ends in its number, and begins with the head of a table
        all += page + " ";
    expect_in_order(all, words);
    expect_in_order(all.substr(all.find("Spelverloop")), words);
}

TEST_F(Paper, BeginsEachLessonOnAPage) {
    const auto pages = printed({lesson({}, 1), lesson({}, 2), lesson({}, 3)});
    ASSERT_EQ(pages.size(), 6U);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const std::string title = "Spel " + std::to_string(i / 2 + 1) + (i % 2 == 0 ? " Contract" : " – Spelverloop");
        EXPECT_EQ(pages[i].rfind(title, 0), 0U) << pages[i];
    }
}

TEST_F(Paper, MarksCardsThatGaveTricksAway) {
    const exchange::Lesson any = lesson({}, 4);
    const auto costly = exchange::best_play(any.board).costly;
    ASSERT_FALSE(costly.empty());
    const auto count = [](const std::string& text) {
        int marks = 0;
        for (std::size_t at = 0; (at = text.find("\u2212", at)) != std::string::npos; ++at)
            ++marks;
        return marks;
    };
    EXPECT_EQ(count(joined(printed({any}, {.mark_costly = true}))), costly.size());
    EXPECT_EQ(count(joined(printed({any}))), 0);
}

TEST_F(Paper, ADeviceThatTakesNoPageIsToldBeforeAnyWork) {
    QPdfWriter writer(QString::fromStdString(program.path("nergens/les.pdf").string()));
    bool began = false;
    try {
        paper::print({lesson({})}, writer, {.mark_costly = true, .between = [&](std::size_t) { began = true; }});
        FAIL() << "nothing can be printed there";
    } catch (const std::runtime_error& failure) {
        EXPECT_STREQ(failure.what(), "the printer failed");
    }
    EXPECT_FALSE(began);
}

TEST_F(Paper, ComesFromTheCommandLine) {
    const std::string samples = SAMPLES_DIR;
    const std::string file = program.path("lessen.pdf").string();
    const auto to_paper = [&](const std::string& to, const std::string& lesson) {
        return run("export", {"QVT_Spel 001", lesson, "--to", to, "--program", samples});
    };
    EXPECT_EQ(to_paper(file, "QVT_Spel 005").out, "QVT_Spel 001\nQVT_Spel 005\n");
    expect_in_order(joined(pages_of("lessen.pdf")), {"Spel 1", "West komt uit met ruitenaas", "Eén tekort", "Spel 5"});
    const Told some = to_paper(file, "Spel 009");
    EXPECT_EQ(some.out, "QVT_Spel 001\nrefused: Spel 009: no whole play\n");
    EXPECT_EQ(some.status, 1);
    EXPECT_EQ(to_paper(program.path("nergens/lessen.pdf").string(), "QVT_Spel 002").status, 2);
}

}  // namespace
