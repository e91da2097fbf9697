#include <windows.h>

#include <cerrno>
#include <string>

#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/Names_windows.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"

namespace platform {

namespace fs = std::filesystem;

fs::path path_of(std::string_view bytes) {
    const std::u16string units = utf16_of(bytes);
    return std::wstring(units.begin(), units.end());
}

std::string bytes_of(const fs::path& path) {
    const std::wstring& units = path.native();
    return bytes_of_utf16(std::u16string(units.begin(), units.end()));
}

fs::path find_case_blind(std::string_view path) {
    fs::path found = path_of(name_bytes(path)).make_preferred();
    const auto name = system_name(found);
    if (!name || !found.has_filename()) return found;
    WIN32_FIND_DATAW entry{};
    if (system_calls::fails(system_calls::Call::Status, found)) {
        if (!says_absent(errno)) fail(errno, found);
        return found;
    }
    const HANDLE open = FindFirstFileW(name->c_str(), &entry);
    if (open != INVALID_HANDLE_VALUE) {
        FindClose(open);
        found.replace_filename(static_cast<const wchar_t*>(entry.cFileName));
        return found;
    }
    set_errno_of_look();
    if (!says_absent(errno)) fail(errno, found);
    return found;
}

}  // namespace platform
