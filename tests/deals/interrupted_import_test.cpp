// One call on files fails, at every single call.
#include <algorithm>
#include <cerrno>

#include "deals/InterruptedImport.h"
#include "platform/SystemCalls.h"

namespace {

TEST_F(InterruptedImport, WhicheverCallFailsItIsToldAndEachFolderIsWhole) {
    int calls = 0;
    {
        const platform::system_calls::HookScope count(
            [&](platform::system_calls::Call, const char*) { return ++calls, 0; });
        ASSERT_EQ(import({"club.pbn"}).out, "Spel 010\nQVT_Spel 011\n");
    }
    ASSERT_GT(calls, 40);
    int told = 0;
    for (const int error : {ENOSPC, EACCES, EIO}) {
        for (int failing = 1; failing <= calls; ++failing) {
            SCOPED_TRACE("call " + std::to_string(failing) + ", error " + std::to_string(error));
            take_away_what_was_made();
            int call = 0;
            Told result;
            {
                const platform::system_calls::HookScope hook(
                    [&](platform::system_calls::Call, const char*) { return ++call == failing ? error : 0; });
                result = import({"club.pbn"});
            }
            expect_nothing_lost();
            const auto lines = std::ranges::count(result.out, '\n');
            EXPECT_TRUE(lines == 2 || result.error.find("error: ") != std::string::npos) << result.out << result.error;
            const bool all = result.out.find("refused") == std::string::npos && lines == 2;
            EXPECT_EQ(result.status == 0, all) << result.out << result.error;
            if (result.out.find("the disk is full") != std::string::npos) ++told;
            const auto at = result.out.find("Spel 010\n");
            EXPECT_EQ(at == 0, program.exists("RVLX/Spellen/Spel 010")) << result.out;
        }
    }
    EXPECT_GT(told, 10);
}

TEST_F(InterruptedImport, GivesTheNumberOfADealThatFailedToTheNext) {
    int writes = 0;
    const platform::system_calls::HookScope hook([&](platform::system_calls::Call call, const char*) {
        return call == platform::system_calls::Call::Write && ++writes == 3 ? ENOSPC : 0;
    });
    const auto told = import({"club.pbn"});
    EXPECT_EQ(told.out, "refused: board 3, line 1: the disk is full (Spel 010 handen.txt)\nQVT_Spel 010\n");
    EXPECT_EQ(told.status, 1);
}

}  // namespace
