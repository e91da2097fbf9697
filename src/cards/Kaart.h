#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/Colour.h"
#include "resources/Bericht.h"
#include "resources/Plaatje.h"

// Codes of seats, suits and cards.
//
// Seats run clockwise from 1 Noord over 2 Oost and 3 Zuid to 4 West; the odd ones are Noord-Zuid. A card number runs
// from 1 to 52 through Schoppen, Harten, Ruiten and Klaveren, each from the two up to the ace; the card code is 2200
// more, and is at the same time the number of the card's large picture.
namespace cards {

inline constexpr int kNoord = 1;
inline constexpr int kOost = 2;
inline constexpr int kZuid = 3;
inline constexpr int kWest = 4;
inline constexpr std::array kPlaatsen{kNoord, kOost, kZuid, kWest};

inline constexpr int kCodeBasis = resources::plaatje::kGroteKaarten;
inline constexpr int kKaarten = 52;
inline constexpr int kKaartenPerKleur = 13;
inline constexpr int kKaartenPerHand = 13;
inline constexpr int kSlagen = 13;

// The suits in the order of the card numbers. The digit of an opening lead counts in this order, the strain digit of
// a bid in the opposite one, and open hands are shown in a third; the three are deliberately not unified.
enum class Kleur { Schoppen, Harten, Ruiten, Klaveren };
inline constexpr std::array kKleuren{Kleur::Schoppen, Kleur::Harten, Kleur::Ruiten, Kleur::Klaveren};
inline constexpr std::array kToonVolgorde{Kleur::Schoppen, Kleur::Harten, Kleur::Klaveren, Kleur::Ruiten};

struct KleurGegevens {
    resources::Bericht letter;
    resources::Bericht woord;
    const char* naam;         // the word in a contract, a title and the names of controls
    int plaatje;              // picture of the suit symbol
    base::Colour tekstkleur;  // black or pure red
};
const KleurGegevens& gegevens(Kleur kleur);

// The card number of a code as it stands in a file; of a code far out of range a number that is out of range as well.
int nummer_van(std::string_view kaartcode);
// Suit of a card number; any number below 14 is Schoppen, any above 39 Klaveren.
Kleur kleur_van(int kaartnummer);

// Code of a card from its rank value, 2 to 14, and its suit.
constexpr int code_van(int rang, Kleur kleur) {
    return kCodeBasis - 1 + rang + kKaartenPerKleur * static_cast<int>(kleur);
}

// The message that lies a step behind a named one: those of the seats, and of the value letters, follow each other.
constexpr resources::Bericht verder(resources::Bericht bericht, int stap) {
    return static_cast<resources::Bericht>(static_cast<int>(bericht) + stap);
}
// The value letter of a rank value 10 to 14 ("T", "B", "V", "H", "A").
constexpr resources::Bericht bericht_van_rang(int rang) { return verder(resources::Bericht::LetterTien, 10 - rang); }

// A seat's word and its letter.
constexpr resources::Bericht bericht_van_plaats(int plaats) { return verder(resources::Bericht::Noord, plaats - 1); }
constexpr resources::Bericht letter_van_plaats(int plaats) {
    return verder(resources::Bericht::LetterNoord, plaats - 1);
}
constexpr int volgende_plaats(int plaats) { return plaats % 4 + 1; }
constexpr int vorige_plaats(int plaats) { return (plaats + 2) % 4 + 1; }

// Value words from the two up: "2" to "10", "Boer", "Vrouw", "Heer", "Aas".
const std::array<std::string, 13>& waarde_woorden();

// Rank value, 2 to 14, of a value word in the line of an opening lead, in lower case; 0 for any other text.
int rang_van_uitkomst(std::string_view woord);

// What the card is called, for a screen reader: "Schoppen Aas". Empty for a code that is no card.
std::string titel(int kaartcode);

}  // namespace cards
