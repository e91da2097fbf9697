#pragma once

#include <string>
#include <vector>

namespace platform {

// What programs that are started from a command line need.

// While it lives, texts in UTF-8 go out and come in as they are, bytes and line ends too.
class Utf8Console {
public:
    Utf8Console();
    ~Utf8Console();
    Utf8Console(const Utf8Console&) = delete;
    Utf8Console& operator=(const Utf8Console&) = delete;

private:
    [[maybe_unused]] unsigned output_before_ = 0;  // code pages, where a console has them
    [[maybe_unused]] unsigned input_before_ = 0;
};

// The words that the program was started with, the program first, in UTF-8.
std::vector<std::string> command_line(int argc, char** argv);

bool error_is_terminal();
// Whether windows can be shown.
bool has_display();

}  // namespace platform
