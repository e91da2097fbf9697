#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "script/Interpreter.h"

namespace forms {
class Control;
class Form;
}  // namespace forms

// Does at random whatever a user can do, in the language of the script host, while the files below the program folder
// change underneath and calls on them fail. The same seed does the same again.
class Monkey {
public:
    using MakeStage = std::function<std::unique_ptr<script::Stage>(const std::filesystem::path& folder)>;

    // `samples` is copied into the folder, at the start and whenever little is left of it.
    Monkey(std::filesystem::path folder, std::filesystem::path samples, unsigned seed, MakeStage make);

    // One action. An empty text, or what went wrong: a command that is no command, or a failure that no routine has a
    // number for.
    std::string act();

    // The last commands, the oldest first.
    const std::vector<std::string>& trail() const { return trail_; }
    int starts() const { return starts_; }
    int reports() const { return reports_; }

private:
    void start();
    void restore_samples();
    void change_files();
    void prepare_platform();
    std::string next_command();
    std::string command_on(const forms::Form& form);
    std::string command_for(const forms::Control& control);
    std::string some_text();
    std::string run(const std::string& command);
    std::string problem_of(const std::string& command, const std::string& answer);

    bool one_in(unsigned count) { return random_() % count == 0; }
    int below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    template <class Items>
    const auto& one_of(const Items& items) {
        return *(std::begin(items) + below(static_cast<int>(std::size(items))));
    }

    const std::filesystem::path folder_;
    const std::filesystem::path samples_;
    MakeStage make_;
    std::mt19937 random_;
    std::unique_ptr<script::Interpreter> interpreter_;
    std::vector<std::string> trail_;
    int starts_ = 0;
    int reports_ = 0;
    double last_report_ = 0;
};
