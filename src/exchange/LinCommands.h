#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>

#include "exchange/Lines.h"

namespace exchange {

// A command of a LIN file: two letters and a value, with a bar behind each.
struct LinCommand {
    std::string name{};  // lower case; as it stands where it is no name
    std::string value{};
    int line = 0;
};

// Cuts a file into its commands. Where a bar too few or too many made names of values, "qx" and "md" are names again.
class LinCommands {
public:
    explicit LinCommands(std::istream& stream) : lines_(stream) {}
    std::optional<LinCommand> next();

private:
    // The text up to the next bar; none at the end of the file.
    std::optional<std::string> field();

    Lines lines_;
    std::string rest_;  // of the line that is being read
    std::size_t at_ = 0;
    bool open_ = false;
    int line_ = 0;                     // where the last field began
    std::optional<std::string> name_;  // that stood in the place of a value
};

// What is read out of values.
namespace lin {

inline constexpr std::size_t kNameLength = 2;

std::string without_blanks(std::string_view text);  // at both ends, line ends too
// The first number in a text, without a sign; 0 where there is none.
int number_in(std::string_view text);

}  // namespace lin

}  // namespace exchange
