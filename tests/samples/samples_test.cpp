// Bridge facts about the sample deals. This file reads the folders and judges the play by itself and uses nothing of
// the program, so that a fault in the program's readers cannot hide a fault in the samples.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr int seat_count = 4;
constexpr int max_rounds = 9;
constexpr int no_trump_strain = 4;
constexpr std::size_t record_length = 532;
// The comment box holds nine lines of Verdana 12; 38 average letters fill its width.
constexpr std::size_t box_columns = 38;
constexpr std::size_t box_lines = 9;

const std::array<std::string, 4> seat_words{"Noord", "Oost", "Zuid", "West"};
const std::array<std::string, 5> strain_words{"Klaveren", "Ruiten", "Harten", "Schoppen", "SA"};
const std::string ranks = "23456789TBVHA";

// Suits count from Schoppen (0) down to Klaveren (3), ranks from the two (0) to the ace (12).
struct Card {
    int suit = 0;
    int rank = 0;
    auto operator<=>(const Card&) const = default;
};

Card card_of_code(const std::string& code) {
    const int number = std::stoi(code) - 2201;
    return {number / 13, number % 13};
}

int strain_of_suit(int suit) { return 3 - suit; }

using Hands = std::array<std::set<Card>, seat_count>;

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

Hands hands_of(const Deal& deal) {
    Hands hands;
    const auto lines = deal.lines("handen");
    for (std::size_t i = 0; i < std::min<std::size_t>(lines.size(), 16); ++i)
        for (char value : lines[i])
            hands[i / 4].insert({static_cast<int>(i % 4), static_cast<int>(ranks.find(value))});
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
    Card card;
};

Lead lead_of(const Deal& deal) {
    const std::string line = deal.lines("Uitkomst").at(0);
    const std::size_t dash = line.find(" - ");
    if (dash == std::string::npos || dash + 4 >= line.size()) return {};
    return {index_of(seat_words, line.substr(0, dash)),
            {line[dash + 3] - '0', static_cast<int>(ranks.find(line[dash + 4]))}};
}

