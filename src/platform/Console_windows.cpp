#include "platform/Console.h"

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>
#include <memory>

#include "platform/Paths.h"

namespace platform {

Utf8Console::Utf8Console() : output_before_(GetConsoleOutputCP()), input_before_(GetConsoleCP()) {
    SetConsoleOutputCP(CP_UTF8);
    SetConsoleCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

Utf8Console::~Utf8Console() {
    SetConsoleOutputCP(output_before_);
    SetConsoleCP(input_before_);
}

std::vector<std::string> command_line(int, char**) {
    int count = 0;
    const std::unique_ptr<wchar_t*, HLOCAL (*)(HLOCAL)> words(CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
    std::vector<std::string> all;
    for (int i = 0; i < count; ++i)
        all.push_back(bytes_of(words.get()[i]));
    return all;
}

bool error_is_terminal() { return _isatty(_fileno(stderr)) != 0; }

bool has_display() { return true; }

}  // namespace platform
