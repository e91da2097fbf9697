#include "platform/IniFile.h"

#include <vector>

#include "base/Fout.h"
#include "base/Text.h"
#include "platform/Files.h"

namespace platform {

namespace {

bool begins_section(const std::string& line, std::string_view section) {
    const std::string text = base::trimmed(line);
    return text.starts_with('[') && base::equal_ignoring_case(text, "[" + std::string(section) + "]");
}

bool begins_any_section(const std::string& line) { return base::trimmed(line).starts_with('['); }

bool is_setting(const std::string& line, std::string_view key) {
    const std::size_t equals = line.find('=');
    return equals != std::string::npos && base::equal_ignoring_case(base::trimmed(line.substr(0, equals)), key);
}

std::string unquoted(std::string value) {
    const bool quoted =
        value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
    return quoted ? value.substr(1, value.size() - 2) : value;
}

std::vector<std::string> lines_of(std::string_view file) {
    std::vector<std::string> lines;
    if (file_length(file) <= 0) return lines;
    for (LineReader reader(file); !reader.at_end();)
        lines.push_back(reader.line());
    return lines;
}

// A file that can't be read has no settings.
std::vector<std::string> lines_or_none(std::string_view file) {
    try {
        return lines_of(file);
    } catch (const base::Fout&) {
        return {};
    }
}

void replace_lines(std::string_view file, const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines)
        bytes.append(line).append("\r\n");
    replace_file(file, bytes);
}

}  // namespace

std::string read_setting(std::string_view file, std::string_view section, std::string_view key) {
    bool inside = false;
    for (const std::string& line : lines_or_none(file)) {
        if (begins_any_section(line)) {
            inside = begins_section(line, section);
        } else if (inside && is_setting(line, key)) {
            return unquoted(base::trimmed(line.substr(line.find('=') + 1)));
        }
    }
    return {};
}

void write_setting(std::string_view file, std::string_view section, std::string_view key, std::string_view value) {
    std::vector<std::string> lines = lines_of(file);
    const std::string setting = std::string(key) + "=" + std::string(value);

    std::size_t at = 0;
    while (at < lines.size() && !begins_section(lines[at], section))
        ++at;
    if (at == lines.size()) {
        lines.push_back("[" + std::string(section) + "]");
    }
    std::size_t behind_last = ++at;  // behind the section's last line that is not blank
    while (at < lines.size() && !begins_any_section(lines[at]) && !is_setting(lines[at], key)) {
        if (!base::trimmed(lines[at++]).empty()) behind_last = at;
    }
    if (at < lines.size() && is_setting(lines[at], key) && !begins_any_section(lines[at])) {
        lines[at] = setting;
    } else {
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(behind_last), setting);
    }

    replace_lines(file, lines);
}

void remove_setting(std::string_view file, std::string_view section, std::string_view key) {
    std::vector<std::string> lines = lines_of(file);
    bool inside = false;
    std::erase_if(lines, [&](const std::string& line) {
        if (begins_any_section(line)) inside = begins_section(line, section);
        return inside && !begins_any_section(line) && is_setting(line, key);
    });
    replace_lines(file, lines);
}

}  // namespace platform
