#include "platform/Names_windows.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

namespace platform {

namespace {

constexpr std::wstring_view kAnyLength = L"\\\\?\\";
constexpr std::wstring_view kDevices = L"\\\\.\\";
constexpr std::wstring_view kShares = L"\\\\";

constexpr std::size_t kLongest = 255;

constexpr std::array kReserved{L"CON",  L"PRN",  L"AUX",  L"NUL",  L"CONIN$", L"CONOUT$", L"COM1", L"COM2",
                               L"COM3", L"COM4", L"COM5", L"COM6", L"COM7",   L"COM8",    L"COM9", L"LPT1",
                               L"LPT2", L"LPT3", L"LPT4", L"LPT5", L"LPT6",   L"LPT7",    L"LPT8", L"LPT9"};

bool is_reserved(std::wstring_view name) {
    std::wstring stem(name.substr(0, name.find(L'.')));
    stem.erase(stem.find_last_not_of(L' ') + 1);
    return std::ranges::any_of(kReserved, [&](const wchar_t* reserved) {
        return CompareStringOrdinal(stem.c_str(), -1, reserved, -1, TRUE) == CSTR_EQUAL;
    });
}

bool can_be(std::wstring_view name) {
    if (name.empty() || name == L"." || name == L"..") return true;
    if (name.size() > kLongest || name.ends_with(L'.') || name.ends_with(L' ') || is_reserved(name)) return false;
    return std::ranges::none_of(name, [](wchar_t sign) {
        return sign < L' ' || std::wstring_view(L"<>:\"|?*").find(sign) != std::wstring_view::npos;
    });
}

constexpr std::array kErrors{
    std::pair{ERROR_FILE_NOT_FOUND, ENOENT},
    std::pair{ERROR_PATH_NOT_FOUND, ENOENT},
    std::pair{ERROR_INVALID_DRIVE, ENOENT},
    std::pair{ERROR_BAD_NETPATH, ENOENT},
    std::pair{ERROR_BAD_NET_NAME, ENOENT},
    std::pair{ERROR_DIRECTORY, ENOTDIR},
    std::pair{ERROR_INVALID_NAME, EINVAL},
    std::pair{ERROR_BAD_PATHNAME, EINVAL},
    std::pair{ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
    std::pair{ERROR_BUFFER_OVERFLOW, ENAMETOOLONG},
    std::pair{ERROR_ACCESS_DENIED, EACCES},
    std::pair{ERROR_SHARING_VIOLATION, EACCES},
    std::pair{ERROR_LOCK_VIOLATION, EACCES},
    std::pair{ERROR_USER_MAPPED_FILE, EACCES},
    std::pair{ERROR_DELETE_PENDING, EACCES},
    std::pair{ERROR_WRITE_PROTECT, EROFS},
    std::pair{ERROR_PRIVILEGE_NOT_HELD, EPERM},
    std::pair{ERROR_FILE_EXISTS, EEXIST},
    std::pair{ERROR_ALREADY_EXISTS, EEXIST},
    std::pair{ERROR_DIR_NOT_EMPTY, ENOTEMPTY},
    std::pair{ERROR_DISK_FULL, ENOSPC},
    std::pair{ERROR_HANDLE_DISK_FULL, ENOSPC},
    std::pair{ERROR_FILE_TOO_LARGE, EFBIG},
    std::pair{ERROR_CANT_RESOLVE_FILENAME, ELOOP},
    std::pair{ERROR_INVALID_FUNCTION, ENOSYS},
    std::pair{ERROR_NOT_SUPPORTED, ENOSYS},
};

}  // namespace

std::optional<std::wstring> system_name(const std::filesystem::path& path) {
    std::wstring name = path.empty() ? L"." : std::filesystem::path(path).make_preferred().native();
    if (name.starts_with(kAnyLength)) name.erase(0, kAnyLength.size());
    const std::filesystem::path parts = std::filesystem::path(name).relative_path();
    if (name.starts_with(kDevices) ||
        !std::ranges::all_of(parts, [](const std::filesystem::path& part) { return can_be(part.native()); })) {
        errno = EINVAL;
        return std::nullopt;
    }
    std::wstring full(GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.starts_with(kShares)) return std::wstring(kAnyLength) + L"UNC" + full.substr(1);
    return std::wstring(kAnyLength) + full;
}

int set_errno() {
    const auto last = static_cast<long>(GetLastError());
    const auto* const known = std::ranges::find_if(kErrors, [&](const auto& error) { return error.first == last; });
    errno = known == kErrors.end() ? EIO : known->second;
    return -1;
}

int set_errno_of_look() {
    set_errno();
    if (errno == EINVAL || errno == ENAMETOOLONG) errno = ENOENT;
    return -1;
}

bool leads_elsewhere(unsigned long attributes, unsigned long tag) {
    return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && IsReparseTagNameSurrogate(tag);
}

}  // namespace platform
