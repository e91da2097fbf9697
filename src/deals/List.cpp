#include "deals/List.h"

#include <iostream>

#include "deals/Arguments.h"
#include "deals/BoardFile.h"
#include "deals/Listing.h"
#include "deals/Report.h"
#include "deals/Telling.h"

namespace deals {

int list(const std::vector<std::string>& words) {
    const Arguments arguments(words, {}, {"--json"});
    const bool json = arguments.has("--json");
    PrintedReport report;
    int number = 0;
    std::size_t unread = 0;
    bool refused = false;
    if (json) std::cout << "[";
    for (const std::string& file : arguments.files()) {
        const std::string in_file = arguments.files().size() > 1 ? file : "";
        try {
            read_boards(file, [&](exchange::Board& board) {
                ++number;
                if (json) {
                    std::cout << (number > 1 ? ",\n" : "\n") << json_of(number, board);
                } else {
                    std::cout << line_of(number, board) << "\n";
                }
                for (const exchange::Remark& note : board.notes)
                    report.note(note_of(in_file, board, number, note));
                refused = refused || board.error.has_value();
            });
        } catch (const std::exception& failure) {
            std::cerr << "error: " << (in_file.empty() ? "" : in_file + ": ") << english(failure) << "\n";
            ++unread;
        }
    }
    if (json) std::cout << "\n]\n";
    if (unread == arguments.files().size()) return kNothingDone;
    return refused || unread > 0 ? kSomeRefused : kDone;
}

}  // namespace deals
