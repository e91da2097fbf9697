#include "exchange/LinWriter.h"

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "exchange/Texts.h"

namespace exchange {

namespace {

constexpr const char* kLineEnd = "\r\n";
constexpr std::array kSeatsFromSouth{Seat::South, Seat::West, Seat::North, Seat::East};

std::string command(const char* name, const std::string& value) { return std::string(name) + "|" + value + "|"; }

// Marks that would become suit symbols are taken apart; no line begins as a comment of the file.
std::string text_value(const std::string& text) {
    std::string value;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char character = text[at];
        const bool marks_suit = character == '!' && !with_symbols_of_lin(text.substr(at, 3)).starts_with('!');
        if (character == '%' && (value.empty() || value.back() == '\n')) value += ' ';
        if (character == '|') {
            value += '/';
        } else if (character == '\n') {
            value += kLineEnd;
        } else {
            value += static_cast<unsigned char>(character) < ' ' ? ' ' : character;
        }
        if (character == '@') value += '@';
        if (marks_suit) value += ' ';
    }
    return value;
}

std::string texts_at(const Board& board, const Place& place) {
    std::string texts;
    for (const PlacedText& text : board.texts) {
        if (text.place == place) texts += command("nt", text_value(text.text)) + command("pg", "") + kLineEnd;
    }
    return texts;
}

std::string hands(const Board& board) {
    std::string value(1, '0');
    for (std::size_t i = 0; i < kSeatsFromSouth.size(); ++i) {
        if (board.dealer == kSeatsFromSouth[i]) value[0] = static_cast<char>('1' + i);
    }
    for (const Seat seat : kSeatsFromSouth) {
        if (value.size() > 1) value += ",";
        for (const Suit suit : kSuits) {
            value += letter_of(suit);
            for (const Card& card : board.deal->of(seat).cards(suit))
                value += letter_of_rank(card.rank);
        }
    }
    return value;
}

std::string vulnerable(const Board& board) {
    constexpr std::array kLetters{"o", "n", "e", "b"};
    return board.vulnerable ? command("sv", kLetters[static_cast<std::size_t>(*board.vulnerable)]) : "";
}

std::string bidding(const Auction& auction) {
    std::string commands;
    for (const Call& call : auction.calls) {
        const std::string text = call.kind == Call::Kind::Double     ? "d"
                                 : call.kind == Call::Kind::Redouble ? "r"
                                 : call.kind == Call::Kind::Pass     ? "p"
                                                                     : text_of(call);
        commands += command("mb", text);
    }
    return commands + kLineEnd;
}

std::optional<int> tricks_of(const Board& board) {
    if (board.result || !board.contract || !board.play || !board.play->complete()) return board.result;
    return board.play->tricks_of(board.contract->declarer, board.contract->trump());
}

std::string play(const Board& board) {
    std::string commands;
    for (std::size_t i = 0; i < board.play->cards.size(); ++i) {
        commands += command("pc", text_of(board.play->cards[i]));
        const std::string texts = texts_at(board, {Place::Kind::Card, static_cast<int>(i) + 1});
        const bool ends_line = i % kSeatCount == kSeatCount - 1 || i + 1 == board.play->cards.size();
        commands += texts.empty() && ends_line ? kLineEnd : texts;
    }
    return commands;
}

// "4HXS=", "3NW-1": the file's results carry a contract where there is no bidding.
std::string result_of(const Board& board) {
    if (board.passed_out) return "PASS";
    if (!board.contract) return {};
    std::string contract = text_of(*board.contract) + letter_of(board.contract->declarer);
    const auto tricks = tricks_of(board);
    if (!tricks) return contract;
    const int beyond = *tricks - 6 - board.contract->bid.level;
    return contract + (beyond == 0 ? "=" : (beyond > 0 ? "+" : "") + std::to_string(beyond));
}

std::string lin_board(const Board& board) {
    std::string text = command("qx", "o" + board.board) + kLineEnd;
    if (board.deal) text += command("md", hands(board));
    text += vulnerable(board) + command("ah", "Board " + board.board) + kLineEnd;
    text += texts_at(board, {Place::Kind::Question, 0});
    if (board.auction) text += bidding(*board.auction);
    if (board.play && board.contract) text += play(board);
    const std::string answer = texts_at(board, {Place::Kind::Answer, 0});
    const auto tricks = tricks_of(board);
    if (tricks || !answer.empty()) text += command("mc", tricks ? std::to_string(*tricks) : "") + kLineEnd;
    return text + answer;
}

}  // namespace

std::string lin_file(const std::vector<Board>& boards) {
    std::string text;
    if (std::ranges::any_of(boards, [](const Board& board) { return !board.auction; })) {
        std::string results;
        for (const Board& board : boards)
            results += (&board == &boards.front() ? "" : ",") + result_of(board);
        text = command("rs", results) + kLineEnd;
    }
    for (const Board& board : boards)
        text += lin_board(board);
    return text;
}

}  // namespace exchange
