#include <algorithm>
#include <iostream>
#include <memory>

#include "platform/Console.h"
#include "platform/Sibling.h"
#include "script/CommandLine.h"
#include "script/ScriptHost.h"

namespace {

constexpr const char* kDesktop = "zandolin_script_desktop";  // which has real windows

}  // namespace

int main(int argc, char** argv) {
    const platform::Utf8Console console;
    std::vector<std::string> words = platform::command_line(argc, argv);
    if (std::erase(words, "--desktop") > 0) {
        if (const auto status = platform::go_on_as(kDesktop, words)) return *status;
        std::cerr << kDesktop << " is not there\n";
        return 1;
    }
    return script::run_command_line(
        words, [](const std::string& program_folder) { return std::make_unique<script::ScriptHost>(program_folder); });
}
