#include "exchange/LessonReader.h"

#include <algorithm>

#include "base/Fout.h"
#include "base/Text.h"
#include "cards/Kaart.h"
#include "cards/Kaarten.h"
#include "exchange/BiddingReader.h"
#include "exchange/DealWords.h"
#include "exchange/OwnText.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Paths.h"

namespace exchange {

namespace {

std::vector<std::string> lines_of(const std::string& bytes) {
    std::vector<std::string> lines;
    for (std::string line : base::split(bytes, "\n")) {
        if (line.ends_with('\r')) line.pop_back();
        lines.push_back(std::move(line));
    }
    return lines;
}

// Without the empty line in front of it and the line end behind it.
std::string paragraph(const std::string& bytes) {
    std::string text = text_of_own(bytes);
    if (text.starts_with('\n')) text.erase(0, 1);
    if (text.ends_with('\n')) text.pop_back();
    return text;
}

std::optional<Card> card_of_code(const std::string& code) {
    const int number = cards::nummer_van(code);
    if (number < 1 || number > kCardsInDeck) return std::nullopt;
    return Card{static_cast<Suit>((number - 1) / kCardsInHand), (number - 1) % kCardsInHand + kLowestRank};
}

// A line of the recorded play: who led, and the card of each seat.
struct Row {
    std::optional<Seat> leader{};
    std::array<std::optional<Card>, kSeatCount> cards{};
};

Row row_of(const std::string& line) {
    Row row;
    const base::Pieces pieces = base::split(line, "|");
    const std::string& order = pieces[0];
    if (!order.empty() && order[0] >= '1' && order[0] <= '4') row.leader = static_cast<Seat>(order[0] - '1');
    for (const Seat seat : kSeats) {
        const int piece = index_of(seat) + 1;
        if (piece <= pieces.last()) row.cards[static_cast<std::size_t>(index_of(seat))] = card_of_code(pieces[piece]);
    }
    return row;
}

std::string name_of(Seat seat) { return {letter_of(seat)}; }

class Analysis {
public:
    explicit Analysis(Lesson& lesson) : lesson_(lesson), board_(lesson.board) {}

    void run() {
        const base::Pieces words = base::split(lesson_.name, " ");
        const int number = words.last() < 0 ? 0 : base::numeric_value(words[std::min(words.last(), 1)]);
        if (number > 0) board_.board = std::to_string(number);
        read_rows();
        read_hands();
        read_contract();
        read_bidding();
        if (board_.deal && board_.contract) read_play();
        read_texts();
    }

private:
    const std::string* file(const char* suffix) const {
        const auto found = std::ranges::find(lesson_.files, suffix, &DealFile::suffix);
        return found == lesson_.files.end() ? nullptr : &found->bytes;
    }
    std::string first_line(const char* suffix) const {
        const std::string* const bytes = file(suffix);
        const auto lines = bytes ? lines_of(*bytes) : std::vector<std::string>();
        return lines.empty() ? std::string() : lines.front();
    }
    void problem(std::string text) { lesson_.problems.push_back(std::move(text)); }

    void read_rows() {
        const std::string* const bytes = file(suffix::kPlay);
        for (const std::string& line : bytes ? lines_of(*bytes) : std::vector<std::string>()) {
            if (!base::trimmed(line).empty()) rows_.push_back(row_of(line));
        }
    }

    void read_hands() {
        const std::string* const bytes = file(suffix::kHands);
        auto lines = bytes ? lines_of(*bytes) : std::vector<std::string>();
        lines.resize(kSeatCount * kSuits.size());
        Deal deal;
        for (const Seat seat : kSeats) {
            for (const Suit suit : kSuits) {
                for (const char letter : lines[kSuits.size() * index_of(seat) + index_of(suit)]) {
                    if (const auto rank = rank_of_value_letter(letter)) deal.of(seat).add({suit, *rank});
                }
            }
        }
        std::string wrong = bytes ? deal.problem() : "no hands";
        if (wrong.empty()) {
            board_.deal = deal;
            return;
        }
        // A play to the end has all the hands too.
        deal = {};
        for (const Row& row : rows_) {
            for (const Seat seat : kSeats) {
                if (const auto& card = row.cards[static_cast<std::size_t>(index_of(seat))]) deal.of(seat).add(*card);
            }
        }
        if (deal.problem().empty()) board_.deal = deal;
        if (bytes || !board_.deal) problem(wrong);
    }

