#include "platform/OpenFolder.h"

#include <cerrno>
#include <utility>

#include "platform/Failure.h"

namespace platform {

OpenFolder::OpenFolder(std::filesystem::path path) : path_(std::move(path)), folder_(system_calls::open_folder(path_)) {
    if (!folder_ && !says_absent(errno)) fail(errno, path_);
}

const system_calls::Entry* OpenFolder::next() {
    const system_calls::Entry* const entry = system_calls::read_folder(folder_.get(), path_);
    if (!entry && errno != 0) fail(errno, path_);
    return entry;
}

}  // namespace platform
