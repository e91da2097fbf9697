// Runs every scenario file: lines that stand at the margin are commands of the script host, indented lines what the
// command before them must answer. A command without such lines may answer anything but an error or a refusal.
// `@is NAME = VALUE` asks for a property, or a shared variable where the name has no dot. `@samples` puts the sample
// deals into the program folder, `@companion` an empty companion, `@write PATH|TEXT` a file, `@gone PATH`,
// `@there PATH` and `@holds PATH|TEXT` ask about one. $P stands for the program folder, $/ for the
// separator of paths. What stands behind `@posix ` or `@windows ` is a line on that system only.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"
#include "script/Names.h"
#include "support/Program.h"
#include "support/System.h"

namespace {

namespace fs = std::filesystem;

struct Step {
    int line = 0;
    std::string command;
    std::vector<std::string> expected;
};

constexpr std::string_view kSystems[] = {"posix", "windows"};

// Takes the name of a system off the line.
bool of_another_system(std::string& line) {
    for (const std::string_view system : kSystems) {
        const std::string mark = "@" + std::string(system) + " ";
        if (!line.starts_with(mark)) continue;
        line.erase(0, mark.size());
        return system != kSystem;
    }
    return false;
}

std::vector<Step> read_steps(const fs::path& file) {
    std::vector<Step> steps;
    std::ifstream lines(file);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        if (line.empty() || line.starts_with('#')) continue;
        if (of_another_system(line)) continue;
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
        for (const Step& step : read_steps(file_)) {
            SCOPED_TRACE(file_.filename().string() + ":" + std::to_string(step.line));
            const std::string command = filled(step.command);
            if (command.starts_with("@is ")) {
                const std::size_t equals = command.find(" = ");
                const std::string name = command.substr(4, equals - 4);
                const bool shared = name.find('.') == std::string::npos;
                const std::string value = escaped(step.command.substr(equals + 3));
                EXPECT_EQ(shared ? program_.shared(name) : program_.get(name), value) << name;
            } else if (command.starts_with('@')) {
                directive(command);
            } else {
                check(step, command);
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

    // A text of the file with what its host puts for the marks.
    static std::string filled(const std::string& text, const std::string& folder, const std::string& separator) {
        return base::replaced(base::replaced(text, "$P", folder), "$/", separator);
    }
    std::string filled(const std::string& text) const {
        return filled(text, platform::to_utf8(platform::path_text(program_.path())), {platform::kPathSeparator});
    }
    // The same as an answer has it.
    std::string escaped(const std::string& text) const {
        return filled(text, script::escaped(filled("$P")), script::escaped(filled("$/")));
    }

    void check(const Step& step, const std::string& command) {
        const std::string answer = program_.interpreter.run(command);
        if (step.expected.empty()) {
            EXPECT_FALSE(answer.starts_with("error") || answer.starts_with("refused")) << command << ": " << answer;
            return;
        }
        std::string expected;
        for (const std::string& line : step.expected)
            expected += (expected.empty() ? "" : "\n") + escaped(line);
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
