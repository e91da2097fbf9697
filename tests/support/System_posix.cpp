#include "support/System.h"

#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

const char* const kSystem = "posix";
const bool kSystemIgnoresCase = false;
const bool kNamesAreBytes = true;

std::filesystem::path new_temporary_folder() {
    // In memory where that can be: the program flushes what it writes, and a disk takes its time for that.
    const std::filesystem::path memory = "/dev/shm";
    const bool in_memory = access(memory.c_str(), W_OK) == 0;
    std::string name = ((in_memory ? memory : std::filesystem::temp_directory_path()) / "zandolin-XXXXXX").string();
    return mkdtemp(name.data());
}

void set_environment(const std::string& name, const std::string& value) { setenv(name.c_str(), value.c_str(), 1); }

bool make_pipe(const std::filesystem::path& path) { return mkfifo(path.c_str(), 0600) == 0; }

bool make_link(const std::filesystem::path& target, const std::filesystem::path& link) {
    std::filesystem::create_symlink(target, link);
    return true;
}
