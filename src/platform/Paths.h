#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace platform {

// Paths in the program are texts in Windows-1252 with the host's separator; see name_text for what that cannot hold.
inline constexpr char kPathSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

// folder, separator, name.
std::string join_path(std::string_view folder, std::string_view name);
// What stands behind the last separator.
std::string last_part(std::string_view path);

std::string path_text(const std::filesystem::path& path);

// A path of the system from its bytes, as platform::name_bytes and the command line give them, and back. What the
// standard library itself makes of bytes depends on the system.
std::filesystem::path path_of(std::string_view bytes);
std::string bytes_of(const std::filesystem::path& path);

// The file or folder that the path names: each component by its exact name where that exists, otherwise by the first
// name that is equal without regard to case. From the first component that is not there on, the path as it stands.
// Where that cannot be told, because a folder can't be read, it is a failure as in Files.h. A system that looks without
// regard to case itself is only asked how the file or folder is spelled.
std::filesystem::path find_case_blind(std::string_view path);

}  // namespace platform
