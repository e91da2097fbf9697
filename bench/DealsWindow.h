#pragma once

#include "Measure.h"

namespace bench {

// Measures the window of deals on a file of 10,000 boards.
void measure_deals_window(Report& report);

}  // namespace bench
