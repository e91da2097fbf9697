#pragma once

#include <string>
#include <string_view>

namespace platform {

// Inside the program a text is Windows-1252, one byte a character; at the edges, for file names and the screen, UTF-8.

std::string to_utf8(std::string_view text);

// What Windows-1252 cannot hold, and every byte that is no UTF-8, becomes "?".
std::string from_utf8(std::string_view text);

// Names of files and folders must come back as they were: of two names no one text is made. What Windows-1252 cannot
// hold stands as its code point in braces, "{2665}", and a byte that is no UTF-8 as "{E9}"; a brace that would begin
// such a mark is itself one, "{7B}".
std::string name_text(std::string_view bytes);
std::string name_bytes(std::string_view text);

// UTF-8 as UTF-16 and back, for a system whose names are such. Half a pair that stands alone, which a name may hold, is
// kept: as if it were a code point.
std::u16string utf16_of(std::string_view bytes);
std::string bytes_of_utf16(std::u16string_view units);

}  // namespace platform
