#include "platform/OpenFile.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include "base/Fout.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"

namespace {

constexpr int kClosed = -1;

// What a file system answers that cannot do a thing at all.
bool unsupported(int error) { return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM; }

}  // namespace

OpenFile::OpenFile(std::filesystem::path path, int flags, mode_t mode)
    : path_(std::move(path)), file_(system_calls::open(path_.c_str(), flags, mode)) {
    if (file_ >= 0) return;
    if (errno == ENOENT) throw Fout(FoutNummer::PathNotFound, path_text(path_.filename()));
    fail();
}

OpenFile::~OpenFile() {
    if (file_ != kClosed) system_calls::close(file_, path_.c_str());
}

std::size_t OpenFile::read(char* bytes, std::size_t count) {
    ssize_t got = 0;
    do {
        got = system_calls::read(file_, path_.c_str(), bytes, count);
    } while (got < 0 && errno == EINTR);
    if (got < 0) fail();
    return static_cast<std::size_t>(got);
}

void OpenFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = system_calls::write(file_, path_.c_str(), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) fail();
        if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void OpenFile::truncate() {
    if (system_calls::truncate(file_, path_.c_str()) != 0) fail();
}

void OpenFile::set_mode(mode_t mode) {
    if (system_calls::set_mode(file_, path_.c_str(), mode) != 0 && !unsupported(errno)) fail();
}

void OpenFile::flush_to_disk() {
    if (system_calls::sync(file_, path_.c_str()) != 0 && !unsupported(errno)) fail();
}

void OpenFile::flush_device() {
    if (system_calls::sync_device(file_, path_.c_str()) != 0 && !unsupported(errno)) fail();
}

void OpenFile::close() {
    if (system_calls::close(std::exchange(file_, kClosed), path_.c_str()) != 0) fail();
}

struct stat OpenFile::status() const {
    struct stat about {};
    if (system_calls::open_status(file_, path_.c_str(), about) != 0) fail();
    return about;
}

void OpenFile::fail() const { throw Fout::from({errno, std::generic_category()}, path_text(path_.filename())); }
