#include "desktop/keys/TypedCard.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// What comes of the characters, typed 100 milliseconds apart; a blank is a long pause.
std::string cards_of(const char* characters) {
    desktop::keys::TypedCard typed;
    std::string cards;
    qint64 now = 0;
    for (const char character : std::string(characters)) {
        now += character == ' ' ? 5000 : 100;
        if (character == ' ') continue;
        if (const auto card = typed.take(QLatin1Char(character), now)) cards += {card->suit, card->value, ','};
    }
    return cards;
}

TEST(TypedCard, IsSuitAndThenValue) {
    const struct {
        const char* characters;
        const char* cards;
    } rows[] = {{"hv", "HV,"},        {"SAr9", "SA,R9,"}, {"hh", "HH,"},   // the second H is the king
                {"khhk2", "KH,K2,"},  {"st", "ST,"},      {"s10", "ST,"},  //
                {"s1k9", "K9,"},      {"srk2", "K2,"},    {"s1 0", ""},    // a half-typed card gives way
                {"h v", ""},          {"h hv", "HV,"},    {"5v", ""},      //
                {"h1v", ""},          {"hxv", ""},        {"s0s1", ""},    //
                {"ss10s10", "ST,ST,"}};
    for (const auto& row : rows)
        EXPECT_EQ(cards_of(row.characters), row.cards) << row.characters;
}

}  // namespace
