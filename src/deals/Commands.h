#pragma once

#include <string>
#include <vector>

namespace deals {

// Runs the command that the first word names. The exit status: 0; 1 where some deals were refused; 2 where nothing was
// done. Failures, and words that make no sense, are told on standard error.
int run(std::vector<std::string> words);

}  // namespace deals
