#include "platform/SpecialFolders.h"

#include <windows.h>

#include <shlobj.h>

#include <array>

#include "platform/Paths.h"

namespace platform {

namespace {

std::string folder_of_system(int number) {
    std::array<wchar_t, MAX_PATH> folder{};
    const bool known = SUCCEEDED(SHGetFolderPathW(nullptr, number, nullptr, SHGFP_TYPE_CURRENT, folder.data()));
    return known ? path_text(folder.data()) : std::string();
}

}  // namespace

std::string home_folder() { return folder_of_system(CSIDL_PROFILE); }

std::string special_folder_without_key(int number) {
    static_assert(kProgramFiles == CSIDL_PROGRAM_FILES && kProgramFilesX86 == CSIDL_PROGRAM_FILESX86);
    if (number != kProgramFiles && number != kProgramFilesX86) return {};
    return folder_of_system(number);
}

}  // namespace platform
