#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/Text.h"
#include "deals/Commands.h"
#include "platform/Paths.h"
#include "support/Program.h"
#include "support/System.h"

// A program folder of its own, into which `import` puts deals, and a home folder without a companion.
class TestImport : public testing::Test {
protected:
    TestImport() {
        set_environment("HOME", program.path("home").string());
        program.interpreter.platform.special_folders.clear();  // as the settings file tells
    }

    struct Told {
        int status;
        std::string out;
        std::string error;
    };
    // Runs a command on files of the folder, which the output names without their folder.
    Told run(const std::string& command, std::vector<std::string> words) {
        for (std::string& word : words) {
            if (program.exists(word)) word = platform::bytes_of(program.path(word));
        }
        words.insert(words.begin(), command);
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = deals::run(words);
        const std::string out = testing::internal::GetCapturedStdout();
        return {status, without_folder(out), without_folder(testing::internal::GetCapturedStderr())};
    }
    Told import(std::vector<std::string> words) {
        words.insert(words.end(), {"--program", program.path().string()});
        return run("import", words);
    }

    static inline const std::string kSpellen = "RVLX/Spellen/";

    Program program;

private:
    std::string without_folder(std::string text) const {
        const std::string folder = program.path().string() + platform::kPathSeparator;
        const std::string in_json = base::replaced(folder, "\\", "\\\\");
        text = base::replaced(base::replaced(text, folder, ""), in_json, "");
        return text;
    }
};
