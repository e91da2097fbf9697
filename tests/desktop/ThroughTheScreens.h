#pragma once

#include <functional>

#include "desktop/RealProgram.h"

namespace table {
class frmTavrin02;
}

// A walk through all screens with a deal in them, the report last.
class ThroughTheScreens : public RealProgram {
protected:
    // Calls `look` at each screen, at the editor with its preview too, and at the table before the start, at its first
    // text and when all is played.
    void through_the_screens(const std::function<void()>& look);

private:
    void play_to_the_end(table::frmTavrin02& table);
};
