#include "deals/Listing.h"

#include <optional>
#include <vector>

#include "deals/Json.h"
#include "deals/Telling.h"
#include "exchange/DealFiles.h"
#include "exchange/PbnWriter.h"

namespace deals {

namespace {

using exchange::Board;
using exchange::Place;

std::string text_of_lead(const Board& board) {
    const auto lead = exchange::lead_of(board);
    return lead ? text_of(*lead) : std::string();
}

std::string contract_of(const Board& board) {
    if (board.contract) return text_of(*board.contract);
    return board.passed_out ? "P" : "";
}

std::string quoted_or_null(const std::string& text) { return text.empty() ? "null" : quoted(text); }

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
        text_of_lead(board),
        std::to_string(board.play ? board.play->cards.size() : 0),
        std::to_string(board.texts.size()),
    };
    std::string line;
    for (const std::string& field : fields)
        line += (line.empty() ? "" : "\t") + one_line(field);
    return board.error ? line + "\t" + one_line(remark(*board.error)) : line;
}

std::string json_of(int number, const Board& board) {
    const std::string null = "null";
    std::string json = "{\"number\":" + std::to_string(number);
    const auto add = [&](const char* name, const std::string& value) {
        json += ",\"" + std::string(name) + "\":" + value;
    };
    add("board", quoted_or_null(board.board));
    add("dealer", board.dealer ? quoted(std::string(1, letter_of(*board.dealer))) : null);
    add("vulnerable", board.vulnerable ? quoted(pbn_word(*board.vulnerable)) : null);
    add("contract", quoted_or_null(contract_of(board)));
    add("declarer", board.contract ? quoted(std::string(1, letter_of(board.contract->declarer))) : null);
    add("lead", quoted_or_null(text_of_lead(board)));
    add("hands", board.deal ? quoted(pbn_hands(*board.deal, exchange::Seat::North)) : null);
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
