#pragma once

#include <initializer_list>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// The command line of zandolin_deals.
namespace deals {

// Exit statuses.
inline constexpr int kDone = 0;
inline constexpr int kSomeRefused = 1;
inline constexpr int kNothingDone = 2;

// A command line that makes no sense; the text says why.
class WrongArguments : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// What stands behind a command: files, and options that begin with "--". An option with a value may be given several
// times. WrongArguments for an unknown option, a missing value, or no file at all.
class Arguments {
public:
    Arguments(const std::vector<std::string>& words, std::initializer_list<std::string_view> with_value,
              std::initializer_list<std::string_view> without);

    const std::vector<std::string>& files() const { return files_; }
    bool has(const std::string& option) const { return options_.contains(option); }
    std::vector<std::string> values(const std::string& option) const;
    // The last one given.
    std::optional<std::string> value(const std::string& option) const;
    // The folder of "--program", or that of find_program_folder; Windows-1252. Failure 76 where it is not there.
    std::string program_folder() const;

private:
    std::vector<std::string> files_;
    std::map<std::string, std::vector<std::string>> options_;
};

}  // namespace deals
