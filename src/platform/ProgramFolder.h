#pragma once

#include <string>
#include <string_view>

namespace platform {

// The folder of the executable.
std::string executable_folder();

// The folder with the program's data, the same for all programs. A copy that has everything beside itself uses the
// folder of its executable. An installed one, which has ../share/zandolin/program beside that folder, uses the folder
// "Zandolin Lomert" in the user's home folder; its first start makes it whole or not at all: with all that
// stands in share/zandolin/program, and a link to the manual share/zandolin/help.chm. Later starts change nothing
// there. Failures as in Files.h, and 76 where there is no home folder.
std::string find_program_folder();

// The same for an executable in that folder, and a user with that home folder.
std::string program_folder_of(std::string_view executables, std::string_view home);

}  // namespace platform
