#include "exchange/PlayOut.h"

#include "exchange/DoubleDummy.h"

namespace exchange {

namespace {

constexpr std::size_t kCardsBeforeLastTrick = kCardsInDeck - kSeatCount;
constexpr const char* kPlayedOut =
    "Tot hier is het spel gespeeld. De rest is met open kaarten zo goed mogelijk uitgespeeld.";

}  // namespace

void play_last_cards(Board& board) {
    Play& play = *board.play;
    const std::size_t recorded = play.cards.size();
    if (recorded < kCardsBeforeLastTrick || play.complete()) return;
    const Deal rest = play.rest_of(*board.deal);
    const auto trump = board.contract->trump();
    Trick last = recorded > kCardsBeforeLastTrick ? play.tricks(trump).back()
                                                  : Trick{play.tricks(trump).back().winner(trump), {}};
    while (!last.complete()) {
        last.cards.push_back(rest.of(last.turn()).cards().front());
        play.cards.push_back(last.cards.back());
    }
    board.note(board.line, "the play ends with card " + std::to_string(recorded) + "; the last cards follow");
}

void play_out(Board& board) {
    const int first = static_cast<int>(board.play->cards.size()) + 1;
    board.play = played_out(*board.deal, *board.contract, *board.play);
    board.add_text({{Place::Kind::Card, first}, kPlayedOut, board.line});
    board.note(board.line, "the play is played out from card " + std::to_string(first) + " on");
}

}  // namespace exchange
