#include "support/Program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "base/Text.h"
#include "platform/Paths.h"
#include "platform/SpecialFolders.h"
#include "support/System.h"

namespace fs = std::filesystem;

Program::Program()
    : folder_(new_temporary_folder()),
      interpreter(make_stage(platform::path_text(folder_))),
      programma(interpreter.programma) {
    interpreter.platform.special_folders[platform::kProgramFiles] = "";
    interpreter.platform.special_folders[platform::kProgramFilesX86] = "";
}

Program::~Program() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

std::string Program::operator()(const std::string& commands) {
    std::istringstream lines(commands);
    std::string answer;
    for (std::string line; std::getline(lines, line);) {
        answer = interpreter.run(line.substr(std::min(line.find_first_not_of(' '), line.size())));
        EXPECT_FALSE(answer.starts_with("error")) << line << ": " << answer;
    }
    return answer;
}

std::string Program::get(const std::string& name) {
    const std::string answer = (*this)("get " + name);
    return answer.starts_with("= ") ? answer.substr(2) : answer;
}

std::string Program::shared(const std::string& name) {
    const std::string answer = (*this)("shared " + name);
    return answer.starts_with("= ") ? answer.substr(2) : answer;
}

void Program::install_companion() {
    interpreter.platform.special_folders[platform::kProgramFiles] = platform::path_text(folder_);
    write("RVLX/RVLX.exe", "x");
    fs::create_directories(path("RVLX/Spellen"));
}

void Program::add_samples() {
    fs::copy(SAMPLES_DIR, folder_, fs::copy_options::recursive);
    install_companion();
}

void Program::write(const std::string& name, const std::string& bytes) {
    fs::create_directories(path(name).parent_path());
    std::ofstream(path(name), std::ios::binary) << bytes;
}

std::string Program::read(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool Program::exists(const std::string& name) const { return fs::exists(fs::symlink_status(path(name))); }

std::vector<std::string> Program::tree(const std::string& name) const {
    std::vector<std::string> entries;
    for (const auto& entry : fs::recursive_directory_iterator(path(name))) {
        const std::string relative = base::replaced(platform::bytes_of(entry.path().lexically_relative(folder_)),
                                                    std::string(1, platform::kPathSeparator), "/");
        entries.push_back(entry.is_directory() ? relative + "/" : relative + " = " + read(relative));
    }
    std::ranges::sort(entries);
    return entries;
}

Package Package::west_wins_all() {
    Package package;
    for (int trick = 0; trick < 13; ++trick) {
        // Noord has harten, Oost ruiten, Zuid klaveren, West schoppen, each from the ace down.
        std::string row = "4123";
        for (const int ace : {2226, 2239, 2252, 2213})
            row += "|" + std::to_string(ace - trick);
        package.rows.push_back(row);
    }
    package.contract = "Zuid 3 SA";
    return package;
}

void write_package(Program& program, const Package& package) {
    const std::string stem = "aftavrin/" + package.name + "/" + package.name;
    std::string rows;
    for (const std::string& row : package.rows)
        rows += row + "\r\n";
    program.write(stem + " aftavrin.txt", rows);
    program.write(stem + " Uitkomst.txt", package.lead + "\r\n");
    program.write(stem + " Contract.txt", package.contract + "\r\n");
    if (!package.question.empty()) program.write(stem + " vraag.txt", package.question);
    std::string records;
    for (int number = 1; number <= 52; ++number) {
        std::string record = std::to_string(number) + "|";
        for (const auto& [card, text] : package.texts) {
            if (card == number) record += text;
        }
        record.resize(532, ' ');
        records += record;
    }
    program.write(stem + " informatie.txt", records);
}
