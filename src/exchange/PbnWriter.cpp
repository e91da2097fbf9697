#include "exchange/PbnWriter.h"

#include <algorithm>
#include <array>
#include <sstream>

#include "base/Text.h"
#include "exchange/OwnParts.h"
#include "exchange/PbnReader.h"
#include "platform/CodePage.h"

namespace exchange {

namespace {

constexpr const char* kLineEnd = "\r\n";
constexpr const char* kUnknown = "?";
constexpr std::size_t kLongestLine = 200;  // of a text; a card and marks stand in front of it
constexpr std::size_t kFilledLine = 40;    // behind which a text's brace closes on a line of its own

std::string tag(const char* name, const std::string& value) {
    return std::string("[") + name + " \"" + value + "\"]" + kLineEnd;
}

// A line as it may stand in a comment: what begins other lines of a file is moved in by a blank, and a long one is
// broken at a word.
std::string comment_line(std::string line) {
    for (char& character : line) {
        if (static_cast<unsigned char>(character) < ' ') character = ' ';
    }
    line = base::trimmed(base::replaced(base::replaced(line, "{", "("), "}", ")"));
    if (!line.empty() && std::string_view("%[;*").find(line[0]) != std::string_view::npos) line.insert(0, " ");
    std::size_t begin = 0;
    while (line.size() - begin > kLongestLine) {
        const std::size_t blank = line.rfind(' ', begin + kLongestLine);
        if (blank == std::string::npos || blank <= begin) break;
        line.replace(blank, 1, kLineEnd);
        begin = blank + 2;
    }
    return line;
}

std::string comment_lines(const std::string& text) {
    std::string lines;
    for (const std::string& line : base::split(platform::from_utf8(text), "\n"))
        lines += (lines.empty() ? "" : kLineEnd) + comment_line(line);
    return lines;
}

// Behind a card of a row, which ends with its last card's line. There are readers that take an empty line in it for the
// end of the game, so there is none.
void add_comment_of_card(std::string& game, const std::string& text) {
    std::string lines = comment_lines(text);
    const std::string two_ends = std::string(kLineEnd) + kLineEnd;
    while (lines.find(two_ends) != std::string::npos)
        lines = base::replaced(lines, two_ends, kLineEnd);
    game += "{" + lines;
    // Within the braces a line may end without ending the row.
    if (game.size() - game.rfind('\n') > kFilledLine) game += kLineEnd;
    game += "}";
}

// On lines of its own.
std::string comment(const std::string& text) {
    const std::string lines = comment_lines(text);
    const char* const around = lines.find('\n') == std::string::npos ? "" : kLineEnd;
    return "{" + (around + lines) + around + "}" + kLineEnd;
}

void add_texts(std::string& game, const Board& board, const Place& place) {
    for (const PlacedText& text : board.texts) {
        if (text.place == place) game += comment(text.text);
    }
}

std::string result_of(const Board& board) {
    if (board.result) return std::to_string(*board.result);
    const bool played = board.contract && board.play && board.play->complete();
    if (!played) return kUnknown;
    return std::to_string(board.play->tricks_of(board.contract->declarer, board.contract->trump()));
}

std::string contract_of(const Board& board) {
    if (board.passed_out) return "Pass";
    if (!board.contract) return kUnknown;
    return pbn_call(Call::of(board.contract->bid)) + text_of(board.contract->doubling);
}

std::string head_tags(const Board& board) {
    const auto letter = [](const std::optional<Seat>& seat) {
        return seat ? std::string(1, letter_of(*seat)) : kUnknown;
    };
    std::string tags;
    for (const char* const name : {"Event", "Site", "Date"})
        tags += tag(name, kUnknown);
    tags += tag("Board", board.board.empty() ? kUnknown : board.board);
    for (const char* const name : {"West", "North", "East", "South"})
        tags += tag(name, kUnknown);
    tags += tag("Dealer", letter(board.dealer));
    tags += tag("Vulnerable", board.vulnerable ? pbn_word(*board.vulnerable) : kUnknown);
    tags += tag("Deal", board.deal ? pbn_hands(*board.deal, board.dealer.value_or(Seat::North)) : kUnknown);
    tags += tag("Scoring", kUnknown);
    tags += tag("Declarer", letter(board.contract ? std::optional(board.contract->declarer) : std::nullopt));
    tags += tag("Contract", contract_of(board));
    return tags + tag("Result", result_of(board));
}

std::string auction_section(const Auction& auction) {
    std::string section = tag("Auction", {letter_of(auction.dealer)});
    for (std::size_t i = 0; i < auction.calls.size(); ++i) {
        const bool last = i % kSeatCount == kSeatCount - 1 || i + 1 == auction.calls.size();
        section += pbn_call(auction.calls[i]) + (last ? kLineEnd : " ");
    }
    return section;
}

// A row for each trick, in columns from the opening leader on.
void add_play(std::string& game, const Board& board) {
    const Play& play = *board.play;
    game += tag("Play", {letter_of(play.leader)});
    int played = 0;
    for (const Trick& trick : play.tricks(board.contract->trump())) {
        for (int column = 0; column < kSeatCount; ++column) {
            const Seat seat = after(play.leader, column);
            const auto card = trick.card_of(seat);
            game += (column > 0 ? " " : "") + (card ? text_of(*card) : "-");
            const Place place{Place::Kind::Card, played + distance(trick.leader, seat) + 1};
            for (const PlacedText& text : board.texts) {
                if (!card || text.place != place) continue;
                game += " ";
                add_comment_of_card(game, text.text);
            }
        }
        game += kLineEnd;
        played += static_cast<int>(trick.cards.size());
    }
    const Place answer{Place::Kind::Answer, 0};
    const bool answered = std::ranges::find(board.texts, answer, &PlacedText::place) != board.texts.end();
    if (answered || !play.complete()) game += std::string("*") + kLineEnd;
    add_texts(game, board, answer);
}

}  // namespace

std::string pbn_call(const Call& call) {
    if (call.kind == Call::Kind::Pass) return "Pass";
    const bool no_trump = call.kind == Call::Kind::Bid && call.bid.strain == Strain::NoTrump;
    return text_of(call) + (no_trump ? "T" : "");
}

std::string pbn_word(Vulnerable vulnerable) {
    static constexpr std::array kWords{"None", "NS", "EW", "All"};
    return kWords[static_cast<std::size_t>(vulnerable)];
}

std::string pbn_hands(const Deal& deal, Seat first) {
    std::string text = std::string(1, letter_of(first)) + ":";
    for (int place = 0; place < kSeatCount; ++place) {
        const Hand& hand = deal.of(after(first, place));
        if (place > 0) text += " ";
        if (hand.empty()) {
            text += "-";
            continue;
        }
        for (const Suit suit : kSuits) {
            if (suit != Suit::Spades) text += ".";
            for (const Card& card : hand.cards(suit))
                text += letter_of_rank(card.rank);
        }
    }
    return text;
}

std::string pbn_head() { return std::string("% PBN 2.1") + kLineEnd + "%Creator: Zandolin Lomert" + kLineEnd; }

std::string pbn_game(const Board& board) {
    std::string game = head_tags(board);
    add_texts(game, board, {Place::Kind::Question, 0});
    if (board.auction) game += auction_section(*board.auction);
    if (board.play && board.contract) {
        add_play(game, board);
    } else {
        add_texts(game, board, {Place::Kind::Answer, 0});
    }
    return game;
}

std::string pbn_game(const Lesson& lesson) {
    std::string game = pbn_game(lesson.board);
    if (!lesson.has_play()) return game;
    std::istringstream stream(game);
    std::vector<Remark> notes;
    const auto files = files_as_told(*PbnReader(stream).next(), notes);
    for (const OwnPart& part : own_parts(files, lesson.files))
        game += text_of(part);
    return game;
}

}  // namespace exchange
