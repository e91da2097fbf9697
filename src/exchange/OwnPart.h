#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace exchange {

// What a file of a lesson has that its board does not tell: how its bytes differ from those that are made of the board.
// It belongs to those bytes alone; where the board was changed since, others are made, and it says nothing.
struct OwnPart {
    struct Change {
        std::size_t at = 0;      // in the bytes that are made
        std::size_t length = 0;  // of what it replaces there
        std::string bytes{};
    };

    std::string suffix{};           // of the file, in the spelling of kSuffixes
    std::uint32_t made = 0;         // checksum of the bytes that are made; of none where no lesson can be made
    bool missing = false;           // the lesson has no such file
    std::vector<Change> changes{};  // in their order, none touching another
    int line = 0;                   // of the file that it was read from
};

}  // namespace exchange
