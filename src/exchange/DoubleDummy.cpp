#include "exchange/DoubleDummy.h"

#include <dds/dll.h>

#include <algorithm>
#include <array>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <tuple>

#include "base/Fout.h"

namespace exchange {

namespace {

constexpr int kNoTrump = 4;

// The library's working memories, by number; each serves one call at a time.
class Memories {
public:
    Memories() {
        SetResources(0, static_cast<int>(std::max(1U, std::thread::hardware_concurrency())));
        DDSInfo info{};
        GetDDSInfo(&info);
        count_ = std::max(1, info.noOfThreads);
        for (int number = count_ - 1; number >= 0; --number)
            free_.push_back(number);
    }

    int count() const { return count_; }

    int take() {
        std::unique_lock lock(mutex_);
        given_back_.wait(lock, [&] { return !free_.empty(); });
        const int number = free_.back();
        free_.pop_back();
        return number;
    }

    void give_back(int number) {
        {
            const std::scoped_lock lock(mutex_);
            free_.push_back(number);
        }
        given_back_.notify_one();
    }

private:
    int count_ = 1;
    std::mutex mutex_;
    std::condition_variable given_back_;
    std::vector<int> free_;
};

Memories& memories() {
    static Memories all;
    return all;
}

class Memory {
public:
    Memory() : number_(memories().take()) {}
    ~Memory() { memories().give_back(number_); }
    Memory(const Memory&) = delete;
    Memory& operator=(const Memory&) = delete;
    int number() const { return number_; }

private:
    int number_;
};

void expect_success(int code) {
    if (code == RETURN_NO_FAULT) return;
    std::array<char, 80> text{};
    ErrorMessage(code, text.data());
    throw base::Fout(base::FoutNummer::Internal, std::string("double dummy: ") + text.data());
}

// Where a play stands.
struct Position {
    Position(const exchange::Deal& deal, const Contract& contract, const Play& play)
        : hands(play.rest_of(deal)), running{contract.leader(), {}}, declarer(contract.declarer) {
        const auto trump = contract.trump();
        for (const Trick& trick : play.tricks(trump)) {
            if (!trick.complete()) {
                running = trick;
                break;
            }
            const Seat winner = trick.winner(trump);
            if (same_side(winner, declarer)) ++made;
            running = Trick{winner, {}};
        }
    }

    Seat turn() const { return running.turn(); }
    // The running one included.
    int tricks_left() const { return hands.of(turn()).count(); }
    bool over() const { return tricks_left() == 0; }
    // Tricks of the declarer's side in all, where the side on turn still makes that many.
    int in_all(int still) const { return made + (same_side(turn(), declarer) ? still : tricks_left() - still); }

    exchange::Deal hands;
    Trick running;
    Seat declarer;
    int made = 0;  // by the declarer's side
};

int number_of(std::optional<Suit> trump) { return trump ? index_of(*trump) : kNoTrump; }

void put_hands(const exchange::Deal& hands, unsigned (&cards)[DDS_HANDS][DDS_SUITS]) {
    for (const Seat seat : kSeats) {
        for (const Card& card : hands.of(seat).cards())
            cards[index_of(seat)][index_of(card.suit)] |= 1U << static_cast<unsigned>(card.rank);
    }
}

enum class Wanted { OneBest = 1, AllBest = 2, All = 3 };

// The cards of the seat on turn, one of each that are equally good, with their tricks from here on.
futureTricks solved(const Position& position, std::optional<Suit> trump, Wanted wanted) {
    constexpr int kMost = -1;   // the most tricks, not a number that is aimed at
    constexpr int kAlways = 1;  // look for the tricks where there is but one card too
    ::deal board{};
    board.trump = number_of(trump);
    board.first = index_of(position.running.leader);
    for (std::size_t i = 0; i < position.running.cards.size(); ++i) {
        board.currentTrickSuit[i] = index_of(position.running.cards[i].suit);
        board.currentTrickRank[i] = position.running.cards[i].rank;
    }
    put_hands(position.hands, board.remainCards);
    futureTricks result{};
    const Memory memory;
    expect_success(SolveBoard(board, kMost, static_cast<int>(wanted), kAlways, &result, memory.number()));
    return result;
}

std::vector<RatedCard> rated(const Position& position, std::optional<Suit> trump, Wanted wanted) {
    std::vector<RatedCard> cards;
    if (position.over()) return cards;
    const futureTricks result = solved(position, trump, wanted);
    const Hand& hand = position.hands.of(position.turn());
    for (int i = 0; i < result.cards; ++i) {
        for (const Card& card : hand.cards(static_cast<Suit>(result.suit[i]))) {
            const bool equal = (static_cast<unsigned>(result.equals[i]) >> static_cast<unsigned>(card.rank) & 1U) != 0;
            if (equal || card.rank == result.rank[i]) cards.push_back({card, position.in_all(result.score[i])});
        }
    }
    std::ranges::sort(cards, {}, [](const RatedCard& rated) { return std::tuple(rated.card.suit, -rated.card.rank); });
    return cards;
}

}  // namespace

int solvers() { return memories().count(); }

int best_tricks(const Deal& deal, const Contract& contract, const Play& play) {
    const Position position(deal, contract, play);
    if (position.over()) return position.made;
    return position.in_all(solved(position, contract.trump(), Wanted::OneBest).score[0]);
}

std::vector<RatedCard> rated_cards(const Deal& deal, const Contract& contract, const Play& play) {
    return rated(Position(deal, contract, play), contract.trump(), Wanted::All);
}

std::vector<RatedCard> best_cards(const Deal& deal, const Contract& contract, const Play& play) {
    return rated(Position(deal, contract, play), contract.trump(), Wanted::AllBest);
}

std::vector<int> tricks_card_by_card(const Deal& deal, const Contract& contract, const Play& play) {
    ::deal board{};
    board.trump = number_of(contract.trump());
    board.first = index_of(contract.leader());
    put_hands(deal, board.remainCards);
    playTraceBin trace{};
    trace.number = static_cast<int>(play.cards.size());
    for (std::size_t i = 0; i < play.cards.size(); ++i) {
        trace.suit[i] = index_of(play.cards[i].suit);
        trace.rank[i] = play.cards[i].rank;
    }
    solvedPlay result{};
    {
        const Memory memory;
        expect_success(AnalysePlayBin(board, trace, &result, memory.number()));
    }
    std::vector<int> tricks(result.tricks, result.tricks + result.number);
    // The library stops where the last trick plays itself.
    tricks.resize(play.cards.size() + 1, tricks.back());
    return tricks;
}

Play played_out(const Deal& deal, const Contract& contract, const Play& play) {
    Play whole = play;
    whole.leader = contract.leader();
    for (;;) {
        const auto cards = best_cards(deal, contract, whole);
        if (cards.empty()) return whole;
        whole.cards.push_back(std::ranges::min(cards, {}, [](const RatedCard& rated) {
                                  return std::tuple(rated.card.rank, rated.card.suit);
                              }).card);
    }
}

}  // namespace exchange
