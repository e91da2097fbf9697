#pragma once

#include <string>

#include "exchange/Auction.h"
#include "exchange/Cards.h"

// Cards and calls on the page: what is seen, and the words of a screen reader.
namespace page {

// All faces, the back and the suits, each a symbol that the page shows by its name.
std::string card_symbols();

// The number in the name of a card's face, 1 to 52.
int number_of(const exchange::Card& card);
// "A", "H", "V", "B", "10".
std::string value_letter(int rank);
// "Harten Vrouw".
std::string spoken_name(const exchange::Card& card);

// A suit as a symbol of the page.
std::string drawn(exchange::Suit suit);
using SuitMarkup = std::string (*)(exchange::Suit);

std::string markup(const exchange::Card& card);
std::string markup(const exchange::Call& call, SuitMarkup suit = drawn);
// "Zuid: 4" and the suit.
std::string markup(const exchange::Contract& contract, SuitMarkup suit = drawn);

}  // namespace page
