#include "exchange/Play.h"

#include <gtest/gtest.h>

#include "base/Text.h"

namespace {

using namespace exchange;

std::vector<Card> cards_of(const std::string& text) {
    std::vector<Card> cards;
    for (const std::string& card : base::split(text, " "))
        cards.push_back(*card_of(card));
    return cards;
}

// Noord holds all spades, Oost all hearts, Zuid all diamonds, West all clubs, but for the cards that change hands.
Deal deal_of_suits(const std::vector<std::pair<const char*, char>>& moved = {}) {
    Deal deal;
    for (const Seat seat : kSeats) {
        for (int rank = kLowestRank; rank <= kAce; ++rank)
            deal.of(seat).add({static_cast<Suit>(seat), rank});
    }
    for (const auto& [card, seat] : moved) {
        deal.of(*deal.holder(*card_of(card))).remove(*card_of(card));
        deal.of(*seat_of(seat)).add(*card_of(card));
    }
    return deal;
}

struct Taken {
    const char* cards;  // led by East
    char trump;         // '-' for none
    char winner;
};

TEST(Trick, GoesToTheHighestTrumpOrElseTheHighestOfTheSuitLed) {
    for (const Taken& row : {Taken{"H4 HK HT HA", '-', 'N'}, Taken{"H4 SA CA DA", '-', 'E'},
                             Taken{"H4 S2 C3 HA", 'S', 'S'}, Taken{"H4 S2 S3 HA", 'S', 'W'},
                             Taken{"H4 HA S2 SA", 'H', 'S'}, Taken{"H4", 'S', 'E'}, Taken{"H4 C2 C9 CT", 'C', 'N'}}) {
        EXPECT_EQ(letter_of((Trick{Seat::East, cards_of(row.cards)}.winner(suit_of(row.trump)))), row.winner)
            << row.cards;
    }
}

TEST(Play, IsLedByTheWinnerOfTheTrickBefore) {
    const Play play{Seat::West, cards_of("C2 S2 H2 D2 CA S3 H3 D3 C3")};
    const auto tricks = play.tricks(Suit::Hearts);
    ASSERT_EQ(tricks.size(), 3U);
    EXPECT_EQ(tricks[1].leader, Seat::East) << "who ruffed";
    EXPECT_EQ(tricks[2].leader, Seat::West) << "whose heart won";
    EXPECT_EQ(play.tricks_of(Seat::East, Suit::Hearts), 2);
    EXPECT_EQ(play.tricks_of(Seat::North, Suit::Hearts), 0);
}

TEST(Play, IsHeldAgainstTheHandsAndTheRules) {
    const Deal deal = deal_of_suits({{"C2", 'N'}, {"S2", 'W'}});
    for (const auto& [cards, problem] : {std::pair{"CA C2 H2 D2", ""},
                                         {"CA S3 H2 D2", "card 2 (S3): N does not follow suit"},
                                         {"CA C2 D2", "card 3 (D2): E does not hold it"},
                                         {"CA C2 H2 D2 CA", "card 5 (CA): W does not hold it"}}) {
        EXPECT_EQ((Play{Seat::West, cards_of(cards)}.problem(deal, std::nullopt)), problem) << cards;
    }
    EXPECT_EQ((Play{Seat::West, cards_of("CA C2 H2 D2")}.rest_of(deal).of(Seat::North).count()), 12);
}

TEST(Deal, IsWholeOrSaysWhatIsWrong) {
    Deal deal = deal_of_suits();
    EXPECT_EQ(deal.problem(), "");
    deal.of(Seat::East).add({Suit::Spades, kAce});
    EXPECT_EQ(deal.problem(), "SA is held twice");
    deal.of(Seat::North).remove({Suit::Spades, kAce});
    EXPECT_EQ(deal.problem(), "hand of N has 12 cards");
}

TEST(Deal, GivesTheRestToTheHandThatIsMissing) {
    Deal deal = deal_of_suits();
    const Hand south = deal.of(Seat::South);
    deal.of(Seat::South) = {};
    deal.complete();
    EXPECT_EQ(deal.of(Seat::South), south);
    deal.of(Seat::South) = deal.of(Seat::West) = {};
    deal.complete();
    EXPECT_EQ(deal.of(Seat::South).count(), 0) << "nobody can tell two hands apart";
}

}  // namespace
