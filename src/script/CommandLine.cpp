#include "script/CommandLine.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "base/Fout.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"
#include "platform/ProgramFolder.h"
#include "platform/SpecialFolders.h"
#include "script/Interpreter.h"

namespace {

struct Options {
    std::string program;
    std::string program_files;
    std::string program_files_x86;
    std::string file;
    bool wrong = false;
};

Options read_options(const std::vector<std::string>& words) {
    Options options;
    for (std::size_t i = 1; i < words.size(); ++i) {
        const std::string& word = words[i];
        std::string* value = word == "--program"             ? &options.program
                             : word == "--program-files"     ? &options.program_files
                             : word == "--program-files-x86" ? &options.program_files_x86
                                                             : nullptr;
        if (value && i + 1 < words.size()) {
            *value = words[++i];
        } else if (!value && !word.starts_with("--") && options.file.empty()) {
            options.file = word;
        } else {
            options.wrong = true;
        }
    }
    return options;
}

std::string absolute_text(const std::string& path) {
    return platform::path_text(std::filesystem::absolute(platform::path_of(path)).lexically_normal());
}

std::string folder_text(const std::string& path) {
    std::string text = absolute_text(path);
    while (text.size() > 1 && text.ends_with(platform::kPathSeparator))
        text.pop_back();
    return text;
}

int run(std::istream& commands, const Options& options, const script::MakeStage& make_stage) {
    script::Interpreter interpreter(make_stage(options.program));
    if (!options.program_files.empty()) {
        interpreter.platform.special_folders[platform::kProgramFiles] = folder_text(options.program_files);
    }
    if (!options.program_files_x86.empty()) {
        interpreter.platform.special_folders[platform::kProgramFilesX86] = folder_text(options.program_files_x86);
    }
    for (std::string line; !interpreter.finished() && std::getline(commands, line);) {
        if (line.ends_with('\r')) line.pop_back();
        const std::string answer = interpreter.run(line);
        if (!answer.empty()) std::cout << answer << std::endl;
    }
    return interpreter.failed() ? 1 : 0;
}

}  // namespace

int script::run_command_line(const std::vector<std::string>& words, const MakeStage& make_stage) try {
    Options options = read_options(words);
    if (options.wrong) {
        std::cerr
            << "usage: zandolin_script [--desktop] [--program DIR] [--program-files DIR] [--program-files-x86 DIR] "
               "[FILE]\n";
        return 2;
    }
    options.program = options.program.empty() ? platform::find_program_folder() : folder_text(options.program);
    if (options.file.empty()) return run(std::cin, options, make_stage);
    std::ifstream file{platform::path_of(options.file)};
    if (!file) {
        std::cerr << "cannot read " << options.file << "\n";
        return 2;
    }
    return run(file, options, make_stage);
} catch (const base::Fout& failure) {
    std::cerr << "no program folder: " << platform::to_utf8(failure.what()) << "\n";
    return 2;
}
