#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>

#include "platform/SystemCalls.h"

namespace platform {

// A file that is open. Every failure is a Fout that names the file: 76 where its folder is not there, otherwise as
// Fout::from tells.
class OpenFile {
public:
    OpenFile(std::filesystem::path path, system_calls::OpenFor purpose, unsigned mode = 0666);
    ~OpenFile();  // closes it; who has written closes it before, to hear of a failure
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    std::size_t read(char* bytes, std::size_t count);  // 0 at the end
    void write(std::string_view bytes);
    // Where the file system keeps no modes, nothing happens.
    void set_mode(unsigned mode);
    void flush_to_disk();
    // What was written is on the disk when `flush_device` has been called for a folder of the same file system.
    void flush_with_device();
    void close();
    system_calls::About status() const;

private:
    std::filesystem::path path_;
    int file_;
};

void flush_device(const std::filesystem::path& folder);

}  // namespace platform
