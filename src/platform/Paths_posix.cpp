#include <algorithm>
#include <cerrno>
#include <string>

#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/OpenFolder.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

// A path that cannot be is not there; whether another is, must be known.
bool there(const fs::path& path) {
    system_calls::About about;
    if (system_calls::link_status(path, about) == 0) return true;
    if (!says_absent(errno) && errno != ENAMETOOLONG && errno != ELOOP) fail(errno, path);
    return false;
}

// The first entry whose name is equal without regard to case; empty for none.
std::string entry_of(const std::string& folder, std::string_view name) {
    const std::string wanted = name_text(name);
    OpenFolder open(folder);
    if (!open.there()) return {};
    while (const system_calls::Entry* entry = open.next()) {
        if (base::equal_ignoring_case(name_text(entry->name), wanted)) return std::string(entry->name);
    }
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

fs::path path_of(std::string_view bytes) { return bytes; }
std::string bytes_of(const fs::path& path) { return path.native(); }

fs::path find_case_blind(std::string_view path) {
    fs::path as_spelled = name_bytes(path);
    const std::string& exact = as_spelled.native();
    if (exact.empty() || there(as_spelled)) return as_spelled;
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

}  // namespace platform
