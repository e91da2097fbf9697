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
#include "support/Program.h"

// A test with a folder of its own.
class TemporaryFolder : public testing::Test {
protected:
    ~TemporaryFolder() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    std::string in(const std::string& name) const { return (folder / name).string(); }
    void put(const std::string& name, const std::string& bytes) const {
        std::filesystem::create_directories((folder / name).parent_path());
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }
    std::string bytes_of(const std::string& name) const {
        std::ifstream file(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    // Names in the folder, sorted.
    std::vector<std::string> names(const std::string& sub = {}) const {
        std::vector<std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator(folder / sub)) {
            all.push_back(entry.path().filename().string());
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
    } catch (const Fout& fout) {
        return fout.nummer();
    }
    return 0;
}
