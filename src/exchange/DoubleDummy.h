#pragma once

#include <vector>

#include "exchange/Auction.h"
#include "exchange/Cards.h"
#include "exchange/Play.h"

// What a play comes to when from a position on every seat plays its best with all cards open (libdds). The deal is a
// whole one, the play legal up to there and led from declarer's left; it may be empty or end anywhere. Tricks are those
// of the declarer's side in the whole deal, those already made included. The functions may be called from any number of
// threads: each waits for one of the library's working memories, of which there is one a processor core. A failure of
// the library is failure 51 with its own words.
namespace exchange {

int best_tricks(const Deal& deal, const Contract& contract, const Play& play);

struct RatedCard {
    Card card{};
    int tricks = 0;  // when this card is played next
};
// Each card that the seat on turn may play, suit by suit and the highest first; none behind the last card.
std::vector<RatedCard> rated_cards(const Deal& deal, const Contract& contract, const Play& play);

// Those of them that are best, and lose nothing.
std::vector<RatedCard> best_cards(const Deal& deal, const Contract& contract, const Play& play);

// The tricks before the first card and behind each card of the play: one number more than it has cards.
std::vector<int> tricks_card_by_card(const Deal& deal, const Contract& contract, const Play& play);

// The play, played out on best play: of cards that are equally good the lowest, and of those the first suit.
Play played_out(const Deal& deal, const Contract& contract, const Play& play);

// How many of these calls can run side by side.
int solvers();

}  // namespace exchange
