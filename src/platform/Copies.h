#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"

namespace platform {

class FileBeside;
class FolderBeside;

// Copies of files that take their places together: each is written beside its target at once, or in a folder beside
// one that is empty; `finish` brings all of them to the disk with one flush and then renames what is beside. What is
// not finished goes again, and every target is as it was. Failures as in Files.h.
class Copies {
public:
    Copies();
    ~Copies();
    Copies(const Copies&) = delete;
    Copies& operator=(const Copies&) = delete;

    // Adds the files of those names, which the folder `from` lists, for the same names in the folder `to`, whichever
    // case they have there. A link in a target's place is refused (75), one in the place of a file of `from` if it is
    // not to be followed. What was left beside others in `to` goes. After a failure none of these files is added.
    void add_folder(std::string_view from, const std::vector<std::string>& names, std::string_view to,
                    Links links_in_from);
    void finish();
    // Brings to the disk that the copies have taken their places.
    void flush();

private:
    struct Source;
    struct NewFolder {
        std::unique_ptr<FolderBeside> beside;
        std::filesystem::path place;
    };
    void fill(const std::filesystem::path& empty_folder, const std::vector<Source>& sources);

    std::vector<std::unique_ptr<FileBeside>> files_;
    std::vector<NewFolder> folders_;
    std::set<std::filesystem::path> cleared_;                 // of what was left behind in them
    std::map<std::uint64_t, std::filesystem::path> devices_;  // of all targets, with a folder on each
};

}  // namespace platform
