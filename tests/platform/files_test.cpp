// Files and folders: names without regard to case, the code page, short and damaged files, and what stands in the
// place of a file.
#include "platform/Files.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "platform/CodePage.h"
#include "platform/Paths.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

class Files : public TemporaryFolder {};

TEST_F(Files, AreFoundInWhateverCaseTheyAreSpelled) {
    put("Map/Spel 1 Contract.txt", "x");
    const std::string asked = in("mAP/SPEL 1 contract.TXT");
    EXPECT_EQ(read_file(asked), "x");
    EXPECT_EQ(file_length(asked), 1);
    EXPECT_TRUE(folder_exists(in("MAP")));
    put("Map/spel 1 contract.txt", "exact");
    EXPECT_EQ(read_file(in("map/spel 1 contract.txt")), "exact") << "the exact name goes first";
    EXPECT_EQ(find_case_blind(in("MAP/nieuw/Niets.txt")), fs::path(in("Map/nieuw/Niets.txt")));
}

TEST_F(Files, AreRewrittenUnderTheSpellingThatIsThere) {
    put("Map/Vraag.TXT", "oud");
    const struct {
        const char* name;
        std::function<void(const std::string&)> write;
    } cases[] = {
        {"write", [](const std::string& path) { write_file(path, "write"); }},
        {"replace", [](const std::string& path) { replace_file(path, "replace"); }},
        {"copy", [&](const std::string& path) { copy_file(in("bron"), path); }},
    };
    put("bron", "copy");
    for (const auto& each : cases) {
        each.write(in("map/vraag.txt"));
        EXPECT_EQ(bytes_of("Map/Vraag.TXT"), each.name);
    }
    EXPECT_EQ(names("Map"), Lines{"Vraag.TXT"});
}

TEST_F(Files, HaveNamesInTheCodePage) {
    write_file(in("\xC9\xE9n\x80.txt"), "x");
    EXPECT_EQ(names(), Lines{"Één€.txt"});
    EXPECT_EQ(file_length(in("\xE9\xC9N\x80.TXT")), 1);
    EXPECT_EQ(files_of(in(""), "*"), Lines{"\xC9\xE9n\x80.txt"});
}

TEST(CodePage, RoundTripKeepsEveryByte) {
    for (int code = 0; code < 256; ++code) {
        const std::string one(1, static_cast<char>(code));
        EXPECT_EQ(from_utf8(to_utf8(one)), one) << code;
    }
    EXPECT_EQ(to_utf8("\x80\xC9"), "\u20AC\u00C9");
}

TEST(CodePage, WhatItCannotHoldBecomesAQuestionMark) {
    const struct {
        std::string utf8;
        const char* text;
    } cases[] = {
        {"a\u0416b", "a?b"},
        {"\U0001F0A1!", "?!"},
        {"\xC3", "?"},                // cut off
        {"\xE2\x82", "??"},           // cut off
        {"\x80z", "?z"},              // a continuation on its own
        {"\xC3z", "?z"},              // its continuation is missing
        {"\xFF\xFE", "??"},           // in no text at all
        {"\xC0\xAF", "??"},           // a slash in two bytes
        {"\xE0\x81\x81", "???"},      // an A in three
        {"\xF0\x80\x81\x81", "????"}  // and in four
    };
    for (const auto& each : cases)
        EXPECT_EQ(from_utf8(each.utf8), each.text);
}

TEST_F(Files, AreReadLineByLine) {
    const std::string longest(1 << 20, 'x');
    const struct {
        std::string bytes;
        Lines lines;
    } cases[] = {{"", {}},
                 {"a\r\nb\r\n", {"a", "b"}},
                 {"a\nb", {"a", "b"}},
                 {"\r\n\r\n", {"", ""}},
                 {"a\rb\r", {"a\rb"}},
                 {std::string("a\0b\r\n", 5), {std::string("a\0b", 3)}},
                 {longest + "\r\n" + longest, {longest, longest}}};
    for (const auto& each : cases) {
        put("f", each.bytes);
        LineReader reader(in("f"));
        Lines lines;
        while (!reader.at_end())
            lines.push_back(reader.line());
        EXPECT_EQ(lines, each.lines);
        EXPECT_EQ(failure_of([&] { reader.line(); }), 62);
    }
}

TEST_F(Files, OfRecordsMayBeShortOrLong) {
    const struct {
        const char* bytes;
        Lines records;
    } cases[] = {{"", {"   ", "   "}}, {"1|ab", {"1|a", "b  "}}, {"1| 2| more", {"1| ", "2| "}}};
    for (const auto& each : cases) {
        put("f", each.bytes);
        EXPECT_EQ(read_records(in("f"), 3, 2), each.records) << each.bytes;
    }
    write_records(in("f"), 3, {"x", "longer"});
    EXPECT_EQ(bytes_of("f"), "x  lonmore") << "what stands behind the records stays";
    write_records(in("new"), 3, {"x"});
    EXPECT_EQ(bytes_of("new"), "x  ");
}

