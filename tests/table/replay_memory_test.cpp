// A program that replays lessons all day keeps nothing of them.
#include <gtest/gtest.h>
#include <malloc.h>

#include "support/Program.h"

namespace {

std::size_t bytes_in_use() { return mallinfo2().uordblks; }

TEST(ThousandReplays, KeepTheMemoryFlat) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizer has an allocator of its own, and tells of leaks itself";
#endif
    Program program;
    program.add_samples();
    program("start");
    const auto replay = [&](int times) {
        for (int i = 0; i < times; ++i) {
            program("select frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin\nclick frmTavrin02.cmdStart");
            for (int card = 1; card < 60 && program.shared("kaartTeller") != "52"; ++card) {
                program("wait 3000\nclick frmTavrin02.cmdVerder");
            }
            ASSERT_EQ(program.shared("kaartTeller"), "52");
            program("click frmTavrin02.cmdTerug\nboxes\nkeys\nopened");
        }
    };
    replay(50);  // until every cache is filled
    const std::size_t before = bytes_in_use();
    replay(1000);
    EXPECT_LT(bytes_in_use(), before + 16 * 1024);
}

}  // namespace
