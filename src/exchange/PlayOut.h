#pragma once

#include "exchange/Board.h"

// Plays that end before the last card, brought to their end. The board has a whole deal, a contract and a legal play.
namespace exchange {

// With at most one card left in each hand the rest is played as it must be, and told in the notes.
void play_last_cards(Board& board);

// The rest on best play of all hands; a text at the first of those cards says so.
void play_out(Board& board);

}  // namespace exchange
