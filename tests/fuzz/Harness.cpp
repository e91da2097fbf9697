#include "Harness.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "base/Fout.h"
#include "platform/Paths.h"
#include "platform/SpecialFolders.h"
#include "script/ScriptHost.h"

namespace fs = std::filesystem;

namespace fuzz {

namespace {

void write(const fs::path& file, std::string_view bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// In memory where there is such a file system: thousands of inputs a minute are no work for a disk.
fs::path folder_of_process() {
    const fs::path memory = "/dev/shm";
    return (fs::is_directory(memory) ? memory : fs::temp_directory_path()) /
           ("zandolin-fuzz-" + std::to_string(getpid()));
}

struct ProcessFolder {
    fs::path path = folder_of_process();
    ~ProcessFolder() {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
};

}  // namespace

std::vector<std::string> files_of(std::string_view input, std::size_t count) {
    std::vector<std::string> files(count);
    for (std::string& file : files) {
        const std::size_t end = input.find(kFileSeparator);
        file = input.substr(0, end);
        input = end == std::string_view::npos ? std::string_view() : input.substr(end + 1);
    }
    return files;
}

void require(bool condition, std::string_view what) {
    if (condition) return;
    std::fprintf(stderr, "%.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

fs::path fresh_program_folder() {
    static const ProcessFolder folder;
    fs::remove_all(folder.path);
    write(folder.path / "RVLX" / "RVLX.exe", "x");
    fs::create_directories(folder.path / "RVLX" / "Spellen");
    return folder.path;
}

void write_deal(const fs::path& folder, const std::string& name, std::initializer_list<const char*> suffixes,
                const std::vector<std::string>& texts) {
    fs::create_directories(folder / name);
    auto text = texts.begin();
    for (const char* suffix : suffixes) {
        if (!text->empty()) write(folder / name / (name + suffix), *text);
        ++text;
    }
}

Run::Run(const fs::path& folder) : interpreter_(std::make_unique<script::ScriptHost>(platform::path_text(folder))) {
    interpreter_.platform.special_folders[platform::kProgramFiles] = platform::path_text(folder);
    interpreter_.platform.special_folders[platform::kProgramFilesX86] = "";
}

void Run::operator()(std::initializer_list<std::string> commands) {
    for (const std::string& command : commands) {
        interpreter_.platform.answers.assign(1, platform::Answer::Yes);
        const std::string answer = interpreter_.run(command);
        require(!answer.starts_with("error"), command + ": " + answer);
        const services::Gedeeld& gedeeld = interpreter_.programma.gedeeld;
        require(gedeeld.foutNummer != static_cast<int>(base::FoutNummer::Internal),
                command + ": " + gedeeld.foutPlaats + ": " + gedeeld.foutNaam);
    }
}

std::string Run::get(const std::string& name) {
    const std::string answer = interpreter_.run("get " + name);
    require(answer.starts_with("= "), name + ": " + answer);
    return answer.substr(2);
}

}  // namespace fuzz
