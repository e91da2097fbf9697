#pragma once

#include <QString>
#include <optional>

#include "exchange/Auction.h"
#include "exchange/Board.h"

class QPalette;
class QColor;

// Seats, cards and calls as a Dutch player writes and reads them.
namespace deals_desktop {

QString dutch_letter(exchange::Seat seat);  // "N", "O", "Z", "W"
QString dutch_word(exchange::Seat seat);    // "Noord"
QString symbol_of(exchange::Suit suit);
QString spoken(exchange::Suit suit);                     // "harten"
QString text_of_rank(int rank);                          // "A", "H", "V", "B", "10", "9"
QString dutch_text(const exchange::Card& card);          // the suit's symbol and the rank
QString spoken(const exchange::Card& card);              // "harten heer"
QString dutch_text(exchange::Strain strain);             // a symbol, or "SA"
QString spoken(exchange::Strain strain);                 // "Harten", "sans atout"
QString dutch_text(const exchange::Contract& contract);  // "4" and the strain, "X" or "XX"; without the declarer
QString spoken(const exchange::Contract& contract);      // "4 Harten doublet"; without the declarer
QString dutch_text(const exchange::Call& call);          // "pas", "X", "XX", or a bid
QString spoken(const exchange::Call& call);              // "pas", "doublet", "redoublet", "1 Harten"
QString dutch_text(exchange::Vulnerable vulnerable);
// "Vraag", "Antwoord", or the card with its trick.
QString dutch_text(const exchange::Place& place, const exchange::Board& board);

// The ranks of a suit as they are typed: Dutch or English letters, "10" or "T", in any order, "-" or nothing for none.
// Empty for anything else, and for a rank that is named twice.
std::optional<exchange::Hand> typed_suit(exchange::Suit suit, const QString& text);
// A card as it is typed: its suit by the Dutch or English letter or the symbol, and its rank.
std::optional<exchange::Card> typed_card(const QString& text);
QString letters_of(const exchange::Card& card);  // "RA", "H10": as it may be typed

// Red or not, as can be read on that palette.
QColor colour_of(exchange::Suit suit, const QPalette& palette);
bool is_dark(const QPalette& palette);
// The text with the symbols of suits in their colours, as rich text.
QString coloured(const QString& text, const QPalette& palette);

// The bidding as a table of four columns, which West begins, and in words.
QString rich_bidding(const exchange::Auction& auction, const QPalette& palette);
QString spoken_bidding(const exchange::Auction& auction);

}  // namespace deals_desktop
