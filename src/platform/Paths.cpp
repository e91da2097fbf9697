#include "platform/Paths.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <system_error>

#include "base/Fout.h"
#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/SystemCalls.h"

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(const std::string& path) {
    throw Fout::from({errno, std::generic_category()}, path_text(fs::path(path).filename()));
}

// A path that cannot be is not there; whether another is, must be known.
bool there(const std::string& path) {
    struct stat about {};
    if (system_calls::link_status(path.c_str(), about) == 0) return true;
    if (errno != ENOENT && errno != ENOTDIR && errno != ENAMETOOLONG && errno != ELOOP) fail(path);
    return false;
}

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

// The first entry whose name is equal without regard to case; empty for none.
std::string entry_of(const std::string& folder, std::string_view name) {
    const std::string wanted = name_text(name);
    const std::unique_ptr<DIR, CloseFolder> open(system_calls::open_folder(folder.c_str()));
    if (!open && (errno == ENOENT || errno == ENOTDIR)) return {};
    if (!open) fail(folder);
    while (const dirent* entry = system_calls::read_folder(open.get(), folder.c_str())) {
        const char* spelled = static_cast<const char*>(entry->d_name);
        if (equal_ignoring_case(name_text(spelled), wanted)) return spelled;
    }
    if (errno != 0) fail(folder);
    return {};
}

// How much of the path, which is not there, is there as it is spelled.
std::size_t known_part(const std::string& path) {
    std::string part = path;
    do {
        const std::size_t separator = part.rfind(kPathSeparator);
        part.resize(separator == std::string::npos ? 0 : separator);
    } while (!part.empty() && !there(part));
    return part.size();
}

}  // namespace

std::string join_path(std::string_view folder, std::string_view name) {
    return std::string(folder).append(1, kPathSeparator).append(name);
}

std::string last_part(std::string_view path) { return std::string(path.substr(path.rfind(kPathSeparator) + 1)); }

std::string path_text(const fs::path& path) {
    const std::u8string utf8 = path.u8string();
    return name_text(std::string(utf8.begin(), utf8.end()));
}

fs::path find_case_blind(std::string_view path) {
    const std::string exact = name_bytes(path);
    if (exact.empty() || there(exact)) return exact;
    std::string found = exact.substr(0, known_part(exact));
    for (std::size_t at = found.size(); at < exact.size();) {
        const std::size_t begin = exact[at] == kPathSeparator ? at + 1 : at;
        const std::size_t end = std::min(exact.find(kPathSeparator, begin), exact.size());
        const std::string name = exact.substr(begin, end - begin);
        const std::string folder = !found.empty() ? found : begin > at ? std::string(1, kPathSeparator) : ".";
        if (begin > at) found += kPathSeparator;
        const std::string spelled = name.empty() || there(found + name) ? name : entry_of(folder, name);
        if (spelled.empty() && !name.empty()) return found.append(exact, begin);
        found += spelled;
        at = end;
    }
    return found;
}
