#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <filesystem>
#include <string_view>

// A file that is open. Every failure is a Fout that names the file: 76 where its folder is not there, otherwise as
// Fout::from tells.
class OpenFile {
public:
    // Flags and mode as of open(2).
    OpenFile(std::filesystem::path path, int flags, mode_t mode = 0666);
    ~OpenFile();  // closes it; who has written closes it before, to hear of a failure
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    std::size_t read(char* bytes, std::size_t count);  // 0 at the end
    void write(std::string_view bytes);
    void truncate();
    // Where the file system keeps no modes, nothing happens.
    void set_mode(mode_t mode);
    void flush_to_disk();
    void flush_device();  // all that was written to its file system
    void close();
    struct stat status() const;

private:
    [[noreturn]] void fail() const;

    std::filesystem::path path_;
    int file_;
};
