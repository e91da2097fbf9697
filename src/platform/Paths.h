#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// Paths in the program are texts in Windows-1252 with the host's separator; see name_text for what that cannot hold.
inline constexpr char kPathSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

// folder, separator, name.
std::string join_path(std::string_view folder, std::string_view name);
// What stands behind the last separator.
std::string last_part(std::string_view path);

std::string path_text(const std::filesystem::path& path);

// The file or folder that the path names: each component by its exact name where that exists, otherwise by the first
// name that is equal without regard to case. From the first component that is not there on, the path as it stands.
// Where that cannot be told, because a folder can't be read, it is a failure as in Files.h.
std::filesystem::path find_case_blind(std::string_view path);
