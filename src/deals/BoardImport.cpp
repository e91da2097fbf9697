#include "deals/BoardImport.h"

#include <algorithm>

#include "deals/Telling.h"
#include "exchange/LessonReader.h"
#include "exchange/PlayOut.h"

namespace deals {

using exchange::Board;

void BoardImport::add(const Board& read, const exchange::Additions& additions, const std::string& file, int number) {
    const Source source{file, number};
    Board board = exchange::with(read, additions);
    if (choices_.as != As::Deals && exchange::comes_back_as_exported(board)) return add_lesson(board, source);
    if (const auto refusal = exchange::refusal(board)) return refuse(board, source, *refusal);
    Board lesson = board;
    exchange::play_last_cards(lesson);
    if (!becomes_lesson(lesson))
        return add(NewDeals::Kind::Deal, exchange::companion_files(board, board.notes), board, source);
    const bool may_be_played_out = choices_.finish && read.play && !read.play->cards.empty();
    if (!lesson.play->complete() && may_be_played_out) exchange::play_out(lesson);
    if (!lesson.play->complete()) return refuse(lesson, source, {lesson.line, "the play is not complete"});
    add_lesson(lesson, source);
}

void BoardImport::add_lesson(Board& board, const Source& source) {
    const auto files = exchange::lesson_files(board, board.notes);
    for (std::string& problem : exchange::lesson_of({}, files).problems)
        board.note(board.line, "against the rules, as it was exported: " + problem);
    add(NewDeals::Kind::Lesson, files, board, source);
}

void BoardImport::add(NewDeals::Kind kind, const std::vector<exchange::DealFile>& files, const Board& board,
                      const Source& source) {
    for (const exchange::Remark& note : board.notes)
        report_.note(note_of(source.file, board, source.number, note));
    deals_.add(kind, files, where(source.file, board, source.number, board.line));
}

void BoardImport::refuse(const Board& board, const Source& source, const exchange::Remark& why) {
    for (const exchange::Remark& note : board.notes)
        report_.note(note_of(source.file, board, source.number, note));
    deals_.refuse(where(source.file, board, source.number, why.line) + why.text);
}

bool BoardImport::becomes_lesson(const Board& board) const {
    if (choices_.as != As::Best) return choices_.as == As::Lessons;
    const bool has_text = std::ranges::any_of(
        board.texts, [](const exchange::PlacedText& text) { return text.place.kind == exchange::Place::Kind::Card; });
    return has_text && (board.play->complete() || choices_.finish);
}

}  // namespace deals
