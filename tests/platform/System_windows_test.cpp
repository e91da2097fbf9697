// What only Windows has: names that no file can have, files in use, paths of any length, attributes, its own folders
// and its command line.
#include <gtest/gtest.h>
#include <windows.h>

#include "platform/CodePage.h"
#include "platform/Copies.h"
#include "platform/Files.h"
#include "platform/NewFolders.h"
#include "platform/Paths.h"
#include "platform/ProgramFolder.h"
#include "platform/SpecialFolders.h"
#include "support/TemporaryFolder.h"

namespace {

class Windows : public TemporaryFolder {
protected:
    // The file "doel", past the program.
    HANDLE open(DWORD access, DWORD sharing) const {
        return CreateFileW(whole("doel").c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
    }
    // As Windows itself has it, of any length.
    std::wstring whole(const std::string& name) const { return L"\\\\?\\" + platform::path_of(in(name)).native(); }
};

TEST_F(Windows, NamesThatNoFileCanHaveAreRefusedAndAbsent) {
    put("bron", "x");
    for (const char* name : {"CON", "nul", "Nul.txt", "com1.handen.txt", "LPT9", "prn .txt", "punt.", "blank ", "a:b",
                             "a?", "a*", "a\"b", "a<b", "a|b", "a\tb", "nul/x", "map./x"}) {
        SCOPED_TRACE(name);
        const std::string path = in(name);
        EXPECT_EQ(platform::file_length(path), -1);
        const int read = failure_of([&] { platform::read_file(path); });
        EXPECT_TRUE(read == 53 || read == 76) << read;
        EXPECT_EQ(failure_of([&] { platform::write_file(path, "y"); }), 75);
        EXPECT_EQ(failure_of([&] { platform::replace_file(path, "y"); }), 75);
        EXPECT_EQ(failure_of([&] { platform::rename_path(in("bron"), path); }), 75);
        platform::make_folders(path);
    }
    std::filesystem::create_directory(folder / "map");
    platform::NewFolders folders;
    folders.add(in("map"), "Spel.", {{"x", "x"}});
    EXPECT_EQ(failure_of([&] { folders.finish(); }), 75);
    EXPECT_EQ(names(), (std::vector<std::string>{"bron", "map"}));
    EXPECT_EQ(names("map"), std::vector<std::string>{});
}

TEST_F(Windows, NamesThatOnlyLookReservedAreFilesLikeOthers) {
    for (const char* name : {"CONtract.txt", "COM10", "Spel 1. txt", "nul-spel", ".punt", " blank", "Spel 1.2.txt"}) {
        platform::write_file(in(name), name);
        EXPECT_EQ(platform::read_file(in(name)), name);
    }
}

TEST_F(Windows, AFileInUseIsRefusedAndStays) {
    put("doel", "oud");
    put("van/doel", "nieuw");
    const HANDLE used = open(GENERIC_READ, 0);
    ASSERT_NE(used, INVALID_HANDLE_VALUE);
    const std::function<void()> actions[] = {
        [&] { platform::read_file(in("doel")); },
        [&] { platform::write_file(in("doel"), "x"); },
        [&] { platform::replace_file(in("doel"), "x"); },
        [&] { platform::delete_file(in("doel")); },
        [&] { platform::rename_path(in("doel"), in("elders")); },
        [&] {
            platform::Copies copies;
            copies.add_folder(in("van"), {"doel"}, in(""), platform::Links::Follow);
        },
    };
    for (const auto& action : actions)
        EXPECT_EQ(failure_of(action), 70) << &action - actions;
    EXPECT_EQ(platform::file_length(in("doel")), 3) << "its length is no secret";
    CloseHandle(used);
    EXPECT_EQ(bytes_of("doel"), "oud");
    EXPECT_EQ(names(), (std::vector<std::string>{"doel", "van"}));
}

TEST_F(Windows, PathsMayBeLongerThanTheSystemsOldLimit) {
    const std::string name(255, 'n');
    const std::string folders = in("diep/" + std::string(200, 'a') + "/" + std::string(200, 'b'));
    platform::make_folders(folders);
    platform::replace_file(platform::join_path(folders, name), "oud");
    platform::replace_file(platform::join_path(folders, name), "nieuw");
    EXPECT_EQ(platform::read_file(platform::join_path(folders, name)), "nieuw");
    EXPECT_EQ(platform::files_of(folders, "*"), std::vector<std::string>{name});
    EXPECT_EQ(failure_of([&] { platform::write_file(platform::join_path(folders, name + "n"), "x"); }), 75);
    platform::delete_file(platform::join_path(folders, name));
    EXPECT_EQ(platform::files_of(folders, "*"), std::vector<std::string>{});
}

TEST_F(Windows, HiddenFilesAreOnNoList) {
    put("a.txt", "x");
    put("b.txt", "x");
    SetFileAttributesW(whole("b.txt").c_str(), FILE_ATTRIBUTE_HIDDEN);
    if ((GetFileAttributesW(whole("b.txt").c_str()) & FILE_ATTRIBUTE_HIDDEN) == 0) GTEST_SKIP() << "nothing is hidden";
    EXPECT_EQ(platform::files_of(in(""), "*"), std::vector<std::string>{"a.txt"});
    platform::replace_file(in("b.txt"), "y");
    EXPECT_EQ(platform::read_file(in("b.txt")), "y");
}

TEST_F(Windows, AFileThatMayOnlyBeReadIsNotReplaced) {
    put("doel", "oud");
    SetFileAttributesW(whole("doel").c_str(), FILE_ATTRIBUTE_READONLY);
    const HANDLE forced = open(GENERIC_WRITE, FILE_SHARE_READ);
    CloseHandle(forced);
    if (forced != INVALID_HANDLE_VALUE) GTEST_SKIP() << "this user may write everything";
    EXPECT_EQ(failure_of([&] { platform::replace_file(in("doel"), "x"); }), 70);
    EXPECT_EQ(failure_of([&] { platform::write_file(in("doel"), "x"); }), 70);
    SetFileAttributesW(whole("doel").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(bytes_of("doel"), "oud");
}

// The programs stand beside the tests.
class Resources : public testing::TestWithParam<const char*> {
protected:
    std::string resource(const wchar_t* kind) const {
        const HRSRC found = FindResourceW(program_, MAKEINTRESOURCEW(1), kind);
        if (!found) return {};
        const auto* const bytes = static_cast<const char*>(LockResource(LoadResource(program_, found)));
        return {bytes, SizeofResource(program_, found)};
    }
    ~Resources() override { FreeLibrary(program_); }

    const std::string file_ = platform::join_path(platform::executable_folder(), GetParam());
    const HMODULE program_ = LoadLibraryExW(platform::path_of(file_).c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
};

TEST_P(Resources, TellWhatTheProgramIsAndThatPathsMayBeLong) {
    EXPECT_NE(resource(RT_MANIFEST).find(">true</longPathAware>"), std::string::npos);
    const std::string version = resource(RT_VERSION);
    for (const std::u16string text : {u"Zandolin Lomert", u"041304B0", u"ProductVersion"}) {
        const std::string bytes(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t));
        EXPECT_NE(version.find(bytes), std::string::npos) << platform::bytes_of_utf16(text);
    }
}

INSTANTIATE_TEST_SUITE_P(Programs, Resources, testing::Values("zandolin_deals.exe", "zandolin_script.exe"));

TEST(WindowsDrive, ThatIsGoneHasNothing) {
    char letter = 'Z';
    while ((GetLogicalDrives() >> (letter - 'A') & 1U) != 0)
        --letter;
    const std::string file = std::string(1, letter) + ":\\QVT_Spellen\\Spel 001\\x.txt";
    const std::string stick = file.substr(0, 14);
    EXPECT_EQ(platform::file_length(file), -1);
    platform::make_folders(stick);
    const std::function<void()> actions[] = {
        [&] { platform::read_file(file); },
        [&] { platform::write_file(file, "x"); },
        [&] { platform::replace_file(file, "x"); },
        [&] { platform::subfolders_of(stick); },
        [&] { platform::NewFolders().add(stick, "Spel 001", {}); },
        [&] { platform::Copies().add_folder(stick, {"x.txt"}, stick, platform::Links::Refuse); },
    };
    for (const auto& action : actions)
        EXPECT_EQ(failure_of(action), 76) << &action - actions;
}

TEST_F(Windows, BothSeparatorsLeadToAFile) {
    platform::make_folders(in("map/sub"));
    platform::write_file(in("map") + "/sub/x.txt", "x");
    EXPECT_EQ(platform::read_file(in("map/sub/X.TXT")), "x");
    EXPECT_EQ(platform::path_text(platform::find_case_blind(in("map") + "/sub/X.TXT")), in("map/sub/x.txt"));
}

TEST(SpecialFolders, AreThoseOfTheSystem) {
    for (const int number : {platform::kProgramFiles, platform::kProgramFilesX86}) {
        const std::string folder = platform::special_folder_without_key(number);
        EXPECT_TRUE(std::filesystem::is_directory(folder)) << folder;
        EXPECT_EQ(folder.find('/'), std::string::npos);
    }
    EXPECT_NE(platform::special_folder_without_key(38), platform::special_folder_without_key(42));
    EXPECT_EQ(platform::special_folder_without_key(7), "");
    EXPECT_TRUE(std::filesystem::is_directory(platform::home_folder()));
}

TEST_F(Windows, TheProgramFolderIsThatOfTheExecutable) {
    const std::string folder = platform::find_program_folder();
    EXPECT_EQ(folder, platform::executable_folder());
    EXPECT_GT(platform::file_length(platform::join_path(folder, "zandolin_tests.exe")), 0);
}

}  // namespace
