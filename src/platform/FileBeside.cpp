#include "platform/FileBeside.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include "base/Fout.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"

namespace fs = std::filesystem;

namespace {

bool is_link(const fs::path& path) {
    struct stat about {};
    return system_calls::link_status(path.c_str(), about) == 0 && S_ISLNK(about.st_mode);
}

}  // namespace

FileBeside::FileBeside(Target target) : target_(std::move(target)) {
    if (target_.about) {
        const OpenFile writable(target_.path, O_WRONLY);  // one that may not be written is not replaced either
        if (is_link(target_.path)) target_.path = fs::canonical(target_.path);
    }
    for (int number = 0; !file_; ++number) {
        path_ = target_.path.parent_path() /
                (std::string(kBesideName) + std::to_string(getpid()) + "-" + std::to_string(number));
        struct stat about {};
        if (system_calls::link_status(path_.c_str(), about) == 0) continue;
        file_.emplace(path_, O_WRONLY | O_CREAT | O_EXCL, target_.about ? mode() & 0777U : 0666U);
    }
}

FileBeside::~FileBeside() {
    if (!path_.empty()) system_calls::remove(path_.c_str());
}

void FileBeside::close() {
    if (target_.about) file_->set_mode(mode());
    file_->close();
}

void FileBeside::take_place() {
    if (system_calls::rename(path_.c_str(), target_.path.c_str()) != 0) {
        throw Fout::from({errno, std::generic_category()}, path_text(target_.path.filename()));
    }
    file_.reset();
    path_.clear();
}
