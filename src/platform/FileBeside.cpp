#include "platform/FileBeside.h"

#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <utility>

#include "platform/Failure.h"
#include "platform/SystemCalls.h"

namespace platform {

namespace {

bool is_link(const std::filesystem::path& path) {
    system_calls::About about;
    return system_calls::link_status(path, about) == 0 && about.kind == system_calls::Kind::Link;
}

}  // namespace

std::string beside_name() {
    static std::atomic<unsigned> given = 0;
    return std::string(kBesideName) + std::to_string(getpid()) + "-" + std::to_string(given++);
}

FileBeside::FileBeside(Target target) : target_(std::move(target)) {
    if (target_.about) {
        // One that may not be written is not replaced either.
        const OpenFile writable(target_.path, system_calls::OpenFor::Writing);
        if (is_link(target_.path) && system_calls::resolve(target_.path, target_.path) != 0) fail(errno, target_.path);
    }
    while (!file_) {
        path_ = target_.path.parent_path() / beside_name();
        system_calls::About about;
        if (system_calls::link_status(path_, about) == 0) continue;
        file_.emplace(path_, system_calls::OpenFor::WritingNew, target_.about ? target_.about->mode & 0777U : 0666U);
    }
}

FileBeside::~FileBeside() {
    file_.reset();  // an open file cannot go everywhere
    if (!path_.empty()) system_calls::remove(path_);
}

void FileBeside::close() {
    if (target_.about) file_->set_mode(target_.about->mode);
    file_->close();
}

void FileBeside::take_place() {
    if (system_calls::replace(path_, target_.path) != 0) fail(errno, target_.path);
    file_.reset();
    path_.clear();
}

}  // namespace platform
