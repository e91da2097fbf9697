#include "desktop/system/Drives.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "base/Text.h"
#include "platform/IniFile.h"
#include "platform/Paths.h"
#include "platform/SpecialFolders.h"

namespace desktop::system {

namespace {

bool is_folder(const std::string& path) {
    try {
        return std::filesystem::is_directory(platform::find_case_blind(path));
    } catch (const std::exception&) {  // What can't be looked at is no stick that is ready.
        return false;
    }
}

bool is_separator(char sign) { return sign == '/' || sign == platform::kPathSeparator; }

}  // namespace

std::vector<std::string> named_sticks(const std::string& settings_file) {
    std::vector<std::string> sticks;
    std::istringstream names(platform::read_setting(settings_file, "Platform", "Drives"));
    for (std::string name; std::getline(names, name, ';');) {
        name = base::trimmed(name);
        while (name.size() > 1 && is_separator(name.back()))
            name.pop_back();
        if (name.empty()) continue;
        const std::string folder = platform::folder_of_setting(settings_file, name);
        if (is_folder(folder) && std::ranges::find(sticks, folder) == sticks.end()) sticks.push_back(folder);
    }
    return sticks;
}

}  // namespace desktop::system
