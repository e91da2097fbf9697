#include "deals/LessonFolder.h"

#include <filesystem>

#include "base/Fout.h"
#include "exchange/Shelf.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Paths.h"

namespace fs = std::filesystem;

namespace deals {

std::optional<std::string> lesson_folder(const std::string& word, const std::string& program_folder) {
    const fs::path given = platform::path_of(word);
    if (fs::is_directory(given))
        return platform::path_text((fs::absolute(given) / "").lexically_normal().parent_path());
    const std::string name = platform::name_text(word);
    if (name.empty() || name.find(platform::kPathSeparator) != std::string::npos) return std::nullopt;
    const auto in = [&](const std::string& folder) -> std::optional<std::string> {
        const fs::path found = platform::find_case_blind(platform::join_path(folder, name));
        return fs::is_directory(found) ? std::optional(platform::path_text(found)) : std::nullopt;
    };
    const auto lesson = in(platform::join_path(program_folder, "aftavrin"));
    return lesson ? lesson : in(exchange::CompanionFolder(program_folder).deals());
}

std::vector<std::string> lesson_folders(const std::string& program_folder) {
    const std::string root = platform::join_path(program_folder, "aftavrin");
    std::vector<std::string> folders;
    try {
        for (const std::string& name : platform::subfolders_of(root))
            folders.push_back(platform::join_path(root, name));
    } catch (const base::Fout& failure) {
        if (failure.nummer() != static_cast<int>(base::FoutNummer::PathNotFound)) throw;
    }
    return folders;
}

}  // namespace deals
