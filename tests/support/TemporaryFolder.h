#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "base/Fout.h"
#include "platform/Paths.h"
#include "support/System.h"

// A test with a folder of its own.
class TemporaryFolder : public testing::Test {
protected:
    ~TemporaryFolder() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    // A path in the folder, as the program has paths; `name` has "/" for the separator.
    std::string in(const std::string& name) const {
        return native(platform::join_path(platform::path_text(folder), name));
    }
    // Names of files are as platform::path_of takes them, with "/" for the separator.
    void put(const std::string& name, const std::string& bytes) const {
        const std::filesystem::path file = folder / platform::path_of(name);
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
    }
    std::string bytes_of(const std::string& name) const {
        std::ifstream file(folder / platform::path_of(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    // Names in the folder, sorted.
    std::vector<std::string> names(const std::string& sub = {}) const {
        std::vector<std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator(folder / platform::path_of(sub))) {
            all.push_back(platform::bytes_of(entry.path().filename()));
        }
        std::sort(all.begin(), all.end());
        return all;
    }

    const std::filesystem::path folder = new_temporary_folder();
};

// The number of the failure that an action ends in; 0 for none.
inline int failure_of(const std::function<void()>& action) {
    try {
        action();
    } catch (const base::Fout& fout) {
        return fout.nummer();
    }
    return 0;
}
