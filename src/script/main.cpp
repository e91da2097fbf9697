#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <vector>

#include "script/CommandLine.h"
#include "script/ScriptHost.h"

namespace {

constexpr std::string_view kDesktop = "--desktop";

// Goes on as the program beside this one that has real windows. Returns only where there is none.
int go_on_with_windows(std::vector<char*> arguments) {
    std::erase(arguments, kDesktop);
    arguments.push_back(nullptr);
    const auto sibling = std::filesystem::read_symlink("/proc/self/exe").parent_path() / "zandolin_script_desktop";
    execv(sibling.c_str(), arguments.data());
    std::cerr << sibling.string() << " is not there: the program was built without Qt\n";
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<char*> arguments(argv, argv + argc);
    if (std::ranges::find(arguments, kDesktop) != arguments.end()) return go_on_with_windows(arguments);
    return script::run_command_line(argc, argv, [](const std::string& program_folder) {
        return std::make_unique<script::ScriptHost>(program_folder);
    });
}
