#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "base/Fout.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"
#include "platform/ProgramFolder.h"
#include "platform/Sibling.h"

namespace platform {

namespace {

std::string path_of_sibling(const std::string& program) { return name_bytes(join_path(executable_folder(), program)); }

std::vector<char*> pointers_to(std::vector<std::string>& words) {
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace

std::optional<int> go_on_as(const std::string& program, std::vector<std::string> words) {
    words.front() = path_of_sibling(program);
    execv(words.front().c_str(), pointers_to(words).data());
    return std::nullopt;
}

int run_sibling(const std::string& program, std::vector<std::string> words) {
    constexpr int kKilled = 2;
    words.insert(words.begin(), path_of_sibling(program));
    pid_t child = 0;
    if (posix_spawn(&child, words.front().c_str(), nullptr, nullptr, pointers_to(words).data(), environ) != 0)
        throw base::Fout(base::FoutNummer::FileNotFound, program);
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : kKilled;
}

}  // namespace platform
