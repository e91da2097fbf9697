#include "platform/SpecialFolders.h"

#include <cstdlib>
#include <filesystem>

#include "platform/CodePage.h"
#include "platform/IniFile.h"
#include "platform/Paths.h"

std::string special_folder_of(const std::string& program_folder, int number) {
    if (number != kProgramFiles && number != kProgramFilesX86) return {};
    const bool x86 = number == kProgramFilesX86;
    const std::string set = read_setting(join_path(program_folder, "standaardtavrin.ini"), "Platform",
                                         x86 ? "ProgramFilesX86" : "ProgramFiles");
    if (!set.empty()) return std::filesystem::path(set).is_absolute() ? set : join_path(program_folder, set);
    const char* home = std::getenv("HOME");
    if (!home) return {};
    return name_text(home) + (x86 ? "/.wine/drive_c/Program Files (x86)" : "/.wine/drive_c/Program Files");
}
