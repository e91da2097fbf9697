#pragma once

#include <string>
#include <vector>

#include "exchange/DealFiles.h"

namespace deals {

// A deal of a companion as it lies on the disk.
struct CompanionDeal {
    std::string name;    // "Spel 012"
    std::string folder;  // its path, Windows-1252
};

// The deals in a folder of a companion, or in its folder "Spellen", by name. A failure where there are none, and
// where the folder is the very one that deals are put into.
std::vector<CompanionDeal> deals_in(const std::string& folder, const std::string& target);

// Its text files, whose names begin with the deal's. Failure 53 where it has no contract.
std::vector<exchange::DealFile> files_of(const CompanionDeal& deal);

}  // namespace deals
