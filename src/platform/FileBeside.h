#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/OpenFile.h"

// What the files that are written beside others are called: hidden, and as nobody else calls one.
inline constexpr std::string_view kBesideName = ".zandolin-nieuw-";

// A file to be written, and what it is if it is there.
struct Target {
    std::filesystem::path path;
    std::optional<struct stat> about{};
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
    // Nothing is written any more; whether it is on the disk is not known yet.
    void close();
    void take_place();

    dev_t device() const { return file_->status().st_dev; }  // of its file system; before it is closed
    const std::filesystem::path& target() const { return target_.path; }

private:
    mode_t mode() const { return target_.about->st_mode & 07777U; }

    Target target_;
    std::filesystem::path path_;
    std::optional<OpenFile> file_;
};
