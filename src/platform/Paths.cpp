#include "platform/Paths.h"

#include <dirent.h>

#include <memory>
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

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

// The first entry whose name is equal without regard to case; an empty path for none.
fs::path entry_of(const fs::path& folder, const fs::path& name) {
    const std::string wanted = path_text(name);
    const std::unique_ptr<DIR, CloseFolder> open(opendir(folder.empty() ? "." : folder.c_str()));
    while (const dirent* entry = open ? readdir(open.get()) : nullptr) {
        const char* spelled = static_cast<const char*>(entry->d_name);
        if (equal_ignoring_case(from_utf8(spelled), wanted)) return folder / spelled;
    }
    return {};
}

fs::path find(const fs::path& exact) {
    if (there(exact) || !exact.has_relative_path()) return exact;
    const fs::path folder = find(exact.parent_path());
    const fs::path spelled_otherwise = entry_of(folder, exact.filename());
    return spelled_otherwise.empty() ? folder / exact.filename() : spelled_otherwise;
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

fs::path find_case_blind(std::string_view path) { return find(native(path)); }
