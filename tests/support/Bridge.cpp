#include "support/Bridge.h"

#include <algorithm>
#include <numeric>

namespace bridge {

std::string Card::letter() const { return std::string(1, "23456789TBVHA"[rank - 2]); }
std::string Card::in_grid() const { return std::string(1, "SHRK"[suit]) + " " + letter(); }

int Trick::winner(std::optional<int> trump) const {
    int best = leader;
    for (int step = 1; step < 4; ++step) {
        const int seat = (leader + step) % 4;
        const Card& card = cards[seat];
        const Card& top = cards[best];
        const bool higher = card.suit == top.suit && card.rank > top.rank;
        const bool ruffs = trump && card.suit == *trump && top.suit != *trump;
        if (higher || ruffs) best = seat;
    }
    return best;
}

std::vector<Trick> random_play(const Deal& deal, std::mt19937& random) {
    auto hands = deal.hands;
    std::vector<Trick> play;
    int leader = deal.leader;
    for (int number = 0; number < 13; ++number) {
        Trick trick{leader, {}};
        std::optional<int> led;
        for (int step = 0; step < 4; ++step) {
            const int seat = (leader + step) % 4;
            std::vector<Card> choice;
            std::ranges::copy_if(hands[seat], std::back_inserter(choice), [&](const Card& c) { return c.suit == led; });
            if (choice.empty()) choice = hands[seat];
            const Card card = choice[random() % choice.size()];
            std::erase(hands[seat], card);
            trick.cards[seat] = card;
            if (!led) led = card.suit;
        }
        play.push_back(trick);
        leader = trick.winner(deal.trump);
    }
    return play;
}

Deal Deal::random(unsigned seed, int leader, std::optional<int> trump) {
    std::mt19937 random(seed);
    std::vector<int> numbers(52);
    std::iota(numbers.begin(), numbers.end(), 0);
    std::ranges::shuffle(numbers, random);
    Deal deal;
    deal.leader = leader;
    deal.trump = trump;
    for (int seat = 0; seat < 4; ++seat) {
        std::vector<int> hand(numbers.begin() + seat * 13, numbers.begin() + (seat + 1) * 13);
        std::ranges::sort(hand, {}, [](int n) { return n / 13 * 13 - n % 13; });
        for (const int number : hand)
            deal.hands[seat].push_back({number / 13, number % 13 + 2});
    }
    deal.play = random_play(deal, random);
    return deal;
}

void Deal::write(Program& program, const std::string& name) const {
    const std::string stem = "RVLX/Spellen/" + name + "/" + name;
    const Card& lead = play[0].cards[leader];
    static const char* const kWords[] = {"2", "3", "4", "5", "6", "7", "8", "9", "T", "Boer", "Vrouw", "Heer", "Aas"};
    program.write(stem + " Contract.txt",
                  std::string(kSeatNames[(leader + 3) % 4]) + " 4 " + (trump ? kSuitNames[*trump] : "SA") + "\r\n");
    program.write(stem + " Uitkomst.txt",
                  std::string(kSeatNames[leader]) + " - " + std::to_string(lead.suit) + kWords[lead.rank - 2] + "\r\n");
    std::string lines;
    for (const auto& hand : hands) {
        for (int suit = 0; suit < 4; ++suit) {
            for (const Card& card : hand) {
                if (card.suit == suit) lines += card.letter();
            }
            lines += "\r\n";
        }
    }
    program.write(stem + " handen.txt", lines);
    program.write(stem + " vraag.txt", "\r\nHoe speelt u dit?\r\n");
    program.write(stem + " antwoord.txt", "\r\nMet beleid.\r\n");
    std::string bids = "Noord\r\n";
    for (int line = 0; line < 36; ++line)
        bids += line % 9 == 0 ? "pas~~\r\n" : "~~\r\n";
    program.write(stem + " bieding.txt", bids);
}

std::string Deal::label(int seat, const Card& card) const {
    int index = 0;
    for (const Card& held : hands[seat]) {
        if (held == card) break;
        if (held.suit == card.suit) ++index;
    }
    return std::string("frmTavrin03.lbl") + kSuitNames[card.suit] + kSeatNames[seat] + "(" + std::to_string(index) +
           ")";
}

std::string Deal::row(const Trick& trick) {
    std::string row;
    for (int step = 0; step < 4; ++step)
        row += std::to_string((trick.leader + step) % 4 + 1);
    for (const Card& card : trick.cards)
        row += "|" + std::to_string(card.code());
    return row;
}

}  // namespace bridge