    static std::optional<Seat> seat_of_word(const std::string& word) {
        const auto place = place_of_word(kSeatWords, base::trimmed(word));
        return place ? std::optional(static_cast<Seat>(*place)) : std::nullopt;
    }

    // The table works with the opening leader; declarer is the seat before.
    void read_contract() {
        const base::Pieces lead = base::split(first_line(suffix::kLead), "-");
        const auto leader = lead.last() >= 0 ? seat_of_word(lead[0]) : std::nullopt;
        if (lead.last() > 0) lead_ = lead_of(base::trimmed(lead[1]));
        if (!leader || !lead_) problem("no opening lead");

        const std::string line = first_line(suffix::kContract);
        const base::Pieces words = base::split(base::trimmed(line), " ");
        const bool three = words.last() == 2;
        const auto named = three ? seat_of_word(words[0]) : std::nullopt;
        const auto declarer = leader ? std::optional(after(*leader, -1)) : named;
        const int level = three ? base::numeric_value(words[1]) : 0;
        const auto strain = three ? place_of_word(kStrainWords, words[2]) : std::nullopt;
        if (!named || !strain || level < 1 || level > 7)
            problem(line.empty() ? "no contract" : "not a contract: " + platform::to_utf8(line));
        if (!declarer || !strain || level < 1 || level > 7) return;
        board_.contract = Contract{{level, static_cast<Strain>(*strain)}, Doubling::None, *declarer};
        if (named && *named != *declarer) {
            problem("the contract is played by " + name_of(*named) + ", but " + name_of(board_.contract->leader()) +
                    " leads");
        }
    }

    // A suit digit and a value word.
    static std::optional<Card> lead_of(const std::string& text) {
        if (text.size() < 2 || text[0] < '0' || text[0] > '3') return std::nullopt;
        const auto rank = rank_of_value_letter(text[1]);
        return rank ? std::optional(Card{static_cast<Suit>(text[0] - '0'), *rank}) : std::nullopt;
    }

    void read_bidding() {
        const std::string* const bytes = file(suffix::kBidding);
        if (!bytes) return;
        const Bidding bidding = bidding_of(lines_of(*bytes));
        board_.dealer = bidding.dealer;
        if (!bidding.unreadable.empty()) board_.note(0, "the bidding cannot be read: " + bidding.unreadable);
        if (!bidding.auction) return;
        if (const std::string wrong = bidding.auction->problem(); !wrong.empty()) return problem("bidding: " + wrong);
        const auto contract = bidding.auction->contract();
        if (!bidding.auction->over()) return problem("bidding: the auction is not finished");
        if (!contract) return problem("bidding: passed out");
        if (!board_.contract) return;
        if (contract->bid != board_.contract->bid || contract->declarer != board_.contract->declarer) {
            return problem("bidding: it ends in " + text_of(*contract) + " by " + letter_of(contract->declarer));
        }
        board_.contract = contract;
        board_.auction = bidding.auction;
    }

    void read_play() {
        const Contract& contract = *board_.contract;
        Play play{contract.leader(), {}};
        std::string wrong = has_play() ? take_rows(play) : take_lead(play);
        const std::string against = play.problem(*board_.deal, contract.trump());
        if (!against.empty()) {
            play.cards.resize(static_cast<std::size_t>(base::numeric_value(against.substr(against.find(' '))) - 1));
            wrong = against;
        } else if (wrong.empty() && has_play() && lead_ && *lead_ != play.cards.front()) {
            wrong = "the opening lead is " + text_of(*lead_) + ", the play begins with " + text_of(play.cards.front());
        }
        if (!wrong.empty()) problem(wrong);
        if (!play.cards.empty()) board_.play = play;
    }

    bool has_play() const { return lesson_.has_play(); }

    std::string take_lead(Play& play) const {
        if (lead_) play.cards.push_back(*lead_);
        return {};
    }

