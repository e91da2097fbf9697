#pragma once

#include <string>
#include <vector>

namespace deals {

// Makes deals of the companion and lessons of the boards in PBN and LIN files, and copies deals out of a folder of a
// companion. A line a deal goes to standard output, "Spel 012", "QVT_Spel 007" or "refused: board 3, line 41: ...",
// what was mended or cut to standard error. The exit status: 0; 1 where a deal was refused or a file cannot be read; 2
// where nothing was made.
int import(const std::vector<std::string>& words);

}  // namespace deals
