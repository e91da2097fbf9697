#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "platform/Console.h"

namespace platform {

Utf8Console::Utf8Console() = default;
Utf8Console::~Utf8Console() {}  // nothing has to be put back

std::vector<std::string> command_line(int argc, char** argv) { return {argv, argv + argc}; }

bool error_is_terminal() { return isatty(STDERR_FILENO) != 0; }

bool has_display() {
    return std::ranges::any_of(std::array{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"},
                               [](const char* name) { return std::getenv(name) != nullptr; });
}

}  // namespace platform
