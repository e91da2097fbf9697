#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "script/Interpreter.h"

// What the fuzz targets share. A fault is told by abort(), which the fuzzer reports with its input.
namespace fuzz {

// Files of one input stand one behind the other, with this character between them.
inline constexpr char kFileSeparator = '\x1e';

inline std::string_view text_of(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// The pieces between the separators, as many as are asked for; missing ones are empty.
std::vector<std::string> files_of(std::string_view input, std::size_t count);

// Ends the process with the text, unless the condition holds.
void require(bool condition, std::string_view what);

// A folder of this process, emptied of what the last input left.
std::filesystem::path fresh_program_folder();

// Writes folder/name/name + suffix for every suffix whose text is not empty.
void write_deal(const std::filesystem::path& folder, const std::string& name,
                std::initializer_list<const char*> suffixes, const std::vector<std::string>& texts);

// A run of the program on such a folder, with the companion installed in it. Every question is answered with yes.
class Run {
public:
    explicit Run(const std::filesystem::path& folder);

    services::Programma& programma() { return interpreter_.programma; }
    script::ScriptPlatform& platform() { return interpreter_.platform; }

    // Carries out commands of the script host. A wrong command is a fault of the target; a failure that no routine has
    // a number for is one of the program.
    void operator()(std::initializer_list<std::string> commands);
    std::string get(const std::string& name);

private:
    script::Interpreter interpreter_;
};

}  // namespace fuzz
