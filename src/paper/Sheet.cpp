#include "paper/Sheet.h"

#include <algorithm>

#include "exchange/DealWords.h"
#include "exchange/Texts.h"
#include "page/Article.h"
#include "page/Cards.h"
#include "page/Html.h"
#include "page/Words.h"
#include "paper/Words.h"

namespace paper {

namespace {

using exchange::Place;
using exchange::Seat;
using page::attribute;
using page::element;

// Rich text has its own way with tables: their measures are attributes.
const std::string kPlain = attribute("cellpadding", 3) + attribute("cellspacing", 0);
const std::string kWide =
    kPlain + attribute("width", "100%") + attribute("style", "margin-top:6px; margin-bottom:12px");

std::string printed(exchange::Suit suit) {
    const bool red = suit == exchange::Suit::Hearts || suit == exchange::Suit::Diamonds;
    const std::string symbol(exchange::kSymbols[exchange::index_of(suit)]);
    return red ? element("span", symbol, attribute("style", "color:#c80000")) : symbol;
}
std::string printed(const exchange::Card& card) { return printed(card.suit) + page::value_letter(card.rank); }

std::string paragraph(const std::string& text, const std::string& first = {}) {
    return element("p", first + page::escaped(text), attribute("style", "white-space:pre-wrap; margin:3px 0 9px 0"));
}
std::string part(const char* heading, const std::string& content) { return element("h3", heading) + content; }

std::string hand(const exchange::Hand& cards, Seat seat) {
    std::string lines = element("b", exchange::word_of(seat));
    for (const exchange::Suit suit : exchange::kSuits) {
        lines += "<br>" + printed(suit);
        for (const exchange::Card& card : cards.cards(suit))
            lines += " " + page::value_letter(card.rank);
    }
    return lines;
}

std::string compass() {
    const auto cell = [](const std::string& text) {
        return element("td", element("span", text, attribute("style", "color:#ffffff")), attribute("align", "center"));
    };
    const auto& seats = words::kCompass;
    return element("table",
                   element("tr", cell("") + cell(seats[0]) + cell("")) +
                       element("tr", cell(seats[3]) + cell("&nbsp;&nbsp;") + cell(seats[1])) +
                       element("tr", cell("") + cell(seats[2]) + cell("")),
                   attribute("cellpadding", 5) + attribute("cellspacing", 0) + attribute("bgcolor", "#18603c"));
}

std::string diagram(const exchange::Deal& deal) {
    const auto cell = [](const std::string& content) {
        return element("td", content, attribute("width", "33%") + attribute("valign", "middle"));
    };
    const auto of = [&](Seat seat) { return cell(hand(deal.of(seat), seat)); };
    return element("table",
                   element("tr", cell("") + of(Seat::North) + cell("")) +
                       element("tr", of(Seat::West) + cell(compass()) + of(Seat::East)) +
                       element("tr", cell("") + of(Seat::South) + cell("")),
                   kWide);
}

std::string bidding(const exchange::Auction& auction) {
    std::string rows;
    int number = 0;
    for (const auto& round : page::rounds_of(auction)) {
        std::string cells = element("td", std::to_string(++number));
        for (const auto& call : round)
            cells += element("td", call ? page::markup(*call, printed) : "");
        rows += element("tr", cells);
    }
    return element("table", page::seats_head(page::words::kRound) + rows, kWide);
}

// The cards of a trick in the columns of the seats, the leader's with a point; in front of them the trick's number.
class PlayTable {
public:
    PlayTable(const exchange::Board& board, const std::vector<exchange::CostlyCard>& costly)
        : board_(board), costly_(costly) {}

    std::string text() {
        for (const exchange::Trick& trick : board_.play->tricks(board_.contract->trump()))
            add(trick);
        return element("table", page::seats_head(page::words::kTrick) + rows_, kWide);
    }

private:
    void add(const exchange::Trick& trick) {
        const Seat winner = trick.winner(board_.contract->trump());
        std::string cells = element("td", std::to_string(first_ / exchange::kSeatCount + 1));
        for (const Seat seat : exchange::kSeats) {
            const int number = first_ + exchange::distance(trick.leader, seat) + 1;
            const std::string card = printed(*trick.card_of(seat)) + cost_of(number);
            cells += element("td", (seat == trick.leader ? "• " : "") + (seat == winner ? element("b", card) : card));
        }
        rows_ += element("tr", cells, attribute("bgcolor", "#f0ede2"));
        for (const exchange::Card& card : trick.cards)
            add_text(trick, card);
    }

    void add_text(const exchange::Trick& trick, const exchange::Card& card) {
        const Seat seat = after(trick.leader, first_ % exchange::kSeatCount);
        const std::string text = page::text_at(board_, {Place::Kind::Card, ++first_});
        if (text.empty()) return;
        const std::string which = element("b", exchange::word_of(seat) + " " + printed(card)) + "&nbsp;&nbsp;";
        rows_ += element("tr", element("td", "") + element("td", paragraph(text, which), attribute("colspan", 4)));
    }

    std::string cost_of(int number) const {
        const auto found = std::ranges::find(costly_, number, &exchange::CostlyCard::number);
        return found == costly_.end() ? "" : element("sup", " \u2212" + std::to_string(found->tricks));
    }

    const exchange::Board& board_;
    const std::vector<exchange::CostlyCard>& costly_;
    std::string rows_;
    int first_ = 0;  // cards played
};

}  // namespace

std::string sheet_of(const exchange::Lesson& lesson, const std::vector<exchange::CostlyCard>& costly) {
    const exchange::Board& board = lesson.board;
    const std::string title = page::escaped(page::title_of(lesson));
    const std::string new_page = attribute("style", "page-break-before:always");
    const std::string lead = exchange::word_of(board.contract->leader()) + " " + printed(board.play->cards.front());
    const std::string question = page::text_at(board, {Place::Kind::Question, 0});
    const std::string answer = page::text_at(board, {Place::Kind::Answer, 0});
    return element("h2", title) +
           element("p", std::string(page::words::kContract) + " " + page::markup(*board.contract, printed) +
                            "&nbsp;&nbsp;&nbsp; " + page::words::kLead + " " + lead) +
           diagram(*board.deal) + (board.auction ? part(page::words::kBidding, bidding(*board.auction)) : "") +
           (question.empty() ? "" : part(page::words::kQuestion, paragraph(question))) +
           element("h2", title + " \u2013 " + page::words::kPlay, new_page) + PlayTable(board, costly).text() +
           element("p", element("b", page::result_of(board))) + (costly.empty() ? "" : element("p", words::kCostly)) +
           (answer.empty() ? "" : part(page::words::kAnswer, paragraph(answer)));
}

}  // namespace paper
