// Runs every scenario file: lines that stand at the margin are commands of the script host, indented lines what the
// command before them must answer. A command without such lines may answer anything but an error or a refusal.
// `@is NAME = VALUE` asks for a property, or a shared variable where the name has no dot. `@samples` puts the sample
// deals into the program folder, `@companion` an empty companion, `@write PATH|TEXT` a file, `@gone PATH`,
// `@there PATH` and `@holds PATH|TEXT` ask about one. $P stands for the program folder.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"
#include "script/Names.h"
#include "support/Program.h"

namespace {

namespace fs = std::filesystem;

struct Step {
    int line = 0;
    std::string command;
    std::vector<std::string> expected;
};

std::vector<Step> read_steps(const fs::path& file) {
    std::vector<Step> steps;
    std::ifstream lines(file);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        if (line.empty() || line.starts_with('#')) continue;
        if (line.starts_with("  ")) {
            steps.back().expected.push_back(line.substr(2));
        } else {
            steps.push_back({number, line, {}});
        }
    }
    return steps;
}

class Scenario : public testing::Test {
public:
    explicit Scenario(fs::path file) : file_(std::move(file)) {}

    void TestBody() override {
        const std::string folder = to_utf8(path_text(program_.path()));
        for (const Step& step : read_steps(file_)) {
            SCOPED_TRACE(file_.filename().string() + ":" + std::to_string(step.line));
            const std::string command = replaced(step.command, "$P", folder);
            if (command.starts_with("@is ")) {
                const std::size_t equals = command.find(" = ");
                const std::string name = command.substr(4, equals - 4);
                const bool shared = name.find('.') == std::string::npos;
                EXPECT_EQ(shared ? program_.shared(name) : program_.get(name), command.substr(equals + 3)) << name;
            } else if (command.starts_with('@')) {
                directive(command);
            } else {
                check(step, command, folder);
            }
        }
    }

private:
    void directive(const std::string& command) {
        const std::string word = command.substr(0, command.find(' '));
        const std::string rest = command.size() > word.size() ? command.substr(word.size() + 1) : "";
        if (word == "@samples") {
            program_.add_samples();
        } else if (word == "@companion") {
            program_.install_companion();
        } else if (word == "@write") {
            const std::size_t bar = rest.find('|');
            program_.write(rest.substr(0, bar), script::unescaped(rest.substr(bar + 1)));
        } else if (word == "@gone") {
            EXPECT_FALSE(program_.exists(rest));
        } else if (word == "@holds") {
            const std::size_t bar = rest.find('|');
            EXPECT_EQ(program_.read(rest.substr(0, bar)), script::unescaped(rest.substr(bar + 1)));
        } else if (word == "@there") {
            EXPECT_TRUE(program_.exists(rest));
        } else {
            ADD_FAILURE() << "no directive " << word;
        }
    }

    void check(const Step& step, const std::string& command, const std::string& folder) {
        const std::string answer = replaced(program_.interpreter.run(command), folder, "$P");
        if (step.expected.empty()) {
            EXPECT_FALSE(answer.starts_with("error") || answer.starts_with("refused")) << command << ": " << answer;
            return;
        }
        std::string expected;
        for (const std::string& line : step.expected)
            expected += (expected.empty() ? "" : "\n") + line;
        EXPECT_EQ(answer, expected) << command;
    }

    fs::path file_;
    Program program_;
};

bool register_all() {
    for (const auto& entry : fs::directory_iterator(SCENARIO_DIR)) {
        const fs::path file = entry.path();
        if (file.extension() != ".script") continue;
        testing::RegisterTest("Scenario", file.stem().string().c_str(), nullptr, nullptr, file.string().c_str(), 1,
                              [file]() -> Scenario* { return new Scenario(file); });
    }
    return true;
}

[[maybe_unused]] const bool registered = register_all();

}  // namespace
