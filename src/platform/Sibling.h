#pragma once

#include <optional>
#include <string>
#include <vector>

// Other programs of the system, which lie beside this one. Words are UTF-8.
namespace platform {

// Goes on as that program with those words, the first of which is replaced by its name. Where the system can only run
// it beside this one, gives its exit status; nothing if it is not there.
std::optional<int> go_on_as(const std::string& program, std::vector<std::string> words);

// Runs it to its end with those words behind its name, on this program's input and output, and gives its exit status;
// one that was killed has 2. Failure 53 where it is not there.
int run_sibling(const std::string& program, std::vector<std::string> words);

}  // namespace platform
