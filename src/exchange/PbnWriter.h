#pragma once

#include <string>

#include "exchange/Board.h"
#include "exchange/LessonReader.h"

// Boards as games of PBN 2.1: Windows-1252, lines end in CR LF and have at most 255 characters as far as words allow. A
// comment cannot hold braces; round ones stand for them.
namespace exchange {

// What a file begins with.
std::string pbn_head();

// The question stands in front of the auction, texts at cards behind their cards, and the answer behind the play.
std::string pbn_game(const Board& board);
// The same with tags of the program's own for what the board of a lesson does not tell, so that it comes back byte by
// byte.
std::string pbn_game(const Lesson& lesson);

// "N:AK32.T9... ...": the hands from that seat on; "-" for one that is not known.
std::string pbn_hands(const Deal& deal, Seat first);
// "Pass", "X", "XX", "1H", "3NT".
std::string pbn_call(const Call& call);
// "None", "NS", "EW", "All".
std::string pbn_word(Vulnerable vulnerable);

}  // namespace exchange
