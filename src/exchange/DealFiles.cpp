#include "exchange/DealFiles.h"

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "cards/Kaart.h"
#include "cards/Kaarten.h"
#include "exchange/CardTexts.h"
#include "exchange/DealWords.h"
#include "exchange/OwnParts.h"
#include "exchange/OwnText.h"
#include "platform/Files.h"

namespace exchange {

namespace {

constexpr int kRounds = 9;  // that the bidding box holds
constexpr const char* kLineEnd = "\r\n";

int code_of(const Card& card) { return cards::code_van(card.rank, static_cast<cards::Kleur>(card.suit)); }

// Rounds begin with Noord.
int rounds_of(const Auction& auction) {
    return (index_of(auction.dealer) + static_cast<int>(auction.calls.size()) + kSeatCount - 1) / kSeatCount;
}

std::string text_at(const Board& board, Place::Kind kind) {
    const auto found = std::ranges::find(board.texts, Place{kind, 0}, &PlacedText::place);
    return found == board.texts.end() ? std::string() : found->text;
}

class Writer {
public:
    Writer(const Board& board, std::vector<Remark>& notes) : board_(board), notes_(notes) {}

    std::string contract() const {
        const Contract& contract = *board_.contract;
        return word_of(contract.declarer) + " " + std::to_string(contract.bid.level) + " " +
               word_of(contract.bid.strain) + kLineEnd;
    }

    std::string lead() const {
        const Card lead = *lead_of(board_);
        return word_of(board_.contract->leader()) + " - " + std::to_string(index_of(lead.suit)) +
               kValueWords[value_of(lead)] + kLineEnd;
    }

    std::string hands() const {
        std::string lines;
        for (const Seat seat : kSeats) {
            for (const Suit suit : kSuits) {
                for (const Card& card : board_.deal->of(seat).cards(suit))
                    lines += kValueLetters[value_of(card)];
                lines += kLineEnd;
            }
        }
        return lines;
    }

    // A first line that nobody reads, and nine cells a seat: text, strain digit and mark. Noord's cell is filled in
    // every round that there is: it alone tells the box which those are.
    std::string bidding() const {
        std::array<std::array<std::string, kRounds>, kSeatCount> cells;
        for (auto& column : cells)
            column.fill("~~");
        if (board_.auction) {
            const Auction& auction = *board_.auction;
            for (std::size_t number = 0; number < auction.calls.size(); ++number) {
                const auto place = static_cast<std::size_t>(index_of(auction.dealer)) + number;
                cells[place % kSeatCount][place / kSeatCount] = cell(auction.calls[number]);
            }
            if (auction.dealer != Seat::North) cells[0][0] = "-~~";
        }
        std::string lines = (board_.dealer ? word_of(*board_.dealer) : "") + kLineEnd;
        for (const auto& column : cells) {
            for (const std::string& text : column)
                lines += text + kLineEnd;
        }
        return lines;
    }

    std::string question() const {
        std::string text = text_at(board_, Place::Kind::Question);
        const std::string doubling(line_of(board_.contract->doubling));
        if (!doubling.empty()) text = doubling + (text.empty() ? "" : "\n") + text;
        return paragraph(text);
    }

    // With the texts at cards, each with its trick and card in front.
    std::string answer(bool with_card_texts) const {
        std::string text = text_at(board_, Place::Kind::Answer);
        if (with_card_texts) {
            for (const PlacedText& placed : board_.texts) {
                if (placed.place.kind != Place::Kind::Card) continue;
                const Card& card = board_.play->cards[static_cast<std::size_t>(placed.place.card - 1)];
                text += (text.empty() ? "" : "\n") + std::string("Slag ") +
                        std::to_string((placed.place.card - 1) / kSeatCount + 1) + ", " + cards::titel(code_of(card)) +
                        ": " + placed.text;
            }
        }
        return paragraph(text);
    }

    std::string own(const std::string& text, int line) const {
        const OwnText own = own_text(text);
        if (!own.lossless) notes_.push_back({line, "a text has signs that the program cannot hold; they became ?"});
        return own.bytes;
    }

private:
    static std::string cell(const Call& call) {
        switch (call.kind) {
            case Call::Kind::Pass:
                return "pas~~";
            case Call::Kind::Double:
                return "dbl~~";
            case Call::Kind::Redouble:
                return "rdbl~~";
            case Call::Kind::Bid:
                break;
        }
        return std::to_string(call.bid.level) + "~" + std::to_string(static_cast<int>(call.bid.strain)) + "~";
    }

    // Behind an empty line: the reader of a deal drops the first two characters.
    std::string paragraph(const std::string& text) const {
        const std::string bytes = own(text, board_.line);
        return kLineEnd + (bytes.empty() ? "" : bytes + kLineEnd);
    }

