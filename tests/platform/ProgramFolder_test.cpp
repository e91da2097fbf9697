// Where the program's data lies: beside a portable copy, in the home folder for an installed one.
#include "platform/ProgramFolder.h"

#include <cerrno>

#include "platform/SystemCalls.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kData = "thuis/Zandolin Lomert";

class ProgramFolder : public TemporaryFolder {
protected:
    void install() const {
        put("usr/bin/zandolin", "");
        put("usr/share/zandolin/help.chm", "manual");
        put("usr/share/zandolin/program/standaardtavrin.ini", "[Platform]\r\nProgramFilesX86=.\r\n");
        put("usr/share/zandolin/program/aftavrin/QVT_Spel 001/QVT_Spel 001 aftavrin.txt", "rows");
        put("usr/share/zandolin/program/RVLX/Spellen/Spel 001/Spel 001 handen.txt", "hands");
        fs::create_directories(folder / "thuis");
    }
    std::string found() const { return platform::program_folder_of(in("usr/bin"), in("thuis")); }
};

TEST_F(ProgramFolder, OfAPortableCopyIsItsOwn) {
    put("stick/zandolin", "");
    EXPECT_EQ(platform::program_folder_of(in("stick"), in("thuis")), in("stick"));
    EXPECT_EQ(platform::program_folder_of(in("stick"), ""), in("stick"));
    EXPECT_EQ(names(), (std::vector<std::string>{"stick"}));
}

TEST_F(ProgramFolder, OfAnInstalledCopyIsMadeOnceAndIsTheUsersFromThenOn) {
    install();
    ASSERT_EQ(found(), in(kData));
    EXPECT_EQ(names("thuis"), (std::vector<std::string>{"Zandolin Lomert"}));
    EXPECT_EQ(names(kData), (std::vector<std::string>{"RVLX", "aftavrin", "help.chm", "standaardtavrin.ini"}));
    EXPECT_EQ(bytes_of("thuis/Zandolin Lomert/aftavrin/QVT_Spel 001/QVT_Spel 001 aftavrin.txt"), "rows");
    EXPECT_EQ(bytes_of("thuis/Zandolin Lomert/RVLX/Spellen/Spel 001/Spel 001 handen.txt"), "hands");
    EXPECT_EQ(bytes_of("thuis/Zandolin Lomert/standaardtavrin.ini"), "[Platform]\r\nProgramFilesX86=.\r\n");

    put("usr/share/zandolin/help.chm", "new manual");
    put("thuis/Zandolin Lomert/standaardtavrin.ini", "mine");
    fs::remove_all(folder / kData / "aftavrin");
    EXPECT_EQ(found(), in(kData));
    platform::system_calls::About manual;
    platform::system_calls::link_status(folder / kData / "help.chm", manual);
    const bool linked = manual.kind == platform::system_calls::Kind::Link;  // where nobody may, it is a copy
    EXPECT_EQ(bytes_of("thuis/Zandolin Lomert/help.chm"), linked ? "new manual" : "manual");
    EXPECT_EQ(bytes_of("thuis/Zandolin Lomert/standaardtavrin.ini"), "mine");
    EXPECT_EQ(names(kData), (std::vector<std::string>{"RVLX", "help.chm", "standaardtavrin.ini"}));
}

TEST_F(ProgramFolder, IsMadeWholeOrNotAtAll) {
    using platform::system_calls::Call;
    install();
    EXPECT_EQ(failure_of([&] { platform::program_folder_of(in("usr/bin"), ""); }), 76);
    const struct {
        Call call;
        int error;
        int number;
    } rows[] = {{Call::Write, ENOSPC, 61}, {Call::Open, EACCES, 70}, {Call::Rename, EIO, 57}};
    for (const auto& row : rows) {
        const platform::system_calls::HookScope hook([&](Call call, const char* path) {
            const bool made = std::string_view(path).starts_with(in("thuis"));
            return made && call == row.call ? row.error : 0;
        });
        EXPECT_EQ(failure_of([&] { found(); }), row.number);
        EXPECT_EQ(names("thuis"), std::vector<std::string>{}) << row.number;
    }
    const platform::system_calls::HookScope hook(
        [](Call call, const char*) { return call == Call::MakeLink ? EPERM : 0; });
    EXPECT_EQ(found(), in(kData));
    EXPECT_EQ(bytes_of("thuis/Zandolin Lomert/help.chm"), "manual");
}

TEST_F(ProgramFolder, OfTwoFirstStartsAtATimeIsTheOneThatCameFirst) {
    install();
    const platform::system_calls::HookScope hook([&](platform::system_calls::Call call, const char*) {
        if (call == platform::system_calls::Call::MakeLink) put("thuis/Zandolin Lomert/standaardtavrin.ini", "first");
        return 0;
    });
    EXPECT_EQ(found(), in(kData));
    EXPECT_EQ(bytes_of("thuis/Zandolin Lomert/standaardtavrin.ini"), "first");
    EXPECT_EQ(names("thuis"), (std::vector<std::string>{"Zandolin Lomert"}));
}

}  // namespace
