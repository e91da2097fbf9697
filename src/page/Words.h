#pragma once

// All words of the page that are not names of seats, suits and cards.
namespace page::words {

inline constexpr const char* kLessons = "Lessen";
inline constexpr const char* kAllLessons = "Alle lessen";
inline constexpr const char* kDeal = "Spel ";
inline constexpr const char* kQuestion = "Vraag";
inline constexpr const char* kAnswer = "Antwoord";
inline constexpr const char* kBidding = "Bieding";
inline constexpr const char* kRound = "Ronde";
inline constexpr const char* kHands = "Handen";
inline constexpr const char* kPlay = "Spelverloop";
inline constexpr const char* kTrick = "Slag";
inline constexpr const char* kContract = "Contract";
inline constexpr const char* kLead = "Uitkomst";
inline constexpr const char* kLeads = "komt uit";
inline constexpr const char* kWins = "wint";
inline constexpr const char* kNone = "geen";

inline constexpr const char* kPass = "pas";
inline constexpr const char* kDouble = "doublet";
inline constexpr const char* kRedouble = "redoublet";
inline constexpr const char* kDoubled = "gedoubleerd";
inline constexpr const char* kRedoubled = "geredoubleerd";

inline constexpr const char* kNorthSouth = "Noord-Zuid";
inline constexpr const char* kEastWest = "Oost-West";
inline constexpr const char* kTricks = "Slagen";
inline constexpr const char* kMakes = "maakt";
inline constexpr const char* kTrickFor = "Slag voor";
inline constexpr const char* kPlays = "speelt";
inline constexpr const char* kDeclarer = "leider";
inline constexpr const char* kDummy = "dummy";

inline constexpr const char* kStart = "Start";
inline constexpr const char* kPause = "Pauze";
inline constexpr const char* kGoOn = "Verder";
inline constexpr const char* kAgain = "Opnieuw";
inline constexpr const char* kBack = "Kaart terug";
inline constexpr const char* kForward = "Kaart vooruit";
inline constexpr const char* kSlower = "Langzamer";
inline constexpr const char* kFaster = "Sneller";
inline constexpr const char* kSeconds = "seconde per kaart";
inline constexpr const char* kControls = "Bediening";

}  // namespace page::words
