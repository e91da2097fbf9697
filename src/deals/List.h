#pragma once

#include <string>
#include <vector>

namespace deals {

inline constexpr const char* kListUsage = "list FILE... [--json]";

// Tells every board of the files, a line each or as one array of JSON; what is mended or left out goes to standard
// error. The exit status: 0; 1 where a board is against the rules or a file cannot be read; 2 where none can.
int list(const std::vector<std::string>& words);

}  // namespace deals
