#pragma once

#include <functional>

#include "desktop/RealProgram.h"

// A walk through all screens with a deal in them, the report last.
class ThroughTheScreens : public RealProgram {
protected:
    // Calls `look` at each screen, at the table before the start and after the first card.
    void through_the_screens(const std::function<void()>& look);
};