    // Gives what ends the play before its time.
    std::string take_rows(Play& play) const {
        const auto trump = board_.contract->trump();
        Seat expected = play.leader;
        for (std::size_t i = 0; i < rows_.size() && i < kTricks; ++i) {
            const std::string where = "trick " + std::to_string(i + 1);
            Trick trick{expected, {}};
            if (rows_[i].leader && *rows_[i].leader != expected)
                return where + " is led by " + name_of(*rows_[i].leader) + " in the record, not by " +
                       name_of(expected);
            while (!trick.complete()) {
                const auto& card = rows_[i].cards[static_cast<std::size_t>(index_of(trick.turn()))];
                if (!rows_[i].leader || !card) return where + " is not recorded";
                trick.cards.push_back(*card);
                play.cards.push_back(*card);
            }
            expected = trick.winner(trump);
        }
        if (rows_.size() != kTricks) return std::to_string(rows_.size()) + " tricks are recorded";
        return {};
    }

    void read_texts() {
        add_text({Place::Kind::Question, 0}, question());
        if (const std::string* const bytes = file(suffix::kCardTexts)) read_card_texts(*bytes);
        if (const std::string* const bytes = file(suffix::kAnswer))
            add_text({Place::Kind::Answer, 0}, paragraph(*bytes));
    }

    std::string question() const {
        const std::string* const bytes = file(suffix::kQuestion);
        std::string text = bytes ? paragraph(*bytes) : std::string();
        const std::string doubling(board_.contract ? line_of(board_.contract->doubling) : "");
        if (!doubling.empty() && (text + "\n").starts_with(doubling + "\n"))
            text.erase(0, std::min(doubling.size() + 1, text.size()));
        return text;
    }

    // A record goes with the card whose number stands at its head.
    void read_card_texts(const std::string& bytes) {
        std::array<std::string, kCardsInDeck> texts;
        for (std::size_t at = 0; at < bytes.size(); at += cards::Kaarten::kRecordLengte) {
            const std::string record = base::trimmed(bytes.substr(at, cards::Kaarten::kRecordLengte));
            const std::size_t bar = record.find('|');
            const int card = base::numeric_value(record);
            if (bar == std::string::npos || card < 1 || card > kCardsInDeck) continue;
            std::string& text = texts[static_cast<std::size_t>(card - 1)];
            if (text.empty()) text = text_of_own(base::trimmed(record.substr(bar + 1)));
        }
        const int played = board_.play ? static_cast<int>(board_.play->cards.size()) : 0;
        int left_out = 0;
        for (int card = 1; card <= kCardsInDeck; ++card) {
            const std::string& text = texts[static_cast<std::size_t>(card - 1)];
            if (card <= played) add_text({Place::Kind::Card, card}, text);
            if (card > played && !text.empty()) ++left_out;
        }
        if (left_out > 0) board_.note(0, std::to_string(left_out) + " texts stand at cards that are not played");
    }

    void add_text(Place place, const std::string& text) {
        if (!text.empty()) board_.texts.push_back({place, text, 0});
    }

    Lesson& lesson_;
    Board& board_;
    std::vector<Row> rows_;
    std::optional<Card> lead_;
};

}  // namespace

bool Lesson::has_play() const {
    return std::ranges::any_of(files, [](const DealFile& file) { return file.suffix == suffix::kPlay; });
}

Lesson lesson_of(std::string name, std::vector<DealFile> files) {
    Lesson lesson{.name = std::move(name), .files = std::move(files)};
    Analysis(lesson).run();
    return lesson;
}

Lesson read_lesson(const std::string& folder) {
    const std::string name = platform::last_part(folder);
    std::vector<DealFile> files;
    for (const char* const suffix : kSuffixes) {
        const std::string path = platform::join_path(folder, name + suffix);
        if (platform::file_length(path) >= 0) files.push_back({suffix, platform::read_file(path)});
    }
    if (files.empty())
        throw base::Fout(base::FoutNummer::FileNotFound, platform::join_path(folder, name + kSuffixes[0]));
    return lesson_of(platform::name_bytes(name), std::move(files));
}

}  // namespace exchange
