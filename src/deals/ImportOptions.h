#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "deals/BoardImport.h"
#include "exchange/DealFiles.h"

namespace deals {

inline constexpr const char* kImportUsage =
    "import FILE... [--program DIR] [--deals 1,3-5] [--as deals|lessons|best] [--finish] [--contract 1=S4H] "
    "[--lead 1=HQ]";

// What `import` is told on its command line. Places count from 1 through all files.
struct ImportOptions {
    std::vector<std::string> files{};
    std::string program_folder{};  // Windows-1252
    std::vector<std::pair<int, int>> places{};
    As as = As::Best;
    bool finish = false;
    std::map<int, exchange::Additions> additions{};

    bool selects(int place) const;  // every one where no places are given
    exchange::Additions additions_of(int place) const;
    // The highest place that is named; 0 for none.
    int highest_place() const;
};

// WrongArguments where they make no sense.
ImportOptions import_options(const std::vector<std::string>& words);

}  // namespace deals
