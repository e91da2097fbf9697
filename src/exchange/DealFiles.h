#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/Board.h"

// A board as the program's own files: the six of a companion's deal, and the two that make a lesson of it.
namespace exchange {

// What the file of a board may lack. Nothing in it overrules the file.
struct Additions {
    std::optional<Contract> contract{};
    std::optional<Card> lead{};
};

// Why a board can become no deal of the program; empty if it can. The reasons are those of the board itself (an error,
// no whole deal, passed out), no contract, no lead, and an auction of more than nine rounds.
std::optional<Remark> refusal(const Board& board);
// The board with what was added; an addition against the file is an error of it.
Board with(const Board& board, const Additions& additions);
// The opening lead: the first card of the play, or the one that was added.
std::optional<Card> lead_of(const Board& board);

// A file of a deal: what stands behind its name, and its bytes in Windows-1252.
struct DealFile {
    std::string suffix;
    std::string bytes;
};

// " Contract.txt", " Uitkomst.txt", " handen.txt", " bieding.txt", " vraag.txt" and " antwoord.txt" of a board that is
// not refused. Texts at cards, for which they have no place, stand at the end of the answer. What had to be written
// otherwise is added to the notes.
std::vector<DealFile> companion_files(const Board& board, std::vector<Remark>& notes);

// Whether the board tells enough for a lesson: it is not refused, and its play is complete.
bool tells_a_lesson(const Board& board);
// Whether the export of a lesson whose play ends early or breaks the rules put its files beside what the board tells:
// then they come back, though the board itself tells no lesson.
bool comes_back_as_exported(const Board& board);

// The eight files of a lesson: those, without the texts at cards, and " aftavrin.txt" and " informatie.txt". A board
// that was exported gives the files that it was exported from, of which some may be missing.
std::vector<DealFile> lesson_files(const Board& board, std::vector<Remark>& notes);
// The same as the board alone tells them; none where it doesn't tell a lesson.
std::vector<DealFile> files_as_told(const Board& board, std::vector<Remark>& notes);

}  // namespace exchange
