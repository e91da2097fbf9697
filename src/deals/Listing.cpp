#include "deals/Listing.h"

#include <array>
#include <cstdio>
#include <functional>
#include <optional>
#include <vector>

#include "base/Text.h"

namespace deals {

namespace {

using exchange::Board;
using exchange::Place;

std::string lead_of(const Board& board) {
    return board.play && !board.play->cards.empty() ? text_of(board.play->cards.front()) : std::string();
}

std::string hands_of(const exchange::Deal& deal) {
    std::string text = "N:";
    for (const exchange::Seat seat : exchange::kSeats) {
        if (seat != exchange::Seat::North) text += " ";
        if (deal.of(seat).empty()) {
            text += "-";
            continue;
        }
        for (const exchange::Suit suit : exchange::kSuits) {
            if (suit != exchange::Suit::Spades) text += ".";
            for (const exchange::Card& card : deal.of(seat).cards(suit))
                text += exchange::letter_of_rank(card.rank);
        }
    }
    return text;
}

std::string contract_of(const Board& board) {
    if (board.contract) return text_of(*board.contract);
    return board.passed_out ? "P" : "";
}

// A string of JSON.
std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\') {
            result += '\\';
            result += character;
        } else if (static_cast<unsigned char>(character) < 0x20) {
            std::array<char, 8> escaped{};
            std::snprintf(escaped.data(), escaped.size(), "\\u%04x", static_cast<unsigned>(character));
            result += escaped.data();
        } else {
            result += character;
        }
    }
    return result + "\"";
}

std::string quoted_or_null(const std::string& text) { return text.empty() ? "null" : quoted(text); }

template <class Items, class Text>
std::string array_of(const Items& items, Text text) {
    std::string result;
    for (const auto& item : items)
        result += (result.empty() ? "" : ",") + text(item);
    return "[" + result + "]";
}

std::string vulnerable_of(const Board& board) {
    static constexpr std::array kWords{"None", "NS", "EW", "All"};
    return board.vulnerable ? kWords[static_cast<std::size_t>(*board.vulnerable)] : "";
}

std::string place_of(const Place& place) {
    switch (place.kind) {
        case Place::Kind::Question:
            return "question";
        case Place::Kind::Answer:
            return "answer";
        case Place::Kind::Card:
            break;
    }
    return "card " + std::to_string(place.card);
}

std::string remark(const exchange::Remark& remark) {
    return "line " + std::to_string(remark.line) + ": " + remark.text;
}

}  // namespace

std::string line_of(int number, const Board& board) {
    const std::vector<std::string> fields{
        std::to_string(number),
        board.board,
        board.dealer ? std::string(1, letter_of(*board.dealer)) : "",
        contract_of(board),
        board.contract ? std::string(1, letter_of(board.contract->declarer)) : "",
        lead_of(board),
        std::to_string(board.play ? board.play->cards.size() : 0),
        std::to_string(board.texts.size()),
    };
    std::string line;
    for (const std::string& field : fields)
        line += (line.empty() ? "" : "\t") + replaced(field, "\t", " ");
    return board.error ? line + "\t" + remark(*board.error) : line;
}

std::string json_of(int number, const Board& board) {
    const std::string null = "null";
    std::string json = "{\"number\":" + std::to_string(number);
    const auto add = [&](const char* name, const std::string& value) {
        json += ",\"" + std::string(name) + "\":" + value;
    };
    add("board", quoted_or_null(board.board));
    add("dealer", board.dealer ? quoted(std::string(1, letter_of(*board.dealer))) : null);
    add("vulnerable", quoted_or_null(vulnerable_of(board)));
    add("contract", quoted_or_null(contract_of(board)));
    add("declarer", board.contract ? quoted(std::string(1, letter_of(board.contract->declarer))) : null);
    add("lead", quoted_or_null(lead_of(board)));
    add("hands", board.deal ? quoted(hands_of(*board.deal)) : null);
    add("auction",
        board.auction ? array_of(board.auction->calls, [](const auto& call) { return quoted(text_of(call)); }) : null);
    add("play",
        board.play ? array_of(board.play->cards, [](const auto& card) { return quoted(text_of(card)); }) : null);
    add("cards", std::to_string(board.play ? board.play->cards.size() : 0));
    add("texts", array_of(board.texts, [](const auto& text) {
            return "{\"place\":" + quoted(place_of(text.place)) + ",\"text\":" + quoted(text.text) + "}";
        }));
    std::vector<exchange::Remark> notes = board.notes;
    if (board.unfit) notes.push_back(*board.unfit);
    add("notes", array_of(notes, [](const auto& note) { return quoted(remark(note)); }));
    add("error", board.error ? quoted(remark(*board.error)) : null);
    return json + "}";
}

}  // namespace deals
