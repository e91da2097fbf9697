#pragma once

#include <algorithm>
#include <sstream>

#include "Harness.h"
#include "base/Text.h"
#include "exchange/DealFiles.h"
#include "exchange/LessonReader.h"
#include "exchange/Lines.h"
#include "exchange/PbnReader.h"
#include "exchange/PbnWriter.h"
#include "exchange/PlayOut.h"

// What holds for the boards of any file, whatever stands in it.
namespace fuzz {

inline void require_sound(const exchange::Board& board) {
    for (const exchange::PlacedText& text : board.texts) {
        require(exchange::is_utf8(text.text), "a text is UTF-8");
        const bool at_card = text.place.kind == exchange::Place::Kind::Card;
        const int last = board.play ? static_cast<int>(board.play->cards.size()) : 0;
        require(!at_card || (text.place.card >= 1 && text.place.card <= last), "a text stands at a card");
    }
    for (const exchange::Remark& note : board.notes)
        require(exchange::is_utf8(note.text), "a note is UTF-8");
    if (board.error) require(exchange::is_utf8(board.error->text), "an error is UTF-8");
    if (board.error) return;
    if (board.deal && !board.unfit) require(board.deal->problem().empty(), "a deal has 52 cards");
    if (board.auction) require(board.auction->problem().empty(), "an auction is legal");
    if (board.auction && board.auction->over())
        require(board.auction->contract() == board.contract, "a contract is the auction's");
    if (board.auction && board.contract) require(board.auction->may_end_in(*board.contract), "bidding goes on to it");
    if (!board.play || board.play->cards.empty()) return;
    require(board.contract && board.play->leader == board.contract->leader(), "declarer's left leads");
    require(board.play->problem(*board.deal, board.contract->trump()).empty(), "a play is legal");
}

inline void require_files(exchange::Board board) {
    const auto lines_of = [](const std::string& bytes) { return std::ranges::count(bytes, '\n'); };
    exchange::play_last_cards(board);
    std::vector<exchange::Remark> notes;
    const auto files = exchange::companion_files(board, notes);
    for (const exchange::DealFile& file : files) {
        require(base::replaced(file.bytes, "\r\n", "").find_first_of("\r\n~|") == std::string::npos ||
                    file.suffix == " bieding.txt",
                "a file has whole lines, and no sign with a meaning");
        if (file.suffix == " handen.txt") require(lines_of(file.bytes) == 16, "a line a suit");
        if (file.suffix == " bieding.txt") require(lines_of(file.bytes) == 37, "nine rounds");
    }
    if (!board.play->complete()) return;
    const std::string records = exchange::lesson_files(board, notes).back().bytes;
    require(records.size() == 52U * 532U, "52 records");
    for (std::size_t card = 1; card <= 52; ++card) {
        const std::string record = records.substr((card - 1) * 532, 532);
        require(base::numeric_value(record) == static_cast<int>(card) && std::ranges::count(record, '|') == 1,
                "a record a card");
    }
}

// Whatever files a board's own parts bring back, they go out and come back once more.
inline void require_own_files(const exchange::Board& board) {
    std::vector<exchange::Remark> notes;
    const exchange::Lesson lesson = exchange::lesson_of("QVT_Spel 001", exchange::lesson_files(board, notes));
    if (!lesson.has_play()) return;
    std::istringstream stream(exchange::pbn_game(lesson));
    const auto again = exchange::lesson_files(*exchange::PbnReader(stream).next(), notes);
    require(again.size() == lesson.files.size(), "the same files");
    for (const exchange::DealFile& file : lesson.files) {
        const auto same = std::ranges::find(again, file.suffix, &exchange::DealFile::suffix);
        require(same != again.end() && same->bytes == file.bytes, "the same bytes");
    }
}

template <class Reader>
void read_boards(std::string_view bytes) {
    std::istringstream stream{std::string(bytes)};
    Reader reader(stream);
    while (auto board = reader.next()) {
        require_sound(*board);
        if (!exchange::refusal(*board) && board->own.empty()) require_files(*board);
        if (!board->own.empty()) require_own_files(*board);
    }
}

}  // namespace fuzz
