#include "platform/SpecialFolders.h"

#include <filesystem>

#include "platform/CodePage.h"
#include "platform/IniFile.h"
#include "platform/Paths.h"

namespace platform {

std::string folder_of_setting(const std::string& settings_file, const std::string& named) {
    const std::filesystem::path folder = path_of(name_bytes(named)).make_preferred();
    if (folder.is_absolute()) return path_text(folder);
    return settings_file.substr(0, settings_file.size() - last_part(settings_file).size()) + path_text(folder);
}

std::string special_folder_of(const std::string& settings_file, int number) {
    if (number != kProgramFiles && number != kProgramFilesX86) return {};
    const bool x86 = number == kProgramFilesX86;
    const std::string set = read_setting(settings_file, "Platform", x86 ? "ProgramFilesX86" : "ProgramFiles");
    return set.empty() ? special_folder_without_key(number) : folder_of_setting(settings_file, set);
}

}  // namespace platform
