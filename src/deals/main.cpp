// zandolin_deals: deals from files of other programs.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "deals/Commands.h"
#include "platform/Console.h"
#include "platform/Paths.h"
#include "platform/Sibling.h"

namespace {

// No words at all, or files without a command: those are for the window.
bool asks_for_window(const std::vector<std::string>& words) {
    return std::all_of(words.begin() + 1, words.end(), [](const std::string& word) {
        return std::filesystem::is_regular_file(platform::path_of(word));
    });
}

}  // namespace

int main(int argc, char** argv) {
    const platform::Utf8Console console;
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> words = platform::command_line(argc, argv);
    if (platform::has_display() && asks_for_window(words)) {
        if (const auto status = platform::go_on_as("zandolin_deals_desktop", words)) return *status;
    }
    return deals::run({words.begin() + 1, words.end()});
}
