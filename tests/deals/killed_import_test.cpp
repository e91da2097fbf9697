// The import is killed at every single call on files.
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

#include "deals/InterruptedImport.h"
#include "platform/SystemCalls.h"

namespace {

namespace fs = std::filesystem;

TEST_F(InterruptedImport, KilledAtAnyCallLeavesNothingHalf) {
    int calls = 0;
    {
        const platform::system_calls::HookScope count(
            [&](platform::system_calls::Call, const char*) { return ++calls, 0; });
        import({"club.pbn"});
    }
    bool half_done = false;
    for (int last = 1; last <= calls; ++last) {
        SCOPED_TRACE("killed at call " + std::to_string(last));
        take_away_what_was_made();
        const pid_t child = fork();
        if (child == 0) {
            int call = 0;
            const platform::system_calls::HookScope hook([&](platform::system_calls::Call, const char*) {
                if (++call == last) _exit(0);
                return 0;
            });
            import({"club.pbn"});
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        expect_nothing_lost();
        half_done = half_done || (program.exists("RVLX/Spellen/Spel 010") && !program.exists("aftavrin/QVT_Spel 011"));
    }
    EXPECT_TRUE(half_done) << "the one deal was there before the other";
    // What was begun goes at the next start of the program.
    take_away_what_was_made();
    program.write("aftavrin/.zandolin-nieuw-1-0/QVT_Spel 011 handen.txt", "half");
    fs::last_write_time(program.path("aftavrin/.zandolin-nieuw-1-0"),
                        fs::file_time_type::clock::now() - std::chrono::hours(2));
    program("start");
    EXPECT_FALSE(program.exists("aftavrin/.zandolin-nieuw-1-0"));
}

}  // namespace
