#include "deals/Arguments.h"

#include <algorithm>
#include <filesystem>

#include "base/Fout.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"
#include "platform/ProgramFolder.h"

namespace fs = std::filesystem;

namespace deals {

Arguments::Arguments(const std::vector<std::string>& words, std::initializer_list<std::string_view> with_value,
                     std::initializer_list<std::string_view> without) {
    const auto among = [](const auto& names, const std::string& word) {
        return std::ranges::find(names, word) != names.end();
    };
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (!word.starts_with("--")) {
            files_.push_back(word);
        } else if (among(without, word)) {
            options_[word];
        } else if (!among(with_value, word)) {
            throw WrongArguments("unknown option " + word);
        } else if (i + 1 == words.size() || words[i + 1].starts_with("--")) {
            throw WrongArguments(word + " has no value");
        } else {
            options_[word].push_back(words[++i]);
        }
    }
    if (files_.empty()) throw WrongArguments("no file is given");
}

std::vector<std::string> Arguments::values(const std::string& option) const {
    const auto found = options_.find(option);
    return found == options_.end() ? std::vector<std::string>() : found->second;
}

std::optional<std::string> Arguments::value(const std::string& option) const {
    const auto given = values(option);
    return given.empty() ? std::nullopt : std::optional(given.back());
}

std::string Arguments::program_folder() const {
    const auto given = value("--program");
    if (!given) return platform::find_program_folder();
    const fs::path folder = platform::path_of(*given);
    if (!fs::is_directory(folder)) throw base::Fout(base::FoutNummer::PathNotFound, platform::name_text(*given));
    return platform::path_text((fs::absolute(folder) / "").lexically_normal().parent_path());
}

}  // namespace deals
