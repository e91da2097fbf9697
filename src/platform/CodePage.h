#pragma once

#include <string>
#include <string_view>

// Inside the program a text is Windows-1252, one byte a character; at the edges, for file names and the screen, UTF-8.

std::string to_utf8(std::string_view text);

// What Windows-1252 cannot hold, and every byte that is no UTF-8, becomes "?".
std::string from_utf8(std::string_view text);
