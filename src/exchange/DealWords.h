#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/Text.h"
#include "exchange/Auction.h"
#include "exchange/Cards.h"

// The words of the program's own files, each in the order of its type.
namespace exchange {

inline constexpr std::array<const char*, 4> kSeatWords{"Noord", "Oost", "Zuid", "West"};
inline constexpr std::array<const char*, 4> kSuitWords{"Schoppen", "Harten", "Ruiten", "Klaveren"};
inline constexpr std::array<const char*, 5> kStrainWords{"Klaveren", "Ruiten", "Harten", "Schoppen", "SA"};
// From the two up: in a hand, and in the line of the opening lead.
inline constexpr std::string_view kValueLetters = "23456789TBVHA";
inline constexpr std::array<const char*, 13> kValueWords{"2", "3", "4",    "5",     "6",    "7",  "8",
                                                         "9", "T", "Boer", "Vrouw", "Heer", "Aas"};

inline std::string word_of(Seat seat) { return kSeatWords[static_cast<std::size_t>(seat)]; }
inline std::string word_of(Suit suit) { return kSuitWords[static_cast<std::size_t>(suit)]; }
inline std::string word_of(Strain strain) { return kStrainWords[static_cast<std::size_t>(strain)]; }
inline std::size_t value_of(const Card& card) { return static_cast<std::size_t>(card.rank - kLowestRank); }

// The place of a word in such a table, in any case.
template <std::size_t count>
std::optional<int> place_of_word(const std::array<const char*, count>& words, std::string_view word) {
    const auto found =
        std::ranges::find_if(words, [&](const char* each) { return base::equal_ignoring_case(each, word); });
    return found == words.end() ? std::nullopt : std::optional(static_cast<int>(found - words.begin()));
}
inline std::optional<int> rank_of_value_letter(char letter) {
    const std::size_t found = kValueLetters.find(letter);
    return found == std::string_view::npos ? std::nullopt : std::optional(static_cast<int>(found) + kLowestRank);
}

// The question's first line where the contract is doubled: the contract's own file has no place for it.
inline std::string_view line_of(Doubling doubling) {
    return doubling == Doubling::None      ? ""
           : doubling == Doubling::Doubled ? "Het contract is gedoubleerd."
                                           : "Het contract is geredoubleerd.";
}

// Behind the name of a deal, as its files are written; they are looked for in any case. Those of a companion's deal
// come first, then the two that make a lesson of it.
namespace suffix {
inline constexpr const char* kContract = " Contract.txt";
inline constexpr const char* kLead = " Uitkomst.txt";
inline constexpr const char* kHands = " handen.txt";
inline constexpr const char* kBidding = " bieding.txt";
inline constexpr const char* kQuestion = " vraag.txt";
inline constexpr const char* kAnswer = " antwoord.txt";
inline constexpr const char* kPlay = " aftavrin.txt";
inline constexpr const char* kCardTexts = " informatie.txt";
}  // namespace suffix
inline constexpr std::array kSuffixes{suffix::kContract, suffix::kLead,   suffix::kHands, suffix::kBidding,
                                      suffix::kQuestion, suffix::kAnswer, suffix::kPlay,  suffix::kCardTexts};

}  // namespace exchange
