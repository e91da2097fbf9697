#pragma once

#include <functional>
#include <string>
#include <vector>

#include "deals/Report.h"
#include "exchange/LessonReader.h"

namespace deals {

inline constexpr const char* kExportUsage = "export LESSON... --to FILE.(pbn|lin|html|pdf) [--program DIR] [--costly]";

// What is written, and to which file.
struct ExportOptions {
    std::vector<std::string> lessons{};  // names, or paths of folders
    std::string to{};                    // its ending tells the format
    std::string program_folder{};        // Windows-1252
    bool mark_costly = false;            // on paper: the cards that gave a trick away
    // Gives the bytes of the sheets; without it the program beside this one writes them.
    std::function<std::string(const std::vector<exchange::Lesson>& lessons)> paper{};
};
// Writes lessons to one file, and deals of the companion where it is neither page nor paper, and tells of each; how
// many it wrote. The file is replaced whole. WrongArguments for an unknown ending, failures as of any file.
std::size_t export_lessons(const ExportOptions& options, Report& report);

// The command: a line a lesson goes to standard output, its name or "refused: QVT_Spel 007: ..."; what of it other
// programs will not see goes to standard error. The exit status: 0; 1 where a lesson was refused; 2 where nothing was
// written.
int export_lessons(const std::vector<std::string>& words);

}  // namespace deals
