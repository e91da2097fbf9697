#include "platform/OpenFile.h"

#include <cerrno>
#include <utility>

#include "base/Fout.h"
#include "platform/Failure.h"
#include "platform/Paths.h"

namespace platform {

namespace {

constexpr int kClosed = -1;

// What a file system answers that cannot do a thing at all.
bool unsupported(int error) { return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM; }

}  // namespace

OpenFile::OpenFile(std::filesystem::path path, system_calls::OpenFor purpose, unsigned mode)
    : path_(std::move(path)), file_(system_calls::open(path_, purpose, mode)) {
    if (file_ >= 0) return;
    if (errno == ENOENT) throw base::Fout(base::FoutNummer::PathNotFound, path_text(path_.filename()));
    fail(errno, path_);
}

OpenFile::~OpenFile() {
    if (file_ != kClosed) system_calls::close(file_, path_);
}

std::size_t OpenFile::read(char* bytes, std::size_t count) {
    std::ptrdiff_t got = 0;
    do {
        got = system_calls::read(file_, path_, bytes, count);
    } while (got < 0 && errno == EINTR);
    if (got < 0) fail(errno, path_);
    return static_cast<std::size_t>(got);
}

void OpenFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::ptrdiff_t written = system_calls::write(file_, path_, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) fail(errno, path_);
        if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void OpenFile::set_mode(unsigned mode) {
    if (system_calls::set_mode(file_, path_, mode) != 0 && !unsupported(errno)) fail(errno, path_);
}

void OpenFile::flush_to_disk() {
    if (system_calls::sync(file_, path_) != 0 && !unsupported(errno)) fail(errno, path_);
}

void OpenFile::flush_with_device() {
    if (system_calls::sync_with_device(file_, path_) != 0 && !unsupported(errno)) fail(errno, path_);
}

void OpenFile::close() {
    if (system_calls::close(std::exchange(file_, kClosed), path_) != 0) fail(errno, path_);
}

system_calls::About OpenFile::status() const {
    system_calls::About about;
    if (system_calls::open_status(file_, path_, about) != 0) fail(errno, path_);
    return about;
}

void flush_device(const std::filesystem::path& folder) {
    if (system_calls::sync_device(folder) != 0 && !unsupported(errno)) fail(errno, folder);
}

}  // namespace platform
