#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class FolderBeside;

// A file of a folder that is made.
struct NewFile {
    std::string name;
    std::string bytes;
};

// New folders that take their places together: each is made beside its place with all its files at once, `finish`
// brings all of them to the disk with one flush and then renames them. A name that is taken is failure 58, and what is
// there stays. What has not taken its place goes again. Failures as in Files.h.
class NewFolders {
public:
    NewFolders();
    ~NewFolders();
    NewFolders(const NewFolders&) = delete;
    NewFolders& operator=(const NewFolders&) = delete;

    // Makes a folder that is to have that name in `parent`, which is there. After a failure it is not added.
    void add(std::string_view parent, const std::string& name, const std::vector<NewFile>& files);
    std::size_t count() const { return folders_.size(); }
    // How many took their places, in the order in which they were added; all, unless it fails. Then the others go.
    void finish();
    std::size_t placed() const { return placed_; }  // by the last `finish`

private:
    struct Folder {
        std::unique_ptr<FolderBeside> beside;
        std::filesystem::path place;
    };

    std::vector<Folder> folders_;
    std::size_t placed_ = 0;
};

}  // namespace platform
