#pragma once

#include <dirent.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>
#include <functional>

// The calls of the operating system that files and folders are read and written with; nothing else in the program
// makes them. Each takes, gives and leaves errno as the call that it makes. A call on an open file gets its path too.
namespace system_calls {

enum class Call {
    Status,
    Open,
    Read,
    Write,
    Truncate,
    Mode,
    Sync,
    Close,
    Rename,
    Remove,
    RemoveFolder,
    MakeFolder,
    OpenFolder,
    ReadFolder,
};

int status(const char* path, struct stat& about);       // of what a link leads to
int link_status(const char* path, struct stat& about);  // of the link itself
int open(const char* path, int flags, mode_t mode);
int open_status(int file, const char* path, struct stat& about);
ssize_t read(int file, const char* path, char* bytes, std::size_t count);
ssize_t write(int file, const char* path, const char* bytes, std::size_t count);
int truncate(int file, const char* path);
int set_mode(int file, const char* path, mode_t mode);
int sync(int file, const char* path);
int sync_device(int file, const char* path);  // all of its file system
int close(int file, const char* path);
int rename(const char* from, const char* to);
int remove(const char* path);
int remove_folder(const char* path);
int make_folder(const char* path);
DIR* open_folder(const char* path);
const dirent* read_folder(DIR* folder, const char* path);  // nullptr with errno 0 at the end

// For tests: asked before each call, with the path (of a renaming the new one). What it gives is the errno with which
// the call fails without being made; 0 lets it be made. It may as well end the process.
using Hook = std::function<int(Call call, const char* path)>;

// Sets the hook for as long as it lives.
class HookScope {
public:
    explicit HookScope(Hook hook);
    ~HookScope();
    HookScope(const HookScope&) = delete;
    HookScope& operator=(const HookScope&) = delete;

private:
    Hook before_;
};

}  // namespace system_calls
