// The program is killed, or one call fails, at every single call on files of everything that writes: what is on the
// disk afterwards is the old or the new, file by file, and nothing that the user had is gone.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <map>
#include <set>

#include "base/Fout.h"
#include "platform/SystemCalls.h"
#include "support/Program.h"

namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;  // by path, those that the program put beside others left out

enum class Keeps {
    EachFile,     // as it was before, or as it is after
    EachButOne,   // one file is written straight, and may be torn
    EachContent,  // whatever the names are
};

struct Work {
    const char* name;
    const char* before;  // commands up to it
    const char* action;
    Keeps keeps;
};

const std::string kOpen = "start\nselect frmTavrin01.lstSpellen 0\n";

const Work kWorks[] = {
    {"Settings", "click frmTavrin01.cmdTavrin", "scroll frmTavrin02.vscrSnelHeid 5", Keeps::EachFile},
    {"StoreAText",
     "click frmTavrin01.cmdKaartenEditor\nselect frmTavrin05.lstSpellen 0\nclick frmTavrin05.picYesNo(3)\n"
     "text frmTavrin05.txtInformatie Nieuw.",
     "click frmTavrin05.cmdGebruiken", Keeps::EachFile},
    {"Export", "click frmTavrin01.cmdImportExport\nclick frmTavrin07.chkSelecteerExporteer",
     "click frmTavrin07.cmdExporteer", Keeps::EachFile},
    {"Import", "click frmTavrin01.cmdImportExport\nclick frmTavrin07.chkSelecteerImporteer",
     "click frmTavrin07.cmdImporteer", Keeps::EachFile},
    {"Rename", "click frmTavrin01.cmdHerbeNoem\ntext frmTavrin04.txtSpelNummer 77", "click frmTavrin04.cmdHerbenoem",
     Keeps::EachContent},
    {"Delete", "answer yes", "click frmTavrin01.cmdWissen", Keeps::EachFile},
    {"SaveOver", "click frmTavrin01.cmdNieuwSpel\nselect frmTavrin03.lstAfTavrin 0\nanswer yes",
     "click frmTavrin03.cmdOpslaan", Keeps::EachButOne},
};

class Interrupted : public testing::TestWithParam<Work> {
protected:
    Interrupted() {
        program.install_companion();
        for (const char* deal : {"RVLX/Spellen/Spel 001", "aftavrin/QVT_Spel 001", "aftavrin/QVT_Spel 002"}) {
            fs::create_directories(program.path(deal));
            fs::copy(fs::path(SAMPLES_DIR) / deal, program.path(deal));
        }
        // On the stick one deal is older, and one is not here.
        fs::create_directories(program.path("stick/QVT_Spellen"));
        for (const char* name : {"QVT_Spel 002", "QVT_Spel 003"}) {
            fs::copy(fs::path(SAMPLES_DIR) / "aftavrin" / name, program.path("stick/QVT_Spellen") / name);
        }
        program.write("stick/QVT_Spellen/QVT_Spel 002/QVT_Spel 002 vraag.txt", "\r\nEen oude vraag.\r\n");
        // Fewer files are fewer calls, and no other ones.
        for (const auto& entry : fs::recursive_directory_iterator(program.path())) {
            for (const char* ending : {"bieding.txt", "antwoord.txt"}) {
                const bool goes =
                    entry.path().string().ends_with(ending) && entry.path().string().find("002") != std::string::npos;
                if (goes) fs::remove(entry.path());
            }
        }
        program.write("standaardtavrin.ini", "[Standaard]\r\nSnelheid=1000\r\n");
        program("drive " + program.path("stick").string() + " 2 STICK");
    }

    Files files() const {
        Files all;
        for (const auto& entry : fs::recursive_directory_iterator(program.path())) {
            const std::string path = entry.path().lexically_relative(program.path()).string();
            if (path.find("/.zandolin-nieuw-") == std::string::npos && !path.starts_with(".zandolin-nieuw-")) {
                all[path] = entry.is_directory() ? "" : program.read(path);
            }
        }
        return all;
    }

    void restore(const Files& wanted) {
        for (const auto& entry : fs::directory_iterator(program.path()))
            fs::remove_all(entry.path());
        for (const auto& [path, bytes] : wanted) {
            if (bytes.empty()) {
                fs::create_directories(program.path(path));
            } else {
                program.write(path, bytes);
            }
        }
    }

    // Runs the action in a process of its own, with the hook; its exit status.
    int run(const platform::system_calls::Hook& hook) {
        const pid_t child = fork();
        if (child == 0) {
            const platform::system_calls::HookScope scope(hook);
            program(GetParam().action);
            const bool internal = program.programma.gedeeld.foutNummer == static_cast<int>(base::FoutNummer::Internal);
            _exit(internal || testing::Test::HasFailure() ? kBroken : 0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : kBroken;
    }

    void expect_nothing_lost(const Files& before, const Files& after) {
        const Files now = files();
        if (GetParam().keeps == Keeps::EachContent) {
            const auto contents = [](const Files& all) {
                std::multiset<std::string> bytes;
                for (const auto& [path, content] : all)
                    bytes.insert(content);
                return bytes;
            };
            EXPECT_EQ(contents(now), contents(before));
            return;
        }
        int torn = 0;
        Files all = before;
        all.insert(after.begin(), after.end());
        all.insert(now.begin(), now.end());
        for (const auto& [path, ignored] : all) {
            const auto in = [&path = path](const Files& some) {
                const auto found = some.find(path);
                return found == some.end() ? std::string("(none)") : found->second;
            };
            if (in(now) == in(before) || in(now) == in(after)) continue;
            EXPECT_LE(++torn, GetParam().keeps == Keeps::EachButOne ? 1 : 0) << path;
        }
    }

    static constexpr int kKilled = 9;
    static constexpr int kBroken = 10;
    Program program;
};

TEST_P(Interrupted, ByAKillOrAFailureLeavesTheOldOrTheNew) {
    program(kOpen + GetParam().before);
    const Files before = files();
    int calls = 0;
    ASSERT_EQ(run(nullptr), 0);
    const Files after = files();
    ASSERT_NE(after, before) << "the work did something";

    for (const int error : {0, EIO}) {
        bool reached = true;
        for (int at = 1; reached; ++at) {
            SCOPED_TRACE(std::string(error == 0 ? "killed" : strerror(error)) + " at call " + std::to_string(at));
            restore(before);
            calls = 0;
            int* const shared = &calls;
            const fs::path mark = program.path().string() + ".reached";
            const int status = run([=](platform::system_calls::Call, const char*) {
                if (++*shared != at) return 0;
                if (error == 0) _exit(kKilled);
                std::ofstream(mark).put('x');
                return error;
            });
            reached = error == 0 ? status == kKilled : fs::remove(mark);
            EXPECT_NE(status, kBroken);
            expect_nothing_lost(before, after);
            if (HasFailure()) return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Works, Interrupted, testing::ValuesIn(kWorks),
                         [](const auto& info) { return info.param.name; });

}  // namespace
