#pragma once

#include <array>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "support/Program.h"

// The rules of the game, written apart from the program as the tests' own judge.
namespace bridge {

inline constexpr std::array kSeatNames{"Noord", "Oost", "Zuid", "West"};
inline constexpr std::array kSuitNames{"Schoppen", "Harten", "Ruiten", "Klaveren"};

struct Card {
    int suit;  // 0 Schoppen to 3 Klaveren
    int rank;  // 2 to 14
    int code() const { return 2199 + rank + 13 * suit; }
    std::string letter() const;   // "A", "H", "V", "B", "T", "9" to "2"
    std::string in_grid() const;  // "S A"
    friend bool operator==(const Card&, const Card&) = default;
};

struct Trick {
    int leader;                 // 0 Noord to 3 West
    std::array<Card, 4> cards;  // by seat
    int winner(std::optional<int> trump) const;
};

struct Deal {
    std::array<std::vector<Card>, 4> hands;  // by seat, suits together, high cards first
    int leader = 3;
    std::optional<int> trump;
    std::vector<Trick> play;

    static Deal random(unsigned seed, int leader, std::optional<int> trump);
    // Writes it as a deal of the companion in RVLX/Spellen.
    void write(Program& program, const std::string& name) const;
    // Name of the label of a card in its owner's hand.
    std::string label(int seat, const Card& card) const;
    // The line of the trick in a package.
    static std::string row(const Trick& trick);
};

// Any legal play of the hands, at random.
std::vector<Trick> random_play(const Deal& deal, std::mt19937& random);

}  // namespace bridge
