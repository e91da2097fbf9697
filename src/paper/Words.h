#pragma once

// The words of the sheets that no page of the web has.
namespace paper::words {

inline constexpr const char* kCompass[] = {"N", "O", "Z", "W"};
inline constexpr const char* kCostly =
    "Het getal achter een kaart zegt hoeveel slagen die kaart weggaf, met alle handen open.";

}  // namespace paper::words
