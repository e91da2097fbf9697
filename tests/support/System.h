#pragma once

#include <filesystem>
#include <string>

#include "base/Text.h"
#include "platform/Paths.h"

// What tests need of the operating system, each in its way.

// A folder of its own, new and empty, where files are fast if that can be.
std::filesystem::path new_temporary_folder();

void set_environment(const std::string& name, const std::string& value);

// A text with the system's separator for "/".
inline std::string native(const std::string& path) {
    return base::replaced(path, "/", std::string(1, platform::kPathSeparator));
}

// What it is called in scenarios.
extern const char* const kSystem;

// Whether the system finds a file whose name is spelled in other letters, so that two such files cannot be.
extern const bool kSystemIgnoresCase;
// Whether a name is any bytes, otherwise UTF-16.
extern const bool kNamesAreBytes;

// Makes a pipe; gives false where folders have none.
bool make_pipe(const std::filesystem::path& path);

// Makes a link; where the system lets nobody make one, gives false, and the test is skipped.
inline constexpr const char* kNoLinks = "nobody may make links here";
[[nodiscard]] bool make_link(const std::filesystem::path& target, const std::filesystem::path& link);
