#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/SystemCalls.h"

namespace platform {

namespace system_calls {

namespace fs = std::filesystem;

struct Folder {
    DIR* open = nullptr;
    Entry entry{};
};

namespace {

Kind kind_of(mode_t mode) {
    if (S_ISREG(mode)) return Kind::File;
    if (S_ISDIR(mode)) return Kind::Folder;
    return S_ISLNK(mode) ? Kind::Link : Kind::Other;
}

Kind kind_of_entry(unsigned char type) {
    switch (type) {
        case DT_REG:
            return Kind::File;
        case DT_DIR:
            return Kind::Folder;
        case DT_LNK:
            return Kind::Link;
        case DT_UNKNOWN:
            return Kind::Unknown;
        default:
            return Kind::Other;
    }
}

int told(int result, const struct stat& from, About& about) {
    if (result != 0) return result;
    about = {.kind = kind_of(from.st_mode),
             .length = from.st_size,
             .changed = std::chrono::system_clock::from_time_t(from.st_mtime),
             .mode = from.st_mode & 07777U,
             .device = from.st_dev,
             .number = from.st_ino};
    return 0;
}

int flags_of(OpenFor purpose) {
    switch (purpose) {
        case OpenFor::Reading:
            return O_RDONLY;
        case OpenFor::ReadingNoLink:
            return O_RDONLY | O_NOFOLLOW;
        case OpenFor::Writing:
            return O_WRONLY;
        case OpenFor::WritingAnew:
            return O_WRONLY | O_CREAT | O_NOFOLLOW | O_TRUNC;
        case OpenFor::WritingAtStart:
            return O_WRONLY | O_CREAT | O_NOFOLLOW;
        case OpenFor::WritingNew:
            break;
    }
    return O_WRONLY | O_CREAT | O_EXCL;
}

}  // namespace

int status(const fs::path& path, About& about) {
    struct stat found {};
    return fails(Call::Status, path) ? -1 : told(::stat(path.c_str(), &found), found, about);
}

int link_status(const fs::path& path, About& about) {
    struct stat found {};
    return fails(Call::Status, path) ? -1 : told(::lstat(path.c_str(), &found), found, about);
}

int open_status(int file, const fs::path& path, About& about) {
    struct stat found {};
    return fails(Call::Status, path) ? -1 : told(::fstat(file, &found), found, about);
}

int resolve(const fs::path& link, fs::path& target) {
    if (fails(Call::Status, link)) return -1;
    const std::unique_ptr<char, void (*)(void*)> real(::realpath(link.c_str(), nullptr), std::free);
    if (!real) return -1;
    target = real.get();
    return 0;
}

int open(const fs::path& path, OpenFor purpose, unsigned mode) {
    return fails(Call::Open, path) ? -1 : ::open(path.c_str(), flags_of(purpose) | O_CLOEXEC, mode);
}
std::ptrdiff_t read(int file, const fs::path& path, char* bytes, std::size_t count) {
    return fails(Call::Read, path) ? -1 : ::read(file, bytes, count);
}
std::ptrdiff_t write(int file, const fs::path& path, const char* bytes, std::size_t count) {
    return fails(Call::Write, path) ? -1 : ::write(file, bytes, count);
}
int set_mode(int file, const fs::path& path, unsigned mode) {
    return fails(Call::Mode, path) ? -1 : ::fchmod(file, mode);
}
int sync(int file, const fs::path& path) { return fails(Call::Sync, path) ? -1 : ::fsync(file); }
int sync_with_device(int, const fs::path&) { return 0; }
int sync_device(const fs::path& folder) {
    if (fails(Call::Sync, folder)) return -1;
    const int open = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (open < 0) return -1;
    const int synced = ::syncfs(open);
    const int error = errno;
    ::close(open);
    errno = error;
    return synced;
}
// A file is closed in any case, so that a failure that a test asks for does not leave it open.
int close(int file, const fs::path& path) {
    const bool failed = fails(Call::Close, path);
    const int error = errno;
    const int closed = ::close(file);
    if (failed) errno = error;
    return failed ? -1 : closed;
}
int rename(const fs::path& from, const fs::path& to) {
    return fails(Call::Rename, to) ? -1 : ::rename(from.c_str(), to.c_str());
}
int replace(const fs::path& from, const fs::path& to) { return system_calls::rename(from, to); }
int replace_folder(const fs::path& from, const fs::path& to) { return system_calls::rename(from, to); }
int remove(const fs::path& path) { return fails(Call::Remove, path) ? -1 : ::unlink(path.c_str()); }
int remove_folder(const fs::path& path) { return fails(Call::RemoveFolder, path) ? -1 : ::rmdir(path.c_str()); }
int make_folder(const fs::path& path) { return fails(Call::MakeFolder, path) ? -1 : ::mkdir(path.c_str(), 0777); }
int make_link(const fs::path& target, const fs::path& path) {
    return fails(Call::MakeLink, path) ? -1 : ::symlink(target.c_str(), path.c_str());
}

Folder* open_folder(const fs::path& path) {
    DIR* const open = fails(Call::OpenFolder, path) ? nullptr : ::opendir(path.c_str());
    return open ? new Folder{open} : nullptr;
}

const Entry* read_folder(Folder* folder, const fs::path& path) {
    if (fails(Call::ReadFolder, path)) return nullptr;
    errno = 0;
    while (const dirent* found = ::readdir(folder->open)) {
        const std::string_view name = static_cast<const char*>(found->d_name);
        if (name == "." || name == "..") continue;
        folder->entry = {name, kind_of_entry(found->d_type), name.starts_with('.')};
        return &folder->entry;
    }
    return nullptr;
}

void close_folder(Folder* folder) {
    ::closedir(folder->open);
    delete folder;
}

}  // namespace system_calls

}  // namespace platform
