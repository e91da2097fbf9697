#pragma once

#include <optional>
#include <string>
#include <vector>

namespace deals {

// The folder that a word of the command line means: its path, or the name of a lesson of the program or of a deal of
// the companion. Windows-1252; none where there is no such folder.
std::optional<std::string> lesson_folder(const std::string& word, const std::string& program_folder);

// The folders of all lessons of the program, by name; none where there is no folder for them yet. Windows-1252.
std::vector<std::string> lesson_folders(const std::string& program_folder);

}  // namespace deals
