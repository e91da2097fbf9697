#include <fcntl.h>
#include <io.h>
#include <windows.h>
#include <winioctl.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/Names_windows.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"

namespace platform {

namespace system_calls {

namespace fs = std::filesystem;

struct Folder {
    HANDLE open = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAW found{};
    bool first = false;  // `found` has the first entry, which was not given yet
    std::string name;
    Entry entry{};
};

namespace {

// A drive without a medium is a failure of the call, and no box of the system's own about it.
[[maybe_unused]] const UINT kErrorModeBefore = SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class Handle {
public:
    explicit Handle(HANDLE handle) : handle_(handle) {}
    ~Handle() {
        if (*this) CloseHandle(handle_);
    }
    Handle(Handle&& other) noexcept : handle_(other.release()) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return handle_; }
    HANDLE release() { return std::exchange(handle_, INVALID_HANDLE_VALUE); }

private:
    HANDLE handle_;
};

HANDLE handle_of(int file) { return reinterpret_cast<HANDLE>(_get_osfhandle(file)); }

bool is_link(HANDLE file) {
    FILE_ATTRIBUTE_TAG_INFO info{};
    return GetFileInformationByHandleEx(file, FileAttributeTagInfo, &info, sizeof info) != 0 &&
           leads_elsewhere(info.FileAttributes, info.ReparseTag);
}

// Between the first of 1601, in steps of 100 nanoseconds, and the clock's own beginning.
std::chrono::system_clock::time_point time_of(const FILETIME& time) {
    constexpr std::int64_t kEpoch = 116444736000000000;
    const auto steps = static_cast<std::int64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    return std::chrono::system_clock::time_point(std::chrono::nanoseconds((steps - kEpoch) * 100));
}

std::uint64_t joined(DWORD high, DWORD low) { return static_cast<std::uint64_t>(high) << 32 | low; }

int tell(HANDLE file, About& about) {
    BY_HANDLE_FILE_INFORMATION info{};
    if (GetFileType(file) != FILE_TYPE_DISK) {
        about = {.kind = Kind::Other};
        return 0;
    }
    if (GetFileInformationByHandle(file, &info) == 0) return set_errno();
    const bool folder = (info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    about = {.kind = is_link(file) ? Kind::Link
                     : folder      ? Kind::Folder
                                   : Kind::File,
             .length = static_cast<std::int64_t>(joined(info.nFileSizeHigh, info.nFileSizeLow)),
             .changed = time_of(info.ftLastWriteTime),
             .device = info.dwVolumeSerialNumber,
             .number = joined(info.nFileIndexHigh, info.nFileIndexLow)};
    return 0;
}

Handle look(const std::wstring& name, DWORD flags) {
    return Handle(CreateFileW(name.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr, OPEN_EXISTING,
                              FILE_FLAG_BACKUP_SEMANTICS | flags, nullptr));
}

int look_at(const fs::path& path, DWORD flags, About& about) {
    if (fails(Call::Status, path)) return -1;
    const auto name = system_name(path);
    if (!name) SetLastError(ERROR_INVALID_NAME);
    const Handle file = name ? look(*name, flags) : Handle(INVALID_HANDLE_VALUE);
    return file ? tell(file.get(), about) : set_errno_of_look();
}

bool is_folder(const std::wstring& name) {
    const DWORD attributes = GetFileAttributesW(name.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

struct Opening {
    DWORD access;
    DWORD sharing;
    DWORD disposition;
    bool follows_links;
};

Opening opening_for(OpenFor purpose) {
    switch (purpose) {
        case OpenFor::Reading:
            return {GENERIC_READ, kShareAll, OPEN_EXISTING, true};
        case OpenFor::ReadingNoLink:
            return {GENERIC_READ, kShareAll, OPEN_EXISTING, false};
        case OpenFor::Writing:
            return {GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING, true};
        case OpenFor::WritingAnew:
        case OpenFor::WritingAtStart:
            return {GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS, false};
        case OpenFor::WritingNew:
            break;
    }
    return {GENERIC_WRITE, FILE_SHARE_READ, CREATE_NEW, true};
}

Handle opened(const std::wstring& name, const Opening& opening, DWORD flags) {
    return Handle(CreateFileW(name.c_str(), opening.access, opening.sharing, nullptr, opening.disposition,
                              FILE_ATTRIBUTE_NORMAL | flags, nullptr));
}

// A file that is only stored in another way is opened again, so that it is read as what it stands for.
Handle opened_unless_link(const std::wstring& name, const Opening& opening) {
    Handle file = opened(name, opening, FILE_FLAG_OPEN_REPARSE_POINT);
    FILE_ATTRIBUTE_TAG_INFO info{};
    if (!file || GetFileInformationByHandleEx(file.get(), FileAttributeTagInfo, &info, sizeof info) == 0 ||
        (info.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return file;
    }
    CloseHandle(file.release());
    if (!leads_elsewhere(info.FileAttributes, info.ReparseTag)) return opened(name, opening, 0);
    SetLastError(ERROR_CANT_RESOLVE_FILENAME);
    return Handle(INVALID_HANDLE_VALUE);
}

// Two names for a call that moves; nothing where one of them cannot be.
std::optional<std::pair<std::wstring, std::wstring>> system_names(const fs::path& from, const fs::path& to) {
    auto one = system_name(from);
    auto other = system_name(to);
    if (!one || !other) return std::nullopt;
    return std::pair{std::move(*one), std::move(*other)};
}

}  // namespace

int status(const fs::path& path, About& about) { return look_at(path, 0, about); }
int link_status(const fs::path& path, About& about) { return look_at(path, FILE_FLAG_OPEN_REPARSE_POINT, about); }

int open_status(int file, const fs::path& path, About& about) {
    return fails(Call::Status, path) ? -1 : tell(handle_of(file), about);
}

int resolve(const fs::path& link, fs::path& target) {
    if (fails(Call::Status, link)) return -1;
    const auto name = system_name(link);
    if (!name) return -1;
    const Handle file = look(*name, 0);
    if (!file) return set_errno();
    std::wstring found(GetFinalPathNameByHandleW(file.get(), nullptr, 0, VOLUME_NAME_DOS), L'\0');
    found.resize(
        GetFinalPathNameByHandleW(file.get(), found.data(), static_cast<DWORD>(found.size()), VOLUME_NAME_DOS));
    if (found.empty()) return set_errno();
    constexpr std::wstring_view kShare = L"\\\\?\\UNC\\";
    constexpr std::wstring_view kAnyLength = L"\\\\?\\";
    const bool share = found.starts_with(kShare);
    target = share ? L"\\\\" + found.substr(kShare.size()) : found.substr(kAnyLength.size());
    return 0;
}

int open(const fs::path& path, OpenFor purpose, unsigned) {
    if (fails(Call::Open, path)) return -1;
    const auto name = system_name(path);
    if (!name) return -1;
    const Opening opening = opening_for(purpose);
    Handle file = opening.follows_links ? opened(*name, opening, 0) : opened_unless_link(*name, opening);
    if (!file || (purpose == OpenFor::WritingAnew && SetEndOfFile(file.get()) == 0)) return set_errno();
    return _open_osfhandle(reinterpret_cast<intptr_t>(file.release()), _O_BINARY | _O_NOINHERIT);
}

std::ptrdiff_t read(int file, const fs::path& path, char* bytes, std::size_t count) {
    if (fails(Call::Read, path)) return -1;
    constexpr std::size_t kMost = 1U << 30U;
    DWORD got = 0;
    const auto most = static_cast<DWORD>(std::min(count, kMost));
    return ReadFile(handle_of(file), bytes, most, &got, nullptr) == 0 ? set_errno() : static_cast<std::ptrdiff_t>(got);
}

std::ptrdiff_t write(int file, const fs::path& path, const char* bytes, std::size_t count) {
    if (fails(Call::Write, path)) return -1;
    constexpr std::size_t kMost = 1U << 30U;
    DWORD done = 0;
    const auto most = static_cast<DWORD>(std::min(count, kMost));
    return WriteFile(handle_of(file), bytes, most, &done, nullptr) == 0 ? set_errno()
                                                                        : static_cast<std::ptrdiff_t>(done);
}

// What takes another's place gets its attributes from `replace`.
int set_mode(int, const fs::path&, unsigned) { return 0; }

int sync(int file, const fs::path& path) {
    if (fails(Call::Sync, path)) return -1;
    return FlushFileBuffers(handle_of(file)) == 0 ? set_errno() : 0;
}
// A whole volume is flushed for an administrator only.
int sync_with_device(int file, const fs::path& path) { return sync(file, path); }
int sync_device(const fs::path&) { return 0; }

int close(int file, const fs::path& path) {
    const bool failed = fails(Call::Close, path);
    const int error = errno;
    const int closed = _close(file);
    if (failed) errno = error;
    return failed ? -1 : closed;
}

int rename(const fs::path& from, const fs::path& to) {
    if (fails(Call::Rename, to)) return -1;
    const auto names = system_names(from, to);
    if (!names) return -1;
    return MoveFileExW(names->first.c_str(), names->second.c_str(), MOVEFILE_WRITE_THROUGH) == 0 ? set_errno() : 0;
}

// A file that is there gives its attributes and its rights to the new one, where its file system can do that.
int replace(const fs::path& from, const fs::path& to) {
    if (fails(Call::Rename, to)) return -1;
    const auto names = system_names(from, to);
    if (!names) return -1;
    const wchar_t* const source = names->first.c_str();
    const wchar_t* const target = names->second.c_str();
    if (ReplaceFileW(target, source, nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != 0) return 0;
    return MoveFileExW(source, target, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0 ? set_errno() : 0;
}

// Nothing takes the place of a folder in one step: one that could not be replaced comes back.
int replace_folder(const fs::path& from, const fs::path& to) {
    const bool there = system_calls::remove_folder(to) == 0;
    if (!there && errno != ENOENT) return -1;
    if (system_calls::rename(from, to) == 0) return 0;
    const int error = errno;
    if (there) make_folder(to);
    errno = error;
    return -1;
}

int remove(const fs::path& path) {
    if (fails(Call::Remove, path)) return -1;
    const auto name = system_name(path);
    if (!name) return -1;
    if (DeleteFileW(name->c_str()) != 0) return 0;
    set_errno();
    if (errno == EACCES && is_folder(*name)) errno = EISDIR;
    return -1;
}

int remove_folder(const fs::path& path) {
    if (fails(Call::RemoveFolder, path)) return -1;
    const auto name = system_name(path);
    if (!name) return -1;
    return RemoveDirectoryW(name->c_str()) == 0 ? set_errno() : 0;
}

int make_folder(const fs::path& path) {
    if (fails(Call::MakeFolder, path)) return -1;
    const auto name = system_name(path);
    if (!name) return -1;
    return CreateDirectoryW(name->c_str(), nullptr) == 0 ? set_errno() : 0;
}

int make_link(const fs::path& target, const fs::path& path) {
    if (fails(Call::MakeLink, path)) return -1;
    const auto names = system_names(target, path);
    if (!names) return -1;
    const DWORD flags = SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE |
                        (is_folder(names->first) ? static_cast<DWORD>(SYMBOLIC_LINK_FLAG_DIRECTORY) : 0U);
    if (CreateSymbolicLinkW(names->second.c_str(), names->first.c_str(), flags) == 0) return set_errno();
    if (GetFileAttributesW(names->second.c_str()) != INVALID_FILE_ATTRIBUTES) return 0;
    errno = ENOSYS;  // a system that has no links may say that it made one
    return -1;
}

Folder* open_folder(const fs::path& path) {
    if (fails(Call::OpenFolder, path)) return nullptr;
    const auto name = system_name(path);
    if (!name) {
        errno = ENOENT;
        return nullptr;
    }
    auto folder = std::make_unique<Folder>();
    const std::wstring all = *name + (name->ends_with(L'\\') ? L"*" : L"\\*");
    folder->open = FindFirstFileExW(all.c_str(), FindExInfoBasic, &folder->found, FindExSearchNameMatch, nullptr,
                                    FIND_FIRST_EX_LARGE_FETCH);
    folder->first = folder->open != INVALID_HANDLE_VALUE;
    // The root of a drive may have no entries at all.
    if (folder->first || (GetLastError() == ERROR_FILE_NOT_FOUND && is_folder(*name))) return folder.release();
    set_errno_of_look();
    return nullptr;
}

const Entry* read_folder(Folder* folder, const fs::path& path) {
    if (fails(Call::ReadFolder, path)) return nullptr;
    errno = 0;
    if (folder->open == INVALID_HANDLE_VALUE) return nullptr;
    const WIN32_FIND_DATAW& found = folder->found;
    std::wstring_view name;
    do {
        if (!std::exchange(folder->first, false) && FindNextFileW(folder->open, &folder->found) == 0) {
            if (GetLastError() != ERROR_NO_MORE_FILES) set_errno();
            return nullptr;
        }
        name = static_cast<const wchar_t*>(found.cFileName);
    } while (name == L"." || name == L"..");
    folder->name = bytes_of(name);
    const DWORD attributes = found.dwFileAttributes;
    const bool folder_there = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    folder->entry = {
        .name = folder->name,
        .kind = leads_elsewhere(attributes, found.dwReserved0) ? Kind::Link
                : folder_there                                 ? Kind::Folder
                                                               : Kind::File,
        .hidden = folder->name.starts_with('.') || (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0};
    return &folder->entry;
}

void close_folder(Folder* folder) {
    if (folder->open != INVALID_HANDLE_VALUE) FindClose(folder->open);
    delete folder;
}

}  // namespace system_calls

}  // namespace platform
