#include "platform/SpecialFolders.h"

#include <cstdlib>

#include "platform/CodePage.h"

namespace platform {

std::string home_folder() {
    const char* home = std::getenv("HOME");
    return home ? name_text(home) : std::string();
}

std::string special_folder_without_key(int number) {
    const std::string home = home_folder();
    if (home.empty() || (number != kProgramFiles && number != kProgramFilesX86)) return {};
    const bool x86 = number == kProgramFilesX86;
    return home + (x86 ? "/.wine/drive_c/Program Files (x86)" : "/.wine/drive_c/Program Files");
}

}  // namespace platform
