#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <random>

#include "desktop/Look.h"
#include "desktop/Text.h"
#include "desktop/views/BoxLayout.h"
#include "forms/TextMeasure.h"

namespace {

// Where the lines begin that are drawn, in the counting of the core: a line break is two characters.
std::vector<std::size_t> drawn_lines(const std::string& text, double width, double points, double zoom) {
    QTextDocument document;
    auto* layout = new desktop::views::BoxLayout(&document);
    document.setDocumentLayout(layout);
    layout->set_measures({width, points, zoom, 3 * zoom, 4 * zoom, desktop::screen_font(points, false, zoom), {}});
    document.setPlainText(desktop::BoxText(text, true).shown());
    std::vector<std::size_t> starts;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (int line = 0; line < block.layout()->lineCount(); ++line) {
            const int start = block.position() + block.layout()->lineAt(line).textStart();
            starts.push_back(static_cast<std::size_t>(start + block.blockNumber()));
        }
    }
    return starts;
}

std::string random_text(std::mt19937& random) {
    static const std::string pieces[] = {"a",     "de",   "schoppen", "  ",        " ",       "-",           ".",
                                         "fi",    "ffl",  "\r\n",     "V\xE9\xE9", "WWWWWWW", "12/13",       "(A,H)",
                                         "\x80 ", "een ", "twee ",    "\r\n\r\n",  "      ",  "harten-heer "};
    std::uniform_int_distribution<std::size_t> piece(0, std::size(pieces) - 1);
    std::string text;
    for (std::size_t count = random() % 120; count > 0; --count)
        text += pieces[piece(random)];
    return text;
}

}  // namespace

TEST(BoxLayout, DrawsTheLinesThatTheCoreCounts) {
    const std::string fixed[] = {
        "",
        "\r\n",
        "x",
        std::string(400, 'W'),
        std::string(400, ' ') + "einde",
        "woord " + std::string(200, 'i') + " woord",
        "regel een\r\n\r\nregel drie met meer woorden dan er op een regel van deze breedte passen"};
    for (const std::string& text : fixed) {
        EXPECT_EQ(drawn_lines(text, 5325, 12, 1), forms::box_lines(text, 5325, 12)) << text;
    }
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        const std::string text = random_text(random);
        const double width = 900 + 15 * static_cast<double>(random() % 400);
        const double zoom = round % 3 == 0 ? 0.87 : 1;
        ASSERT_EQ(drawn_lines(text, width, 12, zoom), forms::box_lines(text, width, 12)) << text << " at " << width;
    }
}

TEST(BoxLayout, GivesEachWordTheRoomThatTheCoreCounts) {
    QTextDocument document;
    auto* layout = new desktop::views::BoxLayout(&document);
    document.setDocumentLayout(layout);
    layout->set_measures({5325, 12, 1, 3, 0, desktop::screen_font(12, false, 1), {}});
    const std::string text = "West komt uit met V\xE9rt affijn";
    document.setPlainText(desktop::to_qt(text));
    const QTextLine line = document.begin().layout()->lineAt(0);
    for (std::size_t at = 0; at <= text.size(); ++at) {
        const bool edge = at == 0 || at == text.size() || text[at] == ' ' || text[at - 1] == ' ';
        EXPECT_NEAR(line.cursorToX(static_cast<int>(at)), forms::text_width_in_pixels(text.substr(0, at), {12, false}),
                    edge ? 0.5 + 0.02 * static_cast<double>(at) : 3)
            << at;
    }
}
