#pragma once

#include <string>

#include "resources/Bericht.h"

namespace resources {

// The texts that the system shows, in Windows-1252, each under its full number (see Bericht, with gaps).
// The marks in them are for the caller: "~" and "+" are filled in, "|" is a line break.

// The text, or nothing if the table has no such number.
const std::string* message(int number);

// The text; failure 326 if the table has no such number.
std::string message_text(int number);

}  // namespace resources