    const Board& board_;
    std::vector<Remark>& notes_;
};

std::vector<DealFile> files_of(const Writer& writer, bool with_card_texts) {
    return {{suffix::kContract, writer.contract()}, {suffix::kLead, writer.lead()},
            {suffix::kHands, writer.hands()},       {suffix::kBidding, writer.bidding()},
            {suffix::kQuestion, writer.question()}, {suffix::kAnswer, writer.answer(with_card_texts)}};
}

}  // namespace

std::optional<Card> lead_of(const Board& board) {
    if (!board.play || board.play->cards.empty()) return std::nullopt;
    return board.play->cards.front();
}

Board with(const Board& board, const Additions& additions) {
    Board added = board;
    if (additions.contract) {
        const auto& given = *additions.contract;
        if (board.contract && *board.contract != given) {
            added.fail(board.line,
                       "the file says " + text_of(*board.contract) + " by " + letter_of(board.contract->declarer));
        } else if (board.passed_out) {
            added.fail(board.line, "the file says passed out");
        } else if (board.auction && !board.auction->may_end_in(given)) {
            added.fail(board.line, "the auction in the file cannot end in it");
        }
        added.contract = given;
    }
    if (additions.lead && added.contract) {
        const auto in_file = lead_of(board);
        if (in_file && *in_file != *additions.lead)
            added.fail(board.line, "the file says the lead is " + text_of(*in_file));
        const Seat leader = added.contract->leader();
        if (added.deal && !added.deal->of(leader).holds(*additions.lead)) {
            added.fail(board.line, std::string(1, letter_of(leader)) + " does not hold " + text_of(*additions.lead));
        }
        if (!in_file) added.play = Play{leader, {*additions.lead}};
    }
    return added;
}

std::optional<Remark> refusal(const Board& board) {
    if (board.error) return board.error;
    if (board.unfit) return board.unfit;
    if (!board.deal) return Remark{board.line, "no deal"};
    if (board.passed_out) return Remark{board.line, "passed out"};
    if (!board.contract) return Remark{board.line, "no contract"};
    if (!lead_of(board)) return Remark{board.line, "no opening lead"};
    if (board.auction && rounds_of(*board.auction) > kRounds) {
        return Remark{board.line,
                      "an auction of " + std::to_string(rounds_of(*board.auction)) + " rounds; nine are the most"};
    }
    return std::nullopt;
}

std::vector<DealFile> companion_files(const Board& board, std::vector<Remark>& notes) {
    return files_of(Writer(board, notes), true);
}

bool tells_a_lesson(const Board& board) { return !refusal(board) && board.play->complete(); }

bool comes_back_as_exported(const Board& board) {
    return !board.error && !tells_a_lesson(board) && std::ranges::any_of(board.own, [](const OwnPart& part) {
        return part.suffix == suffix::kPlay && stands_alone(part);
    });
}

namespace {

std::string play_rows(const Board& board) {
    std::string rows;
    for (const Trick& trick : board.play->tricks(board.contract->trump())) {
        for (int place = 0; place < kSeatCount; ++place)
            rows += std::to_string(index_of(after(trick.leader, place)) + 1);
        for (const Seat seat : kSeats) {
            const Card card = *trick.card_of(seat);
            rows += "|" + std::to_string(code_of(card));
        }
        rows += kLineEnd;
    }
    return rows;
}

std::string card_records(const Board& board, std::vector<Remark>& notes) {
    std::string records;
    int number = 0;
    for (const std::string& text : card_texts(board, notes))
        records += platform::record_bytes(std::to_string(++number) + "|" + text, cards::Kaarten::kRecordLengte);
    return records;
}

}  // namespace

std::vector<DealFile> files_as_told(const Board& board, std::vector<Remark>& notes) {
    if (!tells_a_lesson(board)) return {};
    std::vector<DealFile> files = files_of(Writer(board, notes), false);
    files.push_back({suffix::kPlay, play_rows(board)});
    files.push_back({suffix::kCardTexts, card_records(board, notes)});
    return files;
}

std::vector<DealFile> lesson_files(const Board& board, std::vector<Remark>& notes) {
    std::vector<Remark> made;
    std::vector<DealFile> files = files_as_told(board, made);
    // What was cut to be made is there again where all is put back.
    std::vector<Remark> not_put_back;
    put_back(board.own, files, not_put_back);
    const bool texts_are_back =
        not_put_back.empty() && std::ranges::find(board.own, suffix::kCardTexts, &OwnPart::suffix) != board.own.end();
    if (!texts_are_back) notes.insert(notes.end(), made.begin(), made.end());
    notes.insert(notes.end(), not_put_back.begin(), not_put_back.end());
    return files;
}

}  // namespace exchange
