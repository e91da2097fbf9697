#pragma once

#include <string>
#include <vector>

namespace deals {

inline constexpr const char* kCheckUsage = "check LESSON|FILE... [--program DIR] [--json]";

// Tells of each lesson, deal of the companion or board whether its record keeps to the rules, what its contract makes
// on best play, and which cards gave tricks away. Deals are worked on side by side; how many are done goes to standard
// error, and an interrupt ends the work behind those. The exit status: 0; 1 where a record breaks the rules, something
// could not be read, or the work was interrupted; 2 where nothing was checked.
int check(const std::vector<std::string>& words);

}  // namespace deals
