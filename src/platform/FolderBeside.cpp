#include "platform/FolderBeside.h"

#include <cerrno>

#include "base/Fout.h"
#include "platform/Failure.h"
#include "platform/FileBeside.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"

namespace platform {

FolderBeside::FolderBeside(const std::filesystem::path& parent) {
    std::filesystem::path path;
    do {
        path = parent / beside_name();
        if (system_calls::make_folder(path) == 0) break;
        if (errno == ENOENT) throw base::Fout(base::FoutNummer::PathNotFound, path_text(parent.filename()));
        if (errno != EEXIST) fail(errno, parent);
    } while (true);
    path_ = std::move(path);
}

FolderBeside::~FolderBeside() {
    if (path_.empty()) return;
    try {
        remove_with_files(path_);
    } catch (const base::Fout&) {  // It goes with what is left behind.
    }
}

std::uint64_t FolderBeside::device() const {
    system_calls::About about;
    if (system_calls::status(path_, about) != 0) fail(errno, path_);
    return about.device;
}

void FolderBeside::take_place(const std::filesystem::path& place) {
    if (system_calls::replace_folder(path_, place) != 0) fail(errno, place);
    path_.clear();
}

}  // namespace platform
