#include "exchange/BiddingReader.h"

#include <array>
#include <utility>

#include "base/Text.h"
#include "exchange/DealWords.h"
#include "platform/CodePage.h"

namespace exchange {

namespace {

constexpr std::size_t kRounds = 9;

constexpr std::array<std::pair<std::string_view, Call::Kind>, 6> kDutchWords{{
    {"doublet", Call::Kind::Double},
    {"doubleert", Call::Kind::Double},
    {"dbl.", Call::Kind::Double},
    {"redoublet", Call::Kind::Redouble},
    {"redoubleert", Call::Kind::Redouble},
    {"rdbl.", Call::Kind::Redouble},
}};

struct Cell {
    std::string text;
    std::string strain;
    bool empty() const { return text.empty() || text == "-"; }
};

Cell cell_of(const std::string& line) {
    const base::Pieces pieces = base::split(line, "~");
    return {pieces.last() >= 0 ? base::trimmed(pieces[0]) : "", pieces.last() >= 1 ? base::trimmed(pieces[1]) : ""};
}

std::optional<Call> call_of_cell(const Cell& cell) {
    for (const auto& [word, kind] : kDutchWords) {
        if (base::equal_ignoring_case(cell.text, word)) return Call{kind, {}};
    }
    if (cell.strain.empty()) return call_of(cell.text);
    const bool fits = cell.text.size() == 1 && cell.text[0] >= '1' && cell.text[0] <= '7' && cell.strain.size() == 1 &&
                      cell.strain[0] >= '0' && cell.strain[0] <= '4';
    if (!fits) return std::nullopt;
    return Call::of({cell.text[0] - '0', static_cast<Strain>(cell.strain[0] - '0')});
}

}  // namespace

Bidding bidding_of(const std::vector<std::string>& lines) {
    Bidding bidding;
    if (!lines.empty()) {
        if (const auto seat = place_of_word(kSeatWords, base::trimmed(lines[0])))
            bidding.dealer = static_cast<Seat>(*seat);
    }
    std::vector<Call> calls;
    bool ended = false;
    std::size_t first = 0;
    for (std::size_t number = 0; number < kRounds * kSeatCount; ++number) {
        const std::size_t line = 1 + number % kSeatCount * kRounds + number / kSeatCount;
        const Cell cell = line < lines.size() ? cell_of(lines[line]) : Cell{};
        if (cell.empty()) {
            ended = !calls.empty();
            continue;
        }
        const auto call = call_of_cell(cell);
        if (!call || ended) {
            bidding.unreadable = ended ? "a call is missing" : platform::to_utf8(cell.text + cell.strain);
            return bidding;
        }
        if (calls.empty()) first = number;
        calls.push_back(*call);
    }
    if (calls.empty()) return bidding;
    if (first >= kSeatCount) {
        bidding.unreadable = "a call is missing";
        return bidding;
    }
    bidding.dealer = static_cast<Seat>(first);
    bidding.auction = Auction{*bidding.dealer, calls};
    return bidding;
}

}  // namespace exchange
