#include "exchange/Auction.h"

#include <gtest/gtest.h>

#include "base/Text.h"

namespace {

using namespace exchange;

Auction auction_of(char dealer, const std::string& calls) {
    Auction auction{*seat_of(dealer), {}};
    for (const std::string& call : base::split(calls, " "))
        auction.calls.push_back(*call_of(call));
    return auction;
}

struct Bidding {
    const char* name;
    char dealer;
    const char* calls;
    const char* contract;  // with the declarer behind it; "" for none
    bool over;
    const char* problem;
};

class Auctions : public testing::TestWithParam<Bidding> {};

TEST_P(Auctions, EndAsTheRulesTell) {
    const Bidding& row = GetParam();
    const Auction auction = auction_of(row.dealer, row.calls);
    const auto contract = auction.contract();
    EXPECT_EQ(contract ? text_of(*contract) + letter_of(contract->declarer) : "", row.contract);
    EXPECT_EQ(auction.over(), row.over);
    EXPECT_EQ(auction.problem(), row.problem);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Auctions,
    testing::Values(
        Bidding{"PassedOut", 'N', "P P P P", "", true, ""},
        Bidding{"FirstOfTheSideToNameTheStrain", 'W', "P 1S P 2H P 4S P P P", "4SN", true, ""},
        Bidding{"PartnerNamedItFirst", 'S', "1C 1H 2D P 3C P 5C P P P", "5CS", true, ""},
        Bidding{"OpponentsNamedTheSameStrainBefore", 'E', "1NT X 2S 3S P P P", "3SN", true, ""},
        Bidding{"DoubledAndRedoubled", 'N', "1H P P X XX P P P", "1HXXN", true, ""},
        Bidding{"NewBidEndsTheDouble", 'N', "1H X 2H P P P", "2HN", true, ""},
        Bidding{"NotOverYet", 'N', "1H P P", "1HN", false, ""},
        Bidding{"ThreePassesFirstGoOn", 'N', "P P P 1C P P P", "1CW", true, ""},
        Bidding{"LowerBid", 'N', "2H 2D", "2DE", false, "call 2 (2D): not above 2H"},
        Bidding{"SameBid", 'N', "2H 2H", "2HE", false, "call 2 (2H): not above 2H"},
        Bidding{"DoubleOfPartner", 'N', "1H P X", "1HXN", false, "call 3 (X): nothing to double"},
        Bidding{"DoubleOfADouble", 'N', "1H X P X", "1HXN", false, "call 4 (X): nothing to double"},
        Bidding{"DoubleOfNothing", 'N', "P X", "", false, "call 2 (X): nothing to double"},
        Bidding{"RedoubleByTheDoublers", 'N', "1H X P XX", "1HXXN", false, "call 4 (XX): nothing to redouble"},
        Bidding{"RedoubleWithoutDouble", 'N', "1H P P XX", "1HXXN", false, "call 4 (XX): nothing to redouble"},
        Bidding{"CallBehindTheEnd", 'N', "1H P P P P", "1HN", true, "call 5 (P): the auction is over"}),
    [](const auto& info) { return info.param.name; });

TEST(Auction, MayEndInWhatItCanGoOnTo) {
    for (const auto& [calls, contract, may] : {std::tuple{"1H P", "S4H", true},
                                               {"1H P", "N4H", false},
                                               {"1H P", "N4S", true},
                                               {"1H P", "W4H", true},
                                               {"1H P", "S1H", true},
                                               {"1H P 1S", "S1S", false},
                                               {"1H P 1S", "S1H", false},
                                               {"1H X", "S1H", true},
                                               {"P", "W1C", true},
                                               {"P P P P", "W1C", false},
                                               {"1H P P P", "S2H", false}}) {
        const Contract end = *contract_of(contract + 1, *seat_of(contract[0]));
        EXPECT_EQ(auction_of('S', calls).may_end_in(end), may) << calls << " " << contract;
    }
}

TEST(Call, IsReadInEverySpelling) {
    for (const auto& [text, call] : {std::pair{"pass", "P"},
                                     {"PAS", "P"},
                                     {"dbl", "X"},
                                     {"Rdbl", "XX"},
                                     {"1nt", "1N"},
                                     {"3sa", "3N"},
                                     {"7S", "7S"}}) {
        ASSERT_TRUE(call_of(text)) << text;
        EXPECT_EQ(text_of(*call_of(text)), call) << text;
    }
    for (const char* text : {"", "0H", "8C", "1", "1HH", "H1", "NT", "passs"})
        EXPECT_FALSE(call_of(text)) << text;
}

}  // namespace