// No file may grow beyond a few bytes as long as this lives: a full disk, for root too.
class FullDisk {
public:
    FullDisk() {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit few{16, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &few);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_{};
};

TEST_F(Files, StayWholeWhereTheirReplacementFails) {
    put("Oud.ini", "oud");
    int failure = 0;
    {
        const FullDisk full;
        failure = failure_of([&] { replace_file(in("oud.ini"), std::string(100000, 'x')); });
    }
    EXPECT_EQ(failure, 61);
    EXPECT_EQ(bytes_of("Oud.ini"), "oud");
    EXPECT_EQ(names(), Lines{"Oud.ini"}) << "nothing is left beside it";
    EXPECT_EQ(failure_of([&] { replace_file(in("geen/x"), "x"); }), 76);
}

TEST_F(Files, FailWithANumberWhereSomethingElseStandsInTheirPlace) {
    put("file", "x");
    fs::create_directory(folder / "folder");
    ASSERT_EQ(mkfifo(in("pipe").c_str(), 0600), 0);
    fs::create_symlink(folder / "nothing", folder / "dangling");
    const struct {
        const char* name;
        int read;
        int write;
    } cases[] = {{"folder", 75, 75}, {"pipe", 75, 75},   {"none", 53, 0},
                 {"none/x", 76, 76}, {"file/x", 76, 76}, {"dangling", 53, 0}};
    for (const auto& each : cases) {
        const std::string path = in(each.name);
        SCOPED_TRACE(each.name);
        EXPECT_EQ(file_length(path), -1);
        EXPECT_EQ(failure_of([&] { read_file(path); }), each.read);
        EXPECT_EQ(failure_of([&] { LineReader{path}; }), each.read);
        EXPECT_EQ(failure_of([&] { read_records(path, 532, 52); }), each.read);
        EXPECT_EQ(failure_of([&] { copy_file(path, in("copy")); }), each.read);
        if (each.write == 0) continue;
        EXPECT_EQ(failure_of([&] { write_file(path, "y"); }), each.write);
        EXPECT_EQ(failure_of([&] { write_records(path, 3, {"y"}); }), each.write);
        EXPECT_EQ(failure_of([&] { replace_file(path, "y"); }), each.write);
        EXPECT_EQ(failure_of([&] { copy_file(in("file"), path); }), each.write);
    }
    EXPECT_FALSE(fs::exists(in("copy")));
}

TEST_F(Files, ThatAreUnreadableFailWithoutPermission) {
    if (geteuid() == 0) GTEST_SKIP() << "root may read everything";
    put("secret", "x");
    fs::permissions(folder / "secret", fs::perms::none);
    EXPECT_EQ(failure_of([&] { read_file(in("secret")); }), 70);
    EXPECT_EQ(failure_of([&] { LineReader{in("secret")}; }), 70);
    EXPECT_EQ(failure_of([&] { write_file(in("secret"), "y"); }), 70);
}

TEST_F(Files, AreNeverOverwrittenByARename) {
    put("Een/x", "x");
    put("Twee/y", "y");
    put("bestand", "z");
    EXPECT_EQ(failure_of([&] { rename_path(in("een"), in("TWEE")); }), 58);
    EXPECT_EQ(failure_of([&] { rename_path(in("bestand"), in("Een/X")); }), 58);
    EXPECT_EQ(failure_of([&] { rename_path(in("geen"), in("drie")); }), 53);
    rename_path(in("een"), in("Drie"));
    EXPECT_EQ(names(), (Lines{"Drie", "Twee", "bestand"}));
}

TEST_F(Files, AreCopiedButLinksAreNotFollowed) {
    put("bron", "nieuw");
    put("elders", "geheim");
    fs::create_symlink(folder / "elders", folder / "link");
    EXPECT_EQ(failure_of([&] { copy_file(in("bron"), in("link")); }), 75);
    EXPECT_EQ(failure_of([&] { copy_file(in("link"), in("doel")); }), 75);
    EXPECT_EQ(bytes_of("elders"), "geheim");
    copy_file(in("BRON"), in("bron"));
    EXPECT_EQ(bytes_of("bron"), "nieuw") << "onto itself: nothing is lost";
}

TEST_F(Files, AreDeletedAndFoldersOnlyWhenEmpty) {
    put("Map/x", "x");
    EXPECT_EQ(failure_of([&] { remove_folder(in("map")); }), 75);
    delete_file(in("map/X"));
    EXPECT_EQ(failure_of([&] { delete_file(in("map/x")); }), 53);
    remove_folder(in("map"));
    EXPECT_EQ(failure_of([&] { remove_folder(in("map")); }), 76);
    EXPECT_EQ(failure_of([&] { make_folder(in("geen/map")); }), 76);
}

TEST_F(Files, AreListedInOrderWithoutRegardToCase) {
    for (const char* name : {"b.txt", "A.TXT", "c.ini", ".hidden.txt", "sub 10/x", "Sub 2/x", "sub 1/x", "txt/x"}) {
        put(name, "x");
    }
    EXPECT_EQ(files_of(in(""), "*"), (Lines{"A.TXT", "b.txt", "c.ini"}));
    EXPECT_EQ(files_of(in(""), "*.txt"), (Lines{"A.TXT", "b.txt"}));
    EXPECT_EQ(subfolders_of(in("")), (Lines{"sub 1", "sub 10", "Sub 2", "txt"}));
    EXPECT_EQ(failure_of([&] { subfolders_of(in("geen")); }), 76);
    EXPECT_EQ(failure_of([&] { files_of(in("b.txt"), "*"); }), 76);
}

}  // namespace
