#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/OpenFile.h"

namespace platform {

// What the files that are written beside others are called: hidden, and as nobody else calls one.
inline constexpr std::string_view kBesideName = ".zandolin-nieuw-";
// One that this process has not given yet.
std::string beside_name();

// A file to be written, and what it is if it is there.
struct Target {
    std::filesystem::path path;
    std::optional<system_calls::About> about{};
};

// A new file beside its target; `take_place` puts it in the target's place, with the target's mode, and without that it
// goes again. A target that is reached by a link stays where it is; one that may not be written is failure 70.
class FileBeside {
public:
    explicit FileBeside(Target target);
    ~FileBeside();
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    void write(std::string_view bytes) { file_->write(bytes); }
    void flush_to_disk() { file_->flush_to_disk(); }
    void flush_with_device() { file_->flush_with_device(); }
    // Nothing is written any more; whether it is on the disk is not known yet.
    void close();
    void take_place();

    std::uint64_t device() const { return file_->status().device; }  // of its file system; before it is closed
    const std::filesystem::path& target() const { return target_.path; }

private:
    Target target_;
    std::filesystem::path path_;
    std::optional<OpenFile> file_;
};

}  // namespace platform
