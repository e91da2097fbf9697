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
    const char* suffix;
    std::string bytes;
};

// " Contract.txt", " Uitkomst.txt", " handen.txt", " bieding.txt", " vraag.txt" and " antwoord.txt" of a board that is
// not refused. Texts at cards, for which they have no place, stand at the end of the answer. What had to be written
// otherwise is added to the notes.
std::vector<DealFile> companion_files(const Board& board, std::vector<Remark>& notes);

// The eight files of a lesson: those, without the texts at cards, and " aftavrin.txt" and " informatie.txt". The play
// is complete.
std::vector<DealFile> lesson_files(const Board& board, std::vector<Remark>& notes);

}  // namespace exchange
