#include "platform/SystemCalls.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

namespace system_calls {

namespace {

Hook& hook() {
    static Hook set;
    return set;
}

bool fails(Call call, const char* path) {
    if (!hook()) return false;
    const int error = hook()(call, path);
    if (error != 0) errno = error;
    return error != 0;
}

}  // namespace

int status(const char* path, struct stat& about) { return fails(Call::Status, path) ? -1 : ::stat(path, &about); }
int link_status(const char* path, struct stat& about) { return fails(Call::Status, path) ? -1 : ::lstat(path, &about); }
int open(const char* path, int flags, mode_t mode) {
    return fails(Call::Open, path) ? -1 : ::open(path, flags | O_CLOEXEC, mode);
}
int open_status(int file, const char* path, struct stat& about) {
    return fails(Call::Status, path) ? -1 : ::fstat(file, &about);
}
ssize_t read(int file, const char* path, char* bytes, std::size_t count) {
    return fails(Call::Read, path) ? -1 : ::read(file, bytes, count);
}
ssize_t write(int file, const char* path, const char* bytes, std::size_t count) {
    return fails(Call::Write, path) ? -1 : ::write(file, bytes, count);
}
int truncate(int file, const char* path) { return fails(Call::Truncate, path) ? -1 : ::ftruncate(file, 0); }
int set_mode(int file, const char* path, mode_t mode) { return fails(Call::Mode, path) ? -1 : ::fchmod(file, mode); }
int sync(int file, const char* path) { return fails(Call::Sync, path) ? -1 : ::fsync(file); }
int sync_device(int file, const char* path) { return fails(Call::Sync, path) ? -1 : ::syncfs(file); }
// A file is closed in any case, so that a failure that a test asks for does not leave it open.
int close(int file, const char* path) {
    const bool failed = fails(Call::Close, path);
    const int error = errno;
    const int closed = ::close(file);
    if (failed) errno = error;
    return failed ? -1 : closed;
}
int rename(const char* from, const char* to) { return fails(Call::Rename, to) ? -1 : ::rename(from, to); }
int remove(const char* path) { return fails(Call::Remove, path) ? -1 : ::unlink(path); }
int remove_folder(const char* path) { return fails(Call::RemoveFolder, path) ? -1 : ::rmdir(path); }
int make_folder(const char* path) { return fails(Call::MakeFolder, path) ? -1 : ::mkdir(path, 0777); }
DIR* open_folder(const char* path) { return fails(Call::OpenFolder, path) ? nullptr : ::opendir(path); }
const dirent* read_folder(DIR* folder, const char* path) {
    if (fails(Call::ReadFolder, path)) return nullptr;
    errno = 0;
    return ::readdir(folder);
}

HookScope::HookScope(Hook to_set) : before_(std::exchange(hook(), std::move(to_set))) {}
HookScope::~HookScope() { hook() = std::move(before_); }

}  // namespace system_calls
