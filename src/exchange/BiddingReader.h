#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/Auction.h"

namespace exchange {

// What the lines of " bieding.txt" tell. Marks at calls are passed over.
struct Bidding {
    std::optional<Seat> dealer{};
    std::optional<Auction> auction{};  // none where no seat called, or a call cannot be read
    std::string unreadable{};          // that call, or where one is missing; UTF-8
};
Bidding bidding_of(const std::vector<std::string>& lines);

}  // namespace exchange
