#include <process.h>

#include "base/Fout.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"
#include "platform/ProgramFolder.h"
#include "platform/Sibling.h"

namespace platform {

namespace {

// A word of a command line, which CommandLineToArgvW takes back out of it: within quotes backslashes are doubled where
// a quote follows them.
std::wstring quoted(const std::string& word) {
    const std::wstring bare = path_of(word).native();
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t sign : bare) {
        if (sign == L'"') text.append(backslashes + 1, L'\\');
        backslashes = sign == L'\\' ? backslashes + 1 : 0;
        text += sign;
    }
    return text.append(backslashes, L'\\') + L'"';
}

}  // namespace

// The system has no call that puts another program in this one's place.
std::optional<int> go_on_as(const std::string& program, std::vector<std::string> words) {
    words.front() = name_bytes(join_path(executable_folder(), program + ".exe"));
    std::vector<std::wstring> texts;
    for (const std::string& word : words)
        texts.push_back(quoted(word));
    std::vector<const wchar_t*> arguments;
    for (const std::wstring& text : texts)
        arguments.push_back(text.c_str());
    arguments.push_back(nullptr);
    const auto status = _wspawnv(_P_WAIT, path_of(words.front()).c_str(), arguments.data());
    if (status < 0) return std::nullopt;
    return static_cast<int>(status);
}

int run_sibling(const std::string& program, std::vector<std::string> words) {
    words.insert(words.begin(), program);
    if (const auto status = go_on_as(program, std::move(words))) return *status;
    throw base::Fout(base::FoutNummer::FileNotFound, program);
}

}  // namespace platform