struct Auction {
    std::optional<Contract> contract;  // empty if a call was not allowed or the bidding does not end
    int rounds = 0;
    bool doubled = false;
    bool alerted = false;
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
        auction.alerted |= !fields[2].empty();
        if (seat == 0 && !call.empty()) auction.rounds = round + 1;
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
            auction.doubled = true;
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

struct Trick {
    std::vector<int> order;
    std::array<Card, seat_count> cards{};
};

std::vector<Trick> tricks_of(const Deal& package) {
    std::vector<Trick> tricks;
    for (const std::string& line : package.lines("aftavrin")) {
        const auto fields = split(line, '|');
        Trick trick;
        for (char digit : fields.at(0))
            trick.order.push_back(digit - '1');
        for (std::size_t seat = 0; seat < seat_count; ++seat)
            trick.cards[seat] = card_of_code(fields.at(seat + 1));
        tricks.push_back(trick);
    }
    return tricks;
}

int winner_of(const Trick& trick, int trump_strain) {
    int best = trick.order.front();
    for (int seat : trick.order) {
        const Card& candidate = trick.cards[static_cast<std::size_t>(seat)];
        const Card& holder = trick.cards[static_cast<std::size_t>(best)];
        const bool trumps = strain_of_suit(candidate.suit) == trump_strain && candidate.suit != holder.suit;
        if (trumps || (candidate.suit == holder.suit && candidate.rank > holder.rank)) best = seat;
    }
    return best;
}

std::size_t lines_in_box(const std::string& comment) {
    std::size_t count = 0;
    for (const std::string& paragraph : split(comment, '~')) {
        std::istringstream words(paragraph);
        std::string word;
        std::size_t column = 0;
        ++count;
        while (words >> word) {
            if (column > 0 && column + 1 + word.size() > box_columns) {
                ++count;
                column = 0;
            }
            column += word.size() + (column > 0 ? 1 : 0);
        }
    }
    return count;
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
        std::set<Card> pack;
        for (const auto& hand : hands_of(deal)) {
            EXPECT_EQ(hand.size(), 13U);
            pack.insert(hand.begin(), hand.end());
        }
        EXPECT_EQ(pack.size(), 52U);
        for (const std::string& line : deal.lines("handen"))
            EXPECT_TRUE(std::ranges::is_sorted(line, [](char a, char b) { return ranks.find(a) > ranks.find(b); }))
                << line;
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
        EXPECT_TRUE(hands_of(deal)[static_cast<std::size_t>(lead.seat)].contains(lead.card));
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
        const auto tricks = tricks_of(package);
        ASSERT_EQ(tricks.size(), 13U);
        const Contract contract = contract_of(package);
        const Lead lead = lead_of(package);
        EXPECT_EQ(tricks[0].cards[static_cast<std::size_t>(lead.seat)], lead.card);
        Hands hands = hands_of(package);
        int leader = lead.seat;
        int declarer_tricks = 0;
        for (std::size_t t = 0; t < tricks.size(); ++t) {
            SCOPED_TRACE("trick " + std::to_string(t + 1));
            const Trick& trick = tricks[t];
            ASSERT_EQ(trick.order.size(), 4U);
            const int suit_led = trick.cards[static_cast<std::size_t>(leader)].suit;
            for (int i = 0; i < seat_count; ++i) {
                const int seat = (leader + i) % seat_count;
                ASSERT_EQ(trick.order[static_cast<std::size_t>(i)], seat);
                auto& hand = hands[static_cast<std::size_t>(seat)];
                const Card& played = trick.cards[static_cast<std::size_t>(seat)];
                const bool could_follow = std::ranges::any_of(hand, [&](const Card& c) { return c.suit == suit_led; });
                EXPECT_TRUE(played.suit == suit_led || !could_follow) << "revoke of seat " << seat;
                EXPECT_EQ(hand.erase(played), 1U) << "card not held by seat " << seat;
            }
            leader = winner_of(trick, contract.strain);
            declarer_tricks += leader % 2 == contract.declarer % 2;
        }
        EXPECT_GE(declarer_tricks, contract.level + 6);
        // The table gives the last trick to Noord-Zuid in every deal; with these its counters come out true.
        EXPECT_EQ(leader % 2, 0);
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
            EXPECT_LE(lines_in_box(fields[1].substr(0, length)), box_lines);
        }
        EXPECT_GE(comments, 8);
    }
}

TEST(Samples, TogetherCoverWhatTheScreensCanShow) {
    std::set<int> leaders;
    std::set<int> strains;
    std::set<int> rounds;
    std::set<std::size_t> suit_lengths;
    bool doubled = false;
    bool alerted = false;
    for (const Deal& deal : companion_deals()) {
        leaders.insert(lead_of(deal).seat);
        strains.insert(contract_of(deal).strain);
        const Auction auction = auction_of(deal);
        rounds.insert(auction.rounds);
        doubled |= auction.doubled;
        alerted |= auction.alerted;
        for (const std::string& line : deal.lines("handen"))
            suit_lengths.insert(line.size());
    }
    EXPECT_EQ(leaders, (std::set<int>{0, 1, 2, 3}));
    EXPECT_EQ(strains, (std::set<int>{0, 1, 2, 3, 4}));
    EXPECT_TRUE(suit_lengths.contains(0));
    EXPECT_TRUE(suit_lengths.contains(9));
    EXPECT_TRUE(rounds.contains(1));
    EXPECT_TRUE(rounds.contains(max_rounds));
    EXPECT_TRUE(doubled);
    EXPECT_TRUE(alerted);
    EXPECT_GE(companion_deals().size(), 8U);
    EXPECT_GE(packages().size(), 4U);
}

}  // namespace
