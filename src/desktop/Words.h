#pragma once

#include <QLatin1StringView>

// The words that the real windows add to those of the program's own messages.
namespace desktop::words {

inline constexpr QLatin1StringView kProgram("Zandolin Lomert");
inline constexpr QLatin1StringView kYes("&Ja");
inline constexpr QLatin1StringView kNo("&Nee");
inline constexpr QLatin1StringView kOk("OK");
// %1 is the file.
inline constexpr QLatin1StringView kNoHelpViewer("Er is geen programma gevonden dat de handleiding kan openen:\n\n%1");

}  // namespace desktop::words
