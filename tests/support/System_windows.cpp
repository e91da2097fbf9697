#include "support/System.h"

#include <stdlib.h>
#include <unistd.h>

#include "platform/SystemCalls.h"

const char* const kSystem = "windows";
const bool kSystemIgnoresCase = true;
const bool kNamesAreBytes = false;

std::filesystem::path new_temporary_folder() {
    static int number = 0;
    for (;;) {
        const std::string name = "zandolin-" + std::to_string(getpid()) + "-" + std::to_string(++number);
        const std::filesystem::path folder = std::filesystem::temp_directory_path() / name;
        if (std::filesystem::create_directory(folder)) return folder;
    }
}

void set_environment(const std::string& name, const std::string& value) { _putenv_s(name.c_str(), value.c_str()); }

bool make_pipe(const std::filesystem::path&) { return false; }

bool make_link(const std::filesystem::path& target, const std::filesystem::path& link) {
    const std::filesystem::path from = target.is_absolute() ? target : link.parent_path() / target;
    return platform::system_calls::make_link(from, link) == 0;
}
