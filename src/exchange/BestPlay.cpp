#include "exchange/BestPlay.h"

#include <cstdlib>

#include "exchange/DoubleDummy.h"

namespace exchange {

BestPlay best_play(const Board& board) {
    const Deal& deal = *board.deal;
    const Contract& contract = *board.contract;
    const Play play = board.play.value_or(Play{contract.leader(), {}});
    const std::vector<int> tricks = tricks_card_by_card(deal, contract, play);
    BestPlay result{.tricks = tricks.front()};
    if (play.complete()) result.played = tricks.back();
    Play before{contract.leader(), {}};
    for (std::size_t i = 0; i < play.cards.size(); ++i) {
        const Card& card = play.cards[i];
        if (tricks[i] != tricks[i + 1]) {
            CostlyCard costly{
                static_cast<int>(i) + 1, *deal.holder(card), card, std::abs(tricks[i] - tricks[i + 1]), {}};
            for (const RatedCard& best : best_cards(deal, contract, before))
                costly.best.push_back(best.card);
            result.costly.push_back(std::move(costly));
        }
        before.cards.push_back(card);
    }
    return result;
}

}  // namespace exchange
