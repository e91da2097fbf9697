#pragma once

#include <string>

// Special folder numbers of the program-files folders.
inline constexpr int kProgramFiles = 38;
inline constexpr int kProgramFilesX86 = 42;

// Where the companion program is looked for: keys ProgramFiles and ProgramFilesX86 of section Platform in the
// settings file of the program folder, relative to that folder if not absolute; without a key the folders below the
// user's ~/.wine/drive_c. Empty for another number, or where there is no home folder.
std::string special_folder_of(const std::string& program_folder, int number);
