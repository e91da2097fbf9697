#pragma once

#include <array>
#include <string>
#include <vector>

#include "support/Program.h"

// Visible controls of a screen that lie exactly on another of their kind.
std::vector<std::string> on_each_other(Program& program, const std::string& form);

// The names in the order Noord, Oost, Zuid, West, as they lie around their middle; of an array all visible elements
// count together, "picPlay(1)" is one element. A name that lies elsewhere is missing.
std::vector<std::string> around_the_table(Program& program, const std::string& form,
                                          const std::array<std::string, 4>& names);
