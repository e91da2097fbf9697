// zandolin_deals: deals from files of other programs. Exit status 0; 1 where some deals were refused; 2 where nothing
// was done.
#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "deals/BoardFile.h"
#include "deals/Listing.h"

namespace {

constexpr int kDone = 0;
constexpr int kSomeRefused = 1;
constexpr int kNothingDone = 2;

constexpr const char* kUsage = "usage: zandolin_deals list FILE... [--json]\n";

struct Arguments {
    std::vector<std::string> files{};
    bool json = false;
};

int list(const Arguments& arguments) {
    int number = 0;
    int unread = 0;
    bool refused = false;
    if (arguments.json) std::cout << "[";
    for (const std::string& file : arguments.files) {
        const std::string in_file = arguments.files.size() > 1 ? file + ": " : "";
        try {
            deals::read_boards(file, [&](exchange::Board& board) {
                ++number;
                if (arguments.json) {
                    std::cout << (number > 1 ? ",\n" : "\n") << deals::json_of(number, board);
                } else {
                    std::cout << deals::line_of(number, board) << "\n";
                }
                for (const exchange::Remark& note : board.notes) {
                    std::cerr << "note: " << in_file << "board " << board.board << ", line " << note.line << ": "
                              << note.text << "\n";
                }
                refused = refused || board.error.has_value();
            });
        } catch (const std::exception& failure) {
            std::cerr << "error: " << in_file << failure.what() << "\n";
            ++unread;
        }
    }
    if (arguments.json) std::cout << "\n]\n";
    if (unread == static_cast<int>(arguments.files.size())) return kNothingDone;
    return refused || unread > 0 ? kSomeRefused : kDone;
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> words(argv + 1, argv + argc);
    Arguments arguments;
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (words[i] == "--json") {
            arguments.json = true;
        } else {
            arguments.files.push_back(words[i]);
        }
    }
    const bool known = !words.empty() && words[0] == "list";
    const bool option =
        std::ranges::any_of(arguments.files, [](const std::string& file) { return file.starts_with("--"); });
    if (!known || arguments.files.empty() || option) {
        std::cerr << kUsage;
        return kNothingDone;
    }
    return list(arguments);
}
