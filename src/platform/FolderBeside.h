#pragma once

#include <cstdint>
#include <filesystem>

namespace platform {

// A new folder beside others, which no list shows; `take_place` puts it in its place with all its files, and without
// that it goes again. Failures as in Files.h.
class FolderBeside {
public:
    explicit FolderBeside(const std::filesystem::path& parent);
    ~FolderBeside();
    FolderBeside(const FolderBeside&) = delete;
    FolderBeside& operator=(const FolderBeside&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::uint64_t device() const;  // its file system
    // In the same parent, where nothing stands, or an empty folder.
    void take_place(const std::filesystem::path& place);

private:
    std::filesystem::path path_;
};

}  // namespace platform
