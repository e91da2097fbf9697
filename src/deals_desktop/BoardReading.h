#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "deals_desktop/Entry.h"
#include "deals_desktop/Messages.h"
#include "deals_desktop/Work.h"

// The reading of files beside the window.
namespace deals_desktop {

// What is done in the window with what was read.
struct ReadingTo {
    std::function<void(std::vector<Entry> entries)> entries;
    std::function<void(std::vector<Messages::Told> told)> told;
};
void read_files(const std::vector<std::string>& paths, Work::Course& course, const ReadingTo& to);

// The board of that entry with that contract known; null where its file has another in that place by now.
SharedBoard read_again(const Entry& entry, const std::optional<exchange::Contract>& known);

}  // namespace deals_desktop
