#include "platform/NewFolders.h"

#include <cerrno>

#include "platform/Files.h"
#include "platform/SystemCalls.h"
#include "support/TemporaryFolder.h"

namespace {

using Lines = std::vector<std::string>;
using platform::system_calls::Call;

class Folders : public TemporaryFolder {
protected:
    const std::vector<platform::NewFile> files{{"een.txt", "1"}, {"twee.txt", ""}};
};

TEST_F(Folders, TakeTheirPlacesWholeWhenAllAreMade) {
    put("Spellen/oud/x", "x");
    platform::NewFolders folders;
    folders.add(in("spellen"), "Nieuw", files);
    folders.add(in("spellen"), "Caf\xE9", files);
    EXPECT_EQ(platform::subfolders_of(in("spellen")), Lines{"oud"}) << "no list shows what is being made";
    folders.finish();
    EXPECT_EQ(folders.placed(), 2U);
    EXPECT_EQ(names("Spellen"), (Lines{"Caf\xC3\xA9", "Nieuw", "oud"}));
    EXPECT_EQ(bytes_of("Spellen/Nieuw/een.txt"), "1");
    EXPECT_EQ(names("Spellen/Nieuw"), (Lines{"een.txt", "twee.txt"}));
}

TEST_F(Folders, NeverTakeAPlaceThatIsTaken) {
    put("leeg/weg", "");
    std::filesystem::create_directories(folder / "a/twee");
    platform::NewFolders folders;
    for (const char* name : {"een", "twee", "drie"})
        folders.add(in("a"), name, files);
    EXPECT_EQ(failure_of([&] { folders.finish(); }), 58);
    EXPECT_EQ(folders.placed(), 1U);
    EXPECT_EQ(names("a"), (Lines{"een", "twee"}));
    EXPECT_EQ(names("a/twee"), Lines{}) << "an empty folder of the user is not replaced either";
}

TEST_F(Folders, GoAgainWhereTheyAreNotFinished) {
    std::filesystem::create_directories(folder / "a");
    {
        platform::NewFolders folders;
        folders.add(in("a"), "een", files);
        const platform::system_calls::HookScope full(
            [](Call call, const char*) { return call == Call::Write ? ENOSPC : 0; });
        EXPECT_EQ(failure_of([&] { folders.add(in("a"), "twee", files); }), 61);
        EXPECT_EQ(folders.count(), 1U);
        EXPECT_EQ(names("a").size(), 1U);
    }
    EXPECT_EQ(names("a"), Lines{});
    EXPECT_EQ(failure_of([&] { platform::NewFolders().add(in("b"), "een", files); }), 76);
}

// Before anything takes its place, all of it is on the disk.
TEST_F(Folders, AreFlushedBeforeTheyAreRenamed) {
    std::filesystem::create_directories(folder / "a");
    std::string order;
    platform::NewFolders folders;
    const platform::system_calls::HookScope watch([&](Call call, const char*) {
        if (call == Call::Write || call == Call::Sync || call == Call::Rename)
            order += call == Call::Write ? 'w' : call == Call::Sync ? 's' : 'r';
        return 0;
    });
    folders.add(in("a"), "een", files);
    folders.add(in("a"), "twee", files);
    folders.finish();
    const std::size_t renamed = order.find('r');
    EXPECT_EQ(order.substr(renamed), "rr") << order;
    EXPECT_EQ(order[renamed - 1], 's') << order;
    EXPECT_EQ(std::ranges::count(order, 'w'), 2) << order;
}

}  // namespace
