// Bridge facts about the sample deals. The folders are read here and nothing of the program is used, so that a fault in
// its readers cannot hide a fault in the samples.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "base/Text.h"
#include "forms/TextMeasure.h"
#include "support/Bridge.h"

namespace {

namespace fs = std::filesystem;

constexpr int seat_count = 4;
constexpr int max_rounds = 9;
constexpr int no_trump_strain = 4;
constexpr std::size_t record_length = 532;
// The box of the texts at the table holds nine lines.
constexpr double box_width = 5325;
constexpr std::size_t box_lines = 9;

const std::array<std::string, 4> seat_words{"Noord", "Oost", "Zuid", "West"};
const std::array<std::string, 5> strain_words{"Klaveren", "Ruiten", "Harten", "Schoppen", "SA"};
const std::string ranks = "23456789TBVHA";

using bridge::Card;
using Hand = std::vector<Card>;

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> pieces{""};
    for (char c : text) {
        if (c == separator)
            pieces.emplace_back();
        else
            pieces.back() += c;
    }
    return pieces;
}

int index_of(const auto& words, const std::string& word) {
    const auto found = std::find(words.begin(), words.end(), word);
    return found == words.end() ? -1 : static_cast<int>(found - words.begin());
}

std::string bytes_of(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct Deal {
    fs::path folder;
    std::string name() const { return folder.filename().string(); }
    fs::path file(const std::string& suffix) const { return folder / (name() + " " + suffix + ".txt"); }
    bool is_package() const { return name().starts_with("QVT_"); }

    std::vector<std::string> lines(const std::string& suffix) const {
        std::string text = bytes_of(file(suffix));
        std::erase(text, '\r');
        std::vector<std::string> result = split(text, '\n');
        result.pop_back();
        return result;
    }
};

std::vector<Deal> deals_under(const std::string& sub_folder) {
    std::vector<Deal> deals;
    for (const auto& entry : fs::directory_iterator(fs::path(SAMPLES_DIR) / sub_folder))
        deals.push_back({entry.path()});
    std::sort(deals.begin(), deals.end(), [](const Deal& a, const Deal& b) { return a.folder < b.folder; });
    return deals;
}

std::vector<Deal> companion_deals() { return deals_under("RVLX/Spellen"); }
std::vector<Deal> packages() { return deals_under("aftavrin"); }

std::vector<Deal> all_deals() {
    std::vector<Deal> deals = companion_deals();
    std::ranges::copy(packages(), std::back_inserter(deals));
    return deals;
}

std::array<Hand, 4> hands_of(const Deal& deal) {
    std::array<Hand, 4> hands;
    const auto lines = deal.lines("handen");
    for (std::size_t i = 0; i < std::min<std::size_t>(lines.size(), 16); ++i)
        for (char value : lines[i])
            hands[i / 4].push_back({static_cast<int>(i % 4), static_cast<int>(ranks.find(value)) + 2});
    return hands;
}

struct Contract {
    int declarer = -1;
    int level = 0;
    int strain = -1;
    auto operator<=>(const Contract&) const = default;
};

Contract contract_of(const Deal& deal) {
    const auto words = split(deal.lines("Contract").at(0), ' ');
    if (words.size() != 3) return {};
    return {index_of(seat_words, words[0]), std::stoi(words[1]), index_of(strain_words, words[2])};
}

struct Lead {
    int seat = -1;
    Card card{};
};

Lead lead_of(const Deal& deal) {
    const std::string line = deal.lines("Uitkomst").at(0);
    const std::size_t dash = line.find(" - ");
    if (dash == std::string::npos || dash + 4 >= line.size()) return {};
    return {index_of(seat_words, line.substr(0, dash)),
            {line[dash + 3] - '0', static_cast<int>(ranks.find(line[dash + 4])) + 2}};
}

struct Auction {
    std::optional<Contract> contract;  // empty if a call was not allowed or the bidding does not end
};

// Plays the bidding through call by call. Row r of the four columns is round r; empty cells may only stand before the
// dealer's first call and behind the last pass.
Auction auction_of(const Deal& deal) {
    const auto lines = deal.lines("bieding");
    Auction auction;
    int highest = -1;
    int bidder = -1;
    int doubles = 0;
    int passes = 0;
    bool started = false;
    bool ended = false;
    std::map<std::pair<int, int>, int> first_to_name;  // partnership and strain
    for (int turn = 0; turn < max_rounds * seat_count; ++turn) {
        const int seat = turn % seat_count;
        const int round = turn / seat_count;
        const auto fields = split(lines.at(static_cast<std::size_t>(1 + seat * max_rounds + round)), '~');
        if (fields.size() != 3) return {};
        const std::string& call = fields[0];
        if (call.empty() || call == "-") {
            const bool before_dealer = !started && round == 0 && (call == "-") == (seat == 0);
            if (!before_dealer && !(ended && call.empty())) return {};
            continue;
        }
        if (!started && seat_words[static_cast<std::size_t>(seat)] != lines[0]) return {};
        if (ended) return {};
        started = true;
        if (call == "pas") {
            ++passes;
        } else if (call == "dbl" || call == "rdbl") {
            const bool own_side = bidder % 2 == seat % 2;
            if (bidder < 0 || doubles != (call == "dbl" ? 0 : 1) || own_side != (call == "rdbl")) return {};
            ++doubles;
            passes = 0;
        } else {
            const int level = std::stoi(call);
            const int strain = std::stoi(fields[1]);
            const int height = level * 5 + strain;
            if (level < 1 || level > 7 || strain > no_trump_strain || height <= highest) return {};
            highest = height;
            bidder = seat;
            doubles = 0;
            passes = 0;
            first_to_name.try_emplace({seat % 2, strain}, seat);
        }
        ended = bidder >= 0 && passes == 3;
    }
    if (ended) {
        const int strain = highest % 5;
        auction.contract = Contract{first_to_name.at({bidder % 2, strain}), highest / 5, strain};
    }
    return auction;
}

TEST(Samples, CompanionIsRecognisedByAProgramFileThatIsNotEmpty) {
    EXPECT_GT(fs::file_size(fs::path(SAMPLES_DIR) / "RVLX/RVLX.exe"), 0U);
}

TEST(Samples, EveryTextLineEndsInCrLf) {
    for (const auto& entry : fs::recursive_directory_iterator(SAMPLES_DIR)) {
        if (entry.path().extension() != ".txt" || entry.path().string().ends_with(" informatie.txt")) continue;
        SCOPED_TRACE(entry.path().string());
        const std::string text = bytes_of(entry.path());
        EXPECT_TRUE(text.ends_with("\r\n"));
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '\n') {
                EXPECT_TRUE(i > 0 && text[i - 1] == '\r') << "byte " << i;
            }
        }
    }
}

