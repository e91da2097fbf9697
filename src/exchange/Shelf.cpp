#include "exchange/Shelf.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "base/Fout.h"
#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/IniFile.h"
#include "platform/Paths.h"
#include "platform/SpecialFolders.h"
#include "services/Settings.h"

namespace exchange {

namespace {

constexpr const char* kSection = "Platform";
constexpr const char* kKey = "ProgramFilesX86";
constexpr const char* kHere = ".";  // the program folder, as the key names it

// What stands in the place of the companion's executable in our own folder.
constexpr std::string_view kStandIn = "Zandolin Lomert\r\n";

constexpr int kHighestNumber = 999;
constexpr std::string_view kDeal = "Spel ";
constexpr std::string_view kLesson = "QVT_Spel ";

std::string executable_in(const std::string& folder) {
    return platform::join_path(platform::join_path(folder, "RVLX"), "RVLX.exe");
}
bool has_companion(const std::string& folder) {
    return !folder.empty() && platform::file_length(executable_in(folder)) > 0;
}

bool has_stand_in(const std::string& folder) {
    const std::string path = executable_in(folder);
    return platform::file_length(path) == static_cast<std::int64_t>(kStandIn.size()) &&
           platform::read_file(path) == kStandIn;
}

std::vector<std::string> subfolders_or_none(const std::string& folder) {
    try {
        return platform::subfolders_of(folder);
    } catch (const base::Fout& failure) {
        if (failure.nummer() == static_cast<int>(base::FoutNummer::PathNotFound)) return {};
        throw;
    }
}

int number_behind(std::string_view prefix, const std::string& name) {
    if (!base::equal_ignoring_case(base::left(name, prefix.size()), prefix)) return 0;
    const std::string number = base::middle(name, prefix.size() + 1);
    const bool digits = !number.empty() && number.find_first_not_of("0123456789") == std::string::npos;
    return digits ? base::numeric_value(number) : 0;
}

std::string name_of(std::string_view prefix, int number) {
    std::array<char, 16> digits{};
    std::snprintf(digits.data(), digits.size(), "%03d", number);
    return std::string(prefix) + digits.data();
}

}  // namespace

int number_of_deal(const std::string& name) { return number_behind(kDeal, name); }
int number_of_lesson(const std::string& name) { return number_behind(kLesson, name); }
std::string deal_name(int number) { return name_of(kDeal, number); }
std::string lesson_name(int number) { return name_of(kLesson, number); }

CompanionFolder::CompanionFolder(std::string program_folder)
    : program_folder_(std::move(program_folder)), settings_(services::settings_file(program_folder_)) {
    const bool own = has_stand_in(program_folder_);
    const bool named_by_us = own && platform::read_setting(settings_, kSection, kKey) == kHere;
    // Our own key must not hide a companion that was installed behind it.
    const std::string second = named_by_us ? platform::special_folder_without_key(platform::kProgramFilesX86)
                                           : platform::special_folder_of(settings_, platform::kProgramFilesX86);
    for (const std::string& folder : {platform::special_folder_of(settings_, platform::kProgramFiles), second}) {
        if (installed_ || !has_companion(folder)) continue;
        installed_ = true;
        deals_ = platform::join_path(platform::join_path(folder, "RVLX"), "Spellen");
        own_is_named_ = named_by_us && !has_stand_in(folder);
    }
    if (!installed_) deals_ = own_deals();
}

std::string CompanionFolder::own_deals() const {
    return platform::join_path(platform::join_path(program_folder_, "RVLX"), "Spellen");
}

void CompanionFolder::leave_own_folder() {
    if (!std::exchange(own_is_named_, false)) return;
    platform::remove_setting(settings_, kSection, kKey);
    const auto names = subfolders_or_none(own_deals());
    const auto deals = std::ranges::count_if(names, [](const std::string& name) { return number_of_deal(name) > 0; });
    if (deals == 0) return;
    notes_.push_back("the companion is installed now; " + std::to_string(deals) + " deals are left in " +
                     platform::to_utf8(own_deals()) + ", and importing that folder copies them");
}

void CompanionFolder::prepare() {
    platform::make_folders(deals_);
    if (installed_) return;
    if (!has_companion(program_folder_)) platform::replace_file(executable_in(program_folder_), kStandIn);
    const std::string named = platform::read_setting(settings_, kSection, kKey);
    if (named.empty()) {
        platform::write_setting(settings_, kSection, kKey, kHere);
    } else if (named != kHere && named != program_folder_) {
        notes_.push_back("no companion is found in " + platform::to_utf8(named) + ", which " + kKey +
                         " names; without that key the deals in " + platform::to_utf8(own_deals()) + " are found");
    }
    installed_ = true;
}

std::vector<std::string> CompanionFolder::notes() { return std::exchange(notes_, {}); }

DealNumbers::DealNumbers(const std::string& deals, const std::string& lessons) {
    for (const std::string& name : subfolders_or_none(deals))
        taken_.insert(number_of_deal(name));
    for (const std::string& name : subfolders_or_none(lessons))
        taken_.insert(number_of_lesson(name));
    taken_.insert(0);
}

int DealNumbers::next() {
    int number = *taken_.rbegin();
    if (number < kHighestNumber) {
        ++number;
    } else {
        for (number = 1; taken_.contains(number);)
            ++number;
        if (number > kHighestNumber) return 0;
    }
    taken_.insert(number);
    return number;
}

}  // namespace exchange
