#pragma once

#include <filesystem>
#include <memory>

#include "platform/SystemCalls.h"

namespace platform {

// A folder whose entries are read one after the other. Every failure is a Fout that names the folder.
class OpenFolder {
public:
    explicit OpenFolder(std::filesystem::path path);
    bool there() const { return folder_ != nullptr; }  // otherwise no folder is there, and `next` must not be asked
    const system_calls::Entry* next();                 // nullptr at the end; an entry stays until the next one
    const std::filesystem::path& path() const { return path_; }

private:
    struct Close {
        void operator()(system_calls::Folder* folder) const { system_calls::close_folder(folder); }
    };
    std::filesystem::path path_;
    std::unique_ptr<system_calls::Folder, Close> folder_;
};

}  // namespace platform
