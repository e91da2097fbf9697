#include "platform/Paths.h"

#include <system_error>

#include "base/Text.h"
#include "platform/CodePage.h"

namespace fs = std::filesystem;

namespace {

fs::path native(std::string_view text) {
    const std::string utf8 = to_utf8(text);
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

bool there(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(path, ignored));
}

fs::path entry_of(const fs::path& folder, const fs::path& name) {
    const std::string wanted = path_text(name);
    std::error_code error;
    for (fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (equal_ignoring_case(path_text(entry->path().filename()), wanted)) return folder / entry->path().filename();
    }
    return {};
}

}  // namespace

std::string join_path(std::string_view folder, std::string_view name) {
    return std::string(folder).append(1, kPathSeparator).append(name);
}

std::string last_part(std::string_view path) { return std::string(path.substr(path.rfind(kPathSeparator) + 1)); }

std::string path_text(const fs::path& path) {
    const std::u8string utf8 = path.u8string();
    return from_utf8(std::string(utf8.begin(), utf8.end()));
}

fs::path find_case_blind(std::string_view path) {
    const fs::path exact = native(path);
    if (there(exact)) return exact;
    fs::path found;
    bool lost = false;
    for (const fs::path& part : exact) {
        fs::path next = found / part;
        if (!lost && !there(next)) {
            const fs::path spelled_otherwise = entry_of(found, part);
            lost = spelled_otherwise.empty();
            if (!lost) next = spelled_otherwise;
        }
        found = next;
    }
    return found;
}
