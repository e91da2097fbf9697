#pragma once

#include <string>
#include <string_view>

namespace exchange {

// A text of a board as the program's own files can hold it: Windows-1252, lines end in CR LF, suit symbols are the
// letters S, H, R and K, control characters are blanks. "|" and "~", which have a meaning in those files, are written
// out, and so are signs that the code page lacks and that have a spelling in it; any other becomes "?".
struct OwnText {
    std::string bytes{};
    bool lossless = true;  // false where a sign became "?"
};
OwnText own_text(std::string_view utf8);

// The other way: UTF-8, lines end in "\n"; a "~" is a line end too.
std::string text_of_own(std::string bytes);

}  // namespace exchange
