#pragma once

#include <string>

namespace platform {

// Special folder numbers of the program-files folders.
inline constexpr int kProgramFiles = 38;
inline constexpr int kProgramFilesX86 = 42;

// The user's; empty where there is none.
std::string home_folder();

// A folder as a key of the settings file names it: relative to that file's folder if not absolute.
std::string folder_of_setting(const std::string& settings_file, const std::string& named);

// Where the companion program is looked for: keys ProgramFiles and ProgramFilesX86 of section Platform in the
// settings file; without a key the system's own, on POSIX the folders below the user's ~/.wine/drive_c.
// Empty for another number, or where there is no home folder.
std::string special_folder_of(const std::string& settings_file, int number);
// The same as if no key were set.
std::string special_folder_without_key(int number);

}  // namespace platform
