#include "page/Page.h"

#include <gtest/gtest.h>

#include <map>

#include "exchange/RandomBoard.h"
#include "exchange/RandomLesson.h"
#include "page/Article.h"
#include "page/Html.h"

namespace {

using namespace exchange;

Lesson lesson_of_board(const Board& board) {
    return {.name = "QVT_Spel 007", .files = {{" aftavrin.txt", ""}}, .board = board, .problems = {}};
}

// The values of an attribute, in their order.
std::vector<int> values_of(const std::string& text, const std::string& name) {
    std::vector<int> values;
    const std::string begin = name + "=\"";
    for (std::size_t at = 0; (at = text.find(begin, at)) != std::string::npos; at += begin.size())
        values.push_back(base::numeric_value(text.substr(at + begin.size())));
    return values;
}

int count_of(const std::string& text, const std::string& what) {
    int count = 0;
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += what.size())
        ++count;
    return count;
}

TEST(Page, EscapesWhatIsMarkup) {
    const std::map<std::string, std::string> kTexts{
        {"a < b & c", "a &lt; b &amp; c"},
        {"</script><script>", "&lt;/script&gt;&lt;script&gt;"},
        {"\"één\" 'twee'", "&quot;één&quot; &#39;twee&#39;"},
        {"een\ntwee\r\x01\x7F&amp;", "een\ntwee   &amp;amp;"},
        {"<!-- ]]> -->", "&lt;!-- ]]&gt; --&gt;"},
    };
    for (const auto& [text, expected] : kTexts)
        EXPECT_EQ(page::escaped(text), expected);
}

TEST(Page, PlaysInTrueOrder) {
    test::Random random(5);
    for (int i = 0; i < 100; ++i) {
        const Board board = test::random_board(random);
        const std::string text = page::article(lesson_of_board(board), "les", false);
        const auto cards = values_of(text, "data-card");
        const auto leaders = values_of(text, "data-leader");
        const auto winners = values_of(text, "data-winner");
        ASSERT_EQ(cards.size(), kCardsInDeck);
        ASSERT_EQ(leaders.size(), kTricks);
        EXPECT_EQ(leaders[0], index_of(board.contract->leader()));
        int north_south = 0;
        for (int card = 0; card < kCardsInDeck; ++card) {
            const int trick = card / kSeatCount;
            const int seat = (leaders[trick] + card) % kSeatCount;
            const Card& played = board.play->cards[card];
            ASSERT_EQ(cards[trick * kSeatCount + seat], index_of(played.suit) * kCardsInHand + played.rank - 1) << card;
            EXPECT_TRUE(board.deal->of(static_cast<Seat>(seat)).holds(played)) << card;
        }
        for (int trick = 0; trick < kTricks; ++trick) {
            ASSERT_TRUE(trick + 1 == kTricks || winners[trick] == leaders[trick + 1]) << trick;
            north_south += winners[trick] % 2 == 0;
        }
        EXPECT_EQ(north_south, board.play->tricks_of(Seat::North, board.contract->trump()));
    }
}

TEST(Page, PutsTextsAtTheirCards) {
    test::Random random(6);
    Board board = test::random_board(random);
    board.texts = {{{Place::Kind::Question, 0}, "Vraag <1>", 0},
                   {{Place::Kind::Card, 1}, "bij 1", 0},
                   {{Place::Kind::Card, 52}, "bij </script> 52", 0},
                   {{Place::Kind::Answer, 0}, "Antwoord & zo", 0}};
    Lesson lesson = lesson_of_board(board);
    lesson.name = "Les <script>";
    const std::string text = page::html({lesson});
    EXPECT_EQ(values_of(text, "data-at"), (std::vector{1, 52}));
    EXPECT_EQ(count_of(text, "<script>"), 1);
    EXPECT_EQ(count_of(text, "</script>"), 1);
    std::size_t at = 0;
    for (const char* const part : {"Vraag &lt;1&gt;", "data-at=\"1\"", "bij 1", "data-at=\"52\"",
                                   "bij &lt;/script&gt; 52", "Antwoord &amp; zo"}) {
        at = text.find(part, at);
        ASSERT_NE(at, std::string::npos) << part;
    }
}

TEST(Page, IsSmall) {
    test::Random random(7);
    Board board = test::random_board(random);
    for (int card = 1; card <= kCardsInDeck; ++card)
        board.texts.push_back({{Place::Kind::Card, card}, std::string(255, '&'), 0});
    EXPECT_LE(page::html({lesson_of_board(board)}).size(), 400'000U);
}

TEST(Page, AsksForNothingBesideIt) {
    test::Random random(8);
    const std::string text = page::html({lesson_of_board(test::random_board(random))});
    EXPECT_NE(text.find("default-src &#39;none&#39;"), std::string::npos);
    for (const char* const part : {"src=", "url(", "@import", "<link", "unsafe-inline", " style=", "fetch("})
        EXPECT_EQ(text.find(part), std::string::npos) << part;
}

TEST(Page, LeadsFromTheListToEveryLesson) {
    test::Random random(9);
    std::vector<Lesson> lessons;
    for (int number = 1; number <= 3; ++number) {
        lessons.push_back(lesson_of_board(test::random_board(random)));
        lessons.back().board.board = std::to_string(number + 10);
    }
    const std::string text = page::html(lessons);
    for (const char* const id : {"les-1", "les-2", "les-3", "lessen"}) {
        EXPECT_EQ(count_of(text, std::string(" id=\"") + id + "\""), 1) << id;
        EXPECT_GE(count_of(text, std::string("href=\"#") + id + "\""), 1) << id;
    }
    EXPECT_EQ(page::html({lessons[0]}).find("href=\"#lessen\""), std::string::npos);
}

// Calls stand below their seats, the dealer's first.
TEST(Page, ShowsTheBiddingBelowTheSeats) {
    test::Random random(10);
    Board board = test::random_board(random);
    board.auction = Auction{
        Seat::South,
        {Call::of({1, Strain::NoTrump}), Call::doubled(), Call::redoubled(), Call::pass(), Call::pass(), Call::pass()}};
    const std::string text = page::html({lesson_of_board(board)});
    EXPECT_NE(text.find("<th scope=\"row\">1</th><td></td><td></td><td>1 SA</td><td>doublet</td></tr>"
                        "<tr><th scope=\"row\">2</th><td>redoublet</td><td>pas</td><td>pas</td><td>pas</td></tr>"),
              std::string::npos);
}

TEST(Page, RefusesWhatIsNotWhole) {
    test::Random random(11);
    const Lesson whole = lesson_of_board(test::random_board(random));
    EXPECT_EQ(page::refusal(whole), "");
    Lesson unsound = whole;
    unsound.problems = {"trick 2 is led by N in the record, not by S", "no answer"};
    EXPECT_EQ(page::refusal(unsound), unsound.problems.front());
    Lesson deal = whole;
    deal.files = {{" handen.txt", ""}};
    Lesson broken_off = whole;
    broken_off.board.play->cards.pop_back();
    Lesson without = whole;
    without.board.deal.reset();
    for (const Lesson& lesson : {deal, broken_off, without})
        EXPECT_EQ(page::refusal(lesson), "no whole play");
}

}  // namespace
