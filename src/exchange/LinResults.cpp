#include "exchange/LinResults.h"

#include <algorithm>

#include "base/Text.h"

namespace exchange {

namespace {

constexpr int kFirstBoardField = 3;
constexpr int kLastBoardField = 4;
constexpr int kBook = 6;  // tricks that a contract of level 0 would need

// "4SE+1", "3NTxW=", "PASS".
LinResult result_of(const std::string& text) {
    LinResult result;
    const std::string upper = base::upper_case(text);
    if (upper == "PASS" || upper == "P") return {{}, {}, true};
    const std::size_t sign = std::min(upper.find_first_of("+-="), upper.size());
    // The crosses of a double stand before or behind the declarer.
    std::string contract = base::replaced(upper.substr(0, sign), "X", "");
    const auto crosses = std::min<std::size_t>(sign - contract.size(), 2);
    if (contract.size() < 3) return result;
    const auto declarer = seat_of(contract.back());
    contract.pop_back();
    const auto bid = call_of(contract);
    if (!declarer || !bid || bid->kind != Call::Kind::Bid) return result;
    result.contract = Contract{bid->bid, static_cast<Doubling>(crosses), *declarer};
    if (sign < upper.size()) {
        const int number = std::min(lin::number_in(upper.substr(sign)), 2 * kCardsInHand);
        const int beyond = upper[sign] == '=' ? 0 : upper[sign] == '-' ? -number : number;
        const int tricks = kBook + bid->bid.level + beyond;
        if (tricks >= 0 && tricks <= kCardsInHand) result.tricks = tricks;
    }
    return result;
}

}  // namespace

void LinResults::take(const LinCommand& command) {
    const base::Pieces fields = base::split(command.value, ",");
    if (command.name == "rs") {
        results_.clear();
        for (const std::string& result : fields)
            results_.push_back(lin::without_blanks(result));
    } else if (command.name == "vg" && fields.last() >= kLastBoardField) {
        first_board_ = base::numeric_value(fields[kFirstBoardField]);
        last_board_ = base::numeric_value(fields[kLastBoardField]);
    }
}

LinResult LinResults::next(char room, int board) {
    std::size_t at = given_++;
    if (first_board_ > 0 && (room == 'o' || room == 'c')) {
        if (board < first_board_ || board > last_board_) return {};
        at = 2 * static_cast<std::size_t>(board - first_board_) + (room == 'c' ? 1 : 0);
    }
    return at < results_.size() ? result_of(results_[at]) : LinResult{};
}

}  // namespace exchange
