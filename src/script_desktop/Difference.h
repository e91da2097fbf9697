#pragma once

#include <string>

#include "desktop/QtHost.h"

namespace script_desktop {

// The first thing that a window does not show as its form has it: the control, what the form says and what the window
// shows. Empty if there is none. Words may be wrapped or elided, and a place be a pixel off.
std::string difference(const desktop::QtHost& host, const forms::Windows& windows);

}  // namespace script_desktop
