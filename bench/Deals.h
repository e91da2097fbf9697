#pragma once

#include <string>

#include "Measure.h"

namespace bench {

// Boards with auction and play as a file of PBN, the same in every run; each is about a kilobyte.
std::string games(int count);

// Measures the program zandolin_deals, which lies in that folder: reading, importing, checking and showing of deals.
void measure_deals(Report& report, const std::string& programs);

}  // namespace bench
