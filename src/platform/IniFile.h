#pragma once

#include <string>
#include <string_view>

namespace platform {

// A settings file: sections in brackets, lines of key, equals sign and value; names without regard to case.

// The value without blanks and one pair of quotes around it; empty if the key, the section or the file is not there,
// or the file can't be read.
std::string read_setting(std::string_view file, std::string_view section, std::string_view key);

// Changes or adds one line and leaves every other as it stands; the file is replaced whole. Failures as in Files.h; a
// file that can't be read stays as it is.
void write_setting(std::string_view file, std::string_view section, std::string_view key, std::string_view value);
// Takes out every line of that key in the section, in the same way.
void remove_setting(std::string_view file, std::string_view section, std::string_view key);

}  // namespace platform
