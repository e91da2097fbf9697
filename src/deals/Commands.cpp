#include "deals/Commands.h"

#include <algorithm>
#include <iostream>
#include <iterator>

#include "deals/Arguments.h"
#include "deals/Check.h"
#include "deals/Export.h"
#include "deals/Import.h"
#include "deals/ImportOptions.h"
#include "deals/List.h"
#include "deals/Telling.h"

namespace deals {

namespace {

struct Command {
    const char* name;
    const char* usage;
    int (*run)(const std::vector<std::string>& words);
};

constexpr Command kCommands[] = {
    {"list", kListUsage, list},
    {"import", kImportUsage, import},
    {"export", kExportUsage, export_lessons},
    {"check", kCheckUsage, check},
};

int tell_usage() {
    for (const Command& command : kCommands)
        std::cerr << "usage: zandolin_deals " << command.usage << "\n";
    return kNothingDone;
}

}  // namespace

int run(std::vector<std::string> words) {
    const auto* const command =
        std::ranges::find_if(kCommands, [&](const Command& known) { return !words.empty() && words[0] == known.name; });
    if (command == std::end(kCommands)) return tell_usage();
    words.erase(words.begin());
    try {
        return command->run(words);
    } catch (const WrongArguments& wrong) {
        std::cerr << "error: " << wrong.what() << "\nusage: zandolin_deals " << command->usage << "\n";
    } catch (const std::exception& failure) {
        std::cerr << "error: " << english(failure) << "\n";
    }
    return kNothingDone;
}

}  // namespace deals
