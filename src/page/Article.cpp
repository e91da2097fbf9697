#include "page/Article.h"

#include <algorithm>

#include "exchange/DealWords.h"
#include "page/Cards.h"
#include "page/Html.h"
#include "page/Words.h"

namespace page {

namespace {

using exchange::Place;
using exchange::Seat;

std::string of_class(std::string_view name) { return attribute("class", name); }
std::string heading(std::string_view text) { return element("h2", text); }
std::string section(std::string_view name, std::string_view content) {
    return element("section", content, of_class(name)) + "\n";
}
std::string paragraph(std::string_view text) { return element("p", escaped(text), of_class("words")); }
std::string side_of(Seat seat) {
    return exchange::same_side(seat, Seat::North) ? words::kNorthSouth : words::kEastWest;
}

std::string row_head(std::size_t number) { return element("th", std::to_string(number), attribute("scope", "row")); }

std::string fact(const char* name, const std::string& content) {
    return element("div", element("dt", name) + element("dd", content));
}

std::string header(const exchange::Lesson& lesson, bool in_booklet) {
    const exchange::Board& board = lesson.board;
    const std::string lead = exchange::word_of(board.contract->leader()) + " " + markup(board.play->cards.front());
    const std::string list = in_booklet ? element("a", words::kAllLessons, attribute("href", "#lessen")) : "";
    return element("header",
                   list + element("h1", escaped(title_of(lesson))) +
                       element("dl", fact(words::kContract, markup(*board.contract)) + fact(words::kLead, lead))) +
           "\n";
}

std::string bidding(const exchange::Auction& auction) {
    std::string rows;
    std::size_t number = 0;
    for (const auto& round : rounds_of(auction)) {
        std::string cells = row_head(++number);
        for (const auto& call : round)
            cells += element("td", call ? markup(*call) : "");
        rows += element("tr", cells);
    }
    return section("bidding",
                   heading(words::kBidding) + element("table", seats_head(words::kRound) + element("tbody", rows)));
}

std::string hands(const exchange::Deal& deal) {
    std::string seats;
    for (const Seat seat : exchange::kSeats) {
        std::string suits;
        for (const exchange::Suit suit : exchange::kSuits) {
            std::string values;
            for (const exchange::Card& card : deal.of(seat).cards(suit))
                values += (values.empty() ? "" : " ") + value_letter(card.rank);
            suits += element("li", drawn(suit) + " " + (values.empty() ? spoken(words::kNone) : values));
        }
        seats += element("div", element("h3", exchange::word_of(seat)) + element("ul", suits));
    }
    return section("hands", heading(words::kHands) + seats);
}

// Of the play, in the columns of the seats.
std::string trick_row(const exchange::Trick& trick, Seat winner, std::size_t number) {
    std::string cells = row_head(number);
    for (const Seat seat : exchange::kSeats) {
        const exchange::Card card = *trick.card_of(seat);
        const std::string role = (seat == trick.leader ? std::string(", ") + words::kLeads : "") +
                                 (seat == winner ? std::string(", ") + words::kWins : "");
        cells += element("td", markup(card) + (role.empty() ? "" : spoken(role)),
                         (seat == winner ? of_class("won") : "") + attribute("data-card", number_of(card)));
    }
    return element("tr", cells,
                   attribute("data-leader", exchange::index_of(trick.leader)) +
                       attribute("data-winner", exchange::index_of(winner))) +
           "\n";
}

std::string text_row(const std::string& text, Seat seat, const exchange::Card& card, int number) {
    const std::string which = element("b", exchange::word_of(seat) + " " + markup(card));
    return element("tr", element("td", which + paragraph(text), attribute("colspan", 5)),
                   of_class("text") + attribute("data-at", number)) +
           "\n";
}

std::string play(const exchange::Board& board) {
    const auto trump = board.contract->trump();
    std::string rows;
    int number = 0;
    for (const exchange::Trick& trick : board.play->tricks(trump)) {
        rows += trick_row(trick, trick.winner(trump), number / exchange::kSeatCount + 1);
        for (std::size_t place = 0; place < trick.cards.size(); ++place) {
            const std::string text = text_at(board, {Place::Kind::Card, ++number});
            const Seat seat = after(trick.leader, static_cast<int>(place));
            if (!text.empty()) rows += text_row(text, seat, trick.cards[place], number);
        }
    }
    return section("play", heading(words::kPlay) +
                               element("table", seats_head(words::kTrick) + element("tbody", rows)) +
                               element("p", result_of(board), of_class("result")));
}

std::string answer(const std::string& text) {
    return element("details", element("summary", words::kAnswer) + paragraph(text), of_class("answer")) + "\n";
}

}  // namespace

std::string title_of(const exchange::Lesson& lesson) {
    return lesson.board.board.empty() ? lesson.name : words::kDeal + lesson.board.board;
}

std::string text_at(const exchange::Board& board, const Place& place) {
    const auto found = std::ranges::find(board.texts, place, &exchange::PlacedText::place);
    return found == board.texts.end() ? std::string() : found->text;
}

std::vector<std::array<std::optional<exchange::Call>, exchange::kSeatCount>> rounds_of(
    const exchange::Auction& auction) {
    std::vector<std::array<std::optional<exchange::Call>, exchange::kSeatCount>> rounds;
    auto at = static_cast<std::size_t>(exchange::index_of(auction.dealer));
    for (const exchange::Call& call : auction.calls) {
        rounds.resize(at / exchange::kSeatCount + 1);
        rounds.back()[at++ % exchange::kSeatCount] = call;
    }
    return rounds;
}

std::string seats_head(const char* first) {
    std::string cells = element("th", first, attribute("scope", "col"));
    for (const Seat seat : exchange::kSeats)
        cells += element("th", exchange::word_of(seat), attribute("scope", "col"));
    return element("thead", element("tr", cells));
}
std::string result_of(const exchange::Board& board) {
    std::string text;
    for (const Seat seat : {Seat::North, Seat::East}) {
        text += (text.empty() ? "" : ", ") + side_of(seat) + " " +
                std::to_string(board.play->tricks_of(seat, board.contract->trump()));
    }
    return std::string(words::kTricks) + ": " + text;
}

std::string article(const exchange::Lesson& lesson, const std::string& id, bool in_booklet) {
    const exchange::Board& board = lesson.board;
    const std::string question = text_at(board, {Place::Kind::Question, 0});
    const std::string last = text_at(board, {Place::Kind::Answer, 0});
    return element("article",
                   "\n" + header(lesson, in_booklet) +
                       (question.empty() ? "" : section("question", heading(words::kQuestion) + paragraph(question))) +
                       (board.auction ? bidding(*board.auction) : "") + hands(*board.deal) + play(board) +
                       (last.empty() ? "" : answer(last)),
                   attribute("id", id) + attribute("data-declarer", exchange::index_of(board.contract->declarer))) +
           "\n";
}

}  // namespace page
