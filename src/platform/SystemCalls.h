#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>

namespace platform {

// The calls of the operating system that files and folders are read and written with; nothing else in the program
// makes them. Each system has a source of its own for them. A call that fails gives -1 or nullptr and sets errno, as it
// is on POSIX. A call on an open file gets its path too.
namespace system_calls {

enum class Call {
    Status,
    Open,
    Read,
    Write,
    Mode,
    Sync,
    Close,
    Rename,
    Remove,
    RemoveFolder,
    MakeFolder,
    MakeLink,
    OpenFolder,
    ReadFolder,
};

enum class Kind { File, Folder, Link, Other, Unknown };

// What stands at a path. Two paths with the same device and number lead to the same file.
struct About {
    Kind kind = Kind::Unknown;
    std::int64_t length = 0;
    std::chrono::system_clock::time_point changed{};
    unsigned mode = 0;         // permissions, where there are such
    std::uint64_t device = 0;  // the file system
    std::uint64_t number = 0;
};

enum class OpenFor {
    Reading,
    ReadingNoLink,   // a link in its place is refused
    Writing,         // a file that is there
    WritingAnew,     // emptied, or new; a link is refused
    WritingAtStart,  // what is not written over stays; or new; a link is refused
    WritingNew,      // there must be none
};

int status(const std::filesystem::path& path, About& about);       // of what a link leads to
int link_status(const std::filesystem::path& path, About& about);  // of the link itself
int resolve(const std::filesystem::path& link, std::filesystem::path& target);
int open(const std::filesystem::path& path, OpenFor purpose, unsigned mode);
int open_status(int file, const std::filesystem::path& path, About& about);
std::ptrdiff_t read(int file, const std::filesystem::path& path, char* bytes, std::size_t count);
std::ptrdiff_t write(int file, const std::filesystem::path& path, const char* bytes, std::size_t count);
int set_mode(int file, const std::filesystem::path& path, unsigned mode);
int sync(int file, const std::filesystem::path& path);
// Brings files to the disk together: the first for each of them, then the other for their file system, of which it gets
// a folder. A system that can do all at once does nothing for each, and the other way round.
int sync_with_device(int file, const std::filesystem::path& path);
int sync_device(const std::filesystem::path& folder);
int close(int file, const std::filesystem::path& path);
int rename(const std::filesystem::path& from, const std::filesystem::path& to);
int replace(const std::filesystem::path& from, const std::filesystem::path& to);         // of a file that may be there
int replace_folder(const std::filesystem::path& from, const std::filesystem::path& to);  // of an empty one likewise
int remove(const std::filesystem::path& path);
int remove_folder(const std::filesystem::path& path);
int make_folder(const std::filesystem::path& path);
int make_link(const std::filesystem::path& target, const std::filesystem::path& path);

// One entry of a folder. The name is as platform::name_text takes it.
struct Entry {
    std::string_view name;  // until the next one is read
    Kind kind = Kind::Unknown;
    bool hidden = false;
};
struct Folder;
Folder* open_folder(const std::filesystem::path& path);
const Entry* read_folder(Folder* folder, const std::filesystem::path& path);  // nullptr with errno 0 at the end
void close_folder(Folder* folder);

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

// For the calls themselves: whether the hook lets this one fail; errno is set then.
bool fails(Call call, const std::filesystem::path& path);

}  // namespace system_calls

}  // namespace platform