TEST(Samples, FourHandsMakeAPackOfCards) {
    for (const Deal& deal : all_deals()) {
        SCOPED_TRACE(deal.name());
        ASSERT_EQ(deal.lines("handen").size(), 16U);
        std::set<int> pack;
        for (const Hand& hand : hands_of(deal)) {
            EXPECT_EQ(hand.size(), 13U);
            EXPECT_TRUE(std::ranges::is_sorted(hand, {}, [](Card card) { return card.suit * 20 - card.rank; }));
            for (const Card& card : hand)
                pack.insert(card.code());
        }
        EXPECT_EQ(pack.size(), 52U);
    }
}

TEST(Samples, AuctionIsLegalAndEndsInTheContract) {
    for (const Deal& deal : all_deals()) {
        SCOPED_TRACE(deal.name());
        ASSERT_EQ(deal.lines("bieding").size(), 37U);
        const Auction auction = auction_of(deal);
        ASSERT_TRUE(auction.contract.has_value());
        EXPECT_EQ(*auction.contract, contract_of(deal));
    }
}

TEST(Samples, LeaderSitsAfterTheDeclarerAndHoldsTheLead) {
    for (const Deal& deal : all_deals()) {
        SCOPED_TRACE(deal.name());
        const Lead lead = lead_of(deal);
        ASSERT_EQ(lead.seat, (contract_of(deal).declarer + 1) % seat_count);
        EXPECT_EQ(std::ranges::count(hands_of(deal)[static_cast<std::size_t>(lead.seat)], lead.card), 1);
    }
}

