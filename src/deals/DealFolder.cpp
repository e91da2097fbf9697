#include "deals/DealFolder.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "base/Fout.h"
#include "base/Text.h"
#include "exchange/Shelf.h"
#include "platform/Files.h"
#include "platform/Paths.h"

namespace fs = std::filesystem;

namespace deals {

std::vector<CompanionDeal> deals_in(const std::string& folder, const std::string& target) {
    const std::string given = platform::path_text(fs::absolute(platform::path_of(folder)).lexically_normal());
    const fs::path inner = platform::find_case_blind(platform::join_path(given, "Spellen"));
    const std::string deals = fs::is_directory(inner) ? platform::path_text(inner) : given;
    std::error_code absent;
    if (fs::equivalent(platform::find_case_blind(deals), platform::find_case_blind(target), absent))
        throw std::runtime_error("these deals are there already");
    std::vector<CompanionDeal> found;
    for (const std::string& name : platform::subfolders_of(deals)) {
        if (exchange::number_of_deal(name) > 0) found.push_back({name, platform::join_path(deals, name)});
    }
    if (found.empty()) throw std::runtime_error("no deals of a companion are in this folder");
    return found;
}

std::vector<exchange::DealFile> files_of(const CompanionDeal& deal) {
    if (platform::file_length(platform::join_path(deal.folder, deal.name + " Contract.txt")) <= 0)
        throw base::Fout(base::FoutNummer::FileNotFound, deal.name + " Contract.txt");
    std::vector<exchange::DealFile> files;
    for (const std::string& name : platform::files_of(deal.folder, "*.txt")) {
        if (base::equal_ignoring_case(base::left(name, deal.name.size()), deal.name))
            files.push_back({base::middle(name, deal.name.size() + 1),
                             platform::read_file(platform::join_path(deal.folder, name))});
    }
    return files;
}

}  // namespace deals
