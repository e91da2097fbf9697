#pragma once

#include <compare>
#include <optional>
#include <string>
#include <vector>

#include "exchange/Auction.h"
#include "exchange/Cards.h"
#include "exchange/OwnPart.h"
#include "exchange/Play.h"

namespace exchange {

enum class Vulnerable { None, NorthSouth, EastWest, Both };

// Where a text stands: before the play, at a card (1 to 52 in true order), or after the play.
struct Place {
    enum class Kind { Question, Card, Answer };
    Kind kind = Kind::Question;
    int card = 0;
    friend auto operator<=>(const Place&, const Place&) = default;
};

struct PlacedText {
    Place place{};
    std::string text{};  // UTF-8, lines end in "\n"
    int line = 0;        // where it begins in its file
};

// Something that is told of a board, with the line of its file, from 1.
struct Remark {
    int line = 0;
    std::string text{};
};

// One board as a file gives it. What the file does not tell is empty.
struct Board {
    int line = 0;         // where it begins
    std::string board{};  // its number or name in the file
    std::optional<Seat> dealer{};
    std::optional<Vulnerable> vulnerable{};
    std::optional<Deal> deal{};
    std::optional<Auction> auction{};
    std::optional<Contract> contract{};
    bool passed_out = false;
    std::optional<int> result{};  // tricks of the declarer
    std::optional<Play> play{};
    std::vector<PlacedText> texts{};
    std::vector<OwnPart> own{};     // of a lesson that the program exported
    std::vector<Remark> notes{};    // what was mended, cut or left out
    std::optional<Remark> error{};  // against the rules, or not to be understood: the board is no deal
    std::optional<Remark> unfit{};  // sound, but nothing that can become a deal of the program

    // Texts at one place join with a line break.
    void add_text(const PlacedText& text);
    void note(int at, std::string text) { notes.push_back({at, std::move(text)}); }
    // The first error stays.
    void fail(int at, std::string text) {
        if (!error) error = Remark{at, std::move(text)};
    }
};

}  // namespace exchange