// The preparation screen drops the first two characters of both texts.
TEST(Samples, QuestionAndAnswerBeginWithAnEmptyLine) {
    for (const Deal& deal : all_deals()) {
        SCOPED_TRACE(deal.name());
        for (const std::string suffix : {"vraag", "antwoord"}) {
            const auto lines = deal.lines(suffix);
            ASSERT_GE(lines.size(), 3U) << suffix;
            EXPECT_EQ(lines[0], "") << suffix;
            EXPECT_NE(lines[1], "") << suffix;
        }
    }
}

TEST(Samples, PackageKeepsTheFilesOfItsCompanionDeal) {
    for (const Deal& package : packages()) {
        SCOPED_TRACE(package.name());
        ASSERT_TRUE(package.is_package());
        const Deal source{fs::path(SAMPLES_DIR) / "RVLX/Spellen" / package.name().substr(4)};
        for (const std::string suffix : {"Contract", "Uitkomst", "handen", "bieding", "vraag", "antwoord"}) {
            EXPECT_FALSE(bytes_of(source.file(suffix)).empty()) << suffix;
            EXPECT_EQ(bytes_of(package.file(suffix)), bytes_of(source.file(suffix))) << suffix;
        }
    }
}

TEST(Samples, RecordedPlayFollowsTheRules) {
    for (const Deal& package : packages()) {
        SCOPED_TRACE(package.name());
        const auto rows = package.lines("aftavrin");
        ASSERT_EQ(rows.size(), 13U);
        const Contract contract = contract_of(package);
        const Lead lead = lead_of(package);
        auto hands = hands_of(package);
        bridge::Trick trick{lead.seat, {}};
        int declarer_tricks = 0;
        for (const std::string& row : rows) {
            SCOPED_TRACE(row);
            const auto fields = split(row, '|');
            for (std::size_t seat = 0; seat < seat_count; ++seat) {
                const int number = std::stoi(fields.at(seat + 1)) - 2201;
                trick.cards[seat] = {number / 13, number % 13 + 2};
            }
            EXPECT_EQ(bridge::Deal::row(trick), row) << "the order of the seats";
            const Card& led = trick.cards[static_cast<std::size_t>(trick.leader)];
            EXPECT_TRUE(row != rows[0] || led == lead.card);
            for (std::size_t seat = 0; seat < seat_count; ++seat) {
                const Card& played = trick.cards[seat];
                const bool could_follow = std::ranges::count(hands[seat], led.suit, &Card::suit) > 0;
                EXPECT_TRUE(played.suit == led.suit || !could_follow) << "revoke of seat " << seat;
                EXPECT_EQ(std::erase(hands[seat], played), 1U) << "card not held by seat " << seat;
            }
            const bool no_trump = contract.strain == no_trump_strain;
            trick.leader = trick.winner(no_trump ? std::nullopt : std::optional(3 - contract.strain));
            declarer_tricks += trick.leader % 2 == contract.declarer % 2;
        }
        EXPECT_GE(declarer_tricks, contract.level + 6);
        // The table gives the last trick to Noord-Zuid in every deal; with these its counters come out true.
        EXPECT_EQ(trick.leader % 2, 0);
    }
}

TEST(Samples, CommentsFillTheirRecordsAndFitTheBox) {
    for (const Deal& package : packages()) {
        SCOPED_TRACE(package.name());
        const std::string bytes = bytes_of(package.file("informatie"));
        ASSERT_EQ(bytes.size(), 27664U);
        int comments = 0;
        for (std::size_t n = 1; n <= 52; ++n) {
            SCOPED_TRACE("card " + std::to_string(n));
            const auto fields = split(bytes.substr((n - 1) * record_length, record_length), '|');
            ASSERT_EQ(fields.size(), 2U);
            EXPECT_EQ(fields[0], std::to_string(n));
            const std::size_t length = fields[1].find_last_not_of(' ') + 1;
            comments += length > 0;
            EXPECT_LE(length, 260U);
            EXPECT_LE(forms::box_lines(base::replaced(fields[1].substr(0, length), "~", "\r\n"), box_width, 12).size(),
                      box_lines);
        }
        EXPECT_GE(comments, 8);
    }
}

}  // namespace
