#pragma once

#include <filesystem>

namespace platform {

// What a call of the system answers where nothing is at a path.
bool says_absent(int error);

// Throws the failure of an error of the system, with the name of the file or folder.
[[noreturn]] void fail(int error, const std::filesystem::path& path);

}  // namespace platform
