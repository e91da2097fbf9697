// Files and folders: names without regard to case, the code page, short and damaged files, and what stands in the
// place of a file.
#include "platform/Files.h"

#include <sys/stat.h>

#include <chrono>

#include "platform/CodePage.h"
#include "platform/Copies.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"
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

TEST_F(Files, OfAnExactNameAreFoundFirstBelowAnySpellingOfTheirFolder) {
    for (const char* name : {"x.txt", "X.txt", "X.TXT"})
        put(std::string("Map/") + name, name);
    for (const char* name : {"x.txt", "X.txt", "X.TXT"})
        EXPECT_EQ(read_file(in(std::string("mAP/") + name)), name);
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

// Lets the n-th call fail; tells whether there was one.
class FailingCall {
public:
    FailingCall(int number, int error)
        : hook_([this, number, error](system_calls::Call call, const char*) {
              if (call == system_calls::Call::Remove || calls_++ != number) return 0;
              return error;
          }) {}
    bool came(int number) const { return calls_ > number; }

private:
    int calls_ = 0;
    system_calls::HookScope hook_;
};

void copy_folder(const std::string& from, const std::string& to, Links links = Links::Follow) {
    Copies copies;
    copies.add_folder(from, files_of(from, "*"), to, links);
    copies.finish();
}

// Each replaces "doel" in the folder; the copy takes it from "van".
const struct {
    const char* name;
    std::function<void(const std::string& folder)> replace;
} kReplacements[] = {
    {"copy", [](const std::string& folder) { copy_folder(join_path(folder, "van"), folder); }},
    {"text", [](const std::string& folder) { replace_file(join_path(folder, "doel"), std::string(100000, 'n')); }},
};

TEST_F(Files, AreReplacedWholeOrNotAtAllWhicheverCallFails) {
    const std::string fresh(100000, 'n');
    put("van/doel", fresh);
    for (const auto& each : kReplacements) {
        SCOPED_TRACE(each.name);
        for (int number = 0, came = true; came; ++number) {
            put("doel", "oud");
            fs::permissions(folder / "doel", fs::perms(0666));
            const int failure = [&] {
                const FailingCall failing(number, EIO);
                const int found = failure_of([&] { each.replace(folder.string()); });
                came = failing.came(number);
                return found;
            }();
            // A file that was only read, or only tried, may fail to close.
            EXPECT_TRUE(failure == 57 || failure == 0) << number;
            EXPECT_EQ(bytes_of("doel"), failure != 0 ? "oud" : fresh) << number;
            EXPECT_EQ(names(), (Lines{"doel", "van"})) << number;
            EXPECT_EQ(fs::status(folder / "doel").permissions(), fs::perms(0666)) << number;
            ASSERT_LT(number, 100);
        }
    }
}

TEST_F(Files, ThatMayNotBeWrittenAreNotReplaced) {
    put("vast", "oud");
    const system_calls::HookScope fast([this](system_calls::Call call, const char* path) {
        return call == system_calls::Call::Open && path == in("vast") ? EACCES : 0;
    });
    EXPECT_EQ(failure_of([&] { replace_file(in("vast"), "nieuw"); }), 70);
    EXPECT_EQ(names(), Lines{"vast"});
}

TEST_F(Files, ThatTheUserLinkedAreReplacedWhereTheyAre) {
    put("elders/echt.ini", "oud");
    fs::create_symlink("elders/echt.ini", folder / "link.ini");
    replace_file(in("link.ini"), "nieuw");
    EXPECT_TRUE(fs::is_symlink(folder / "link.ini"));
    EXPECT_EQ(bytes_of("elders/echt.ini"), "nieuw");
}

TEST_F(Files, AReadThatFailsIsNotTheEnd) {
    put("f", std::string(100000, 'a') + "\r\nb\r\n");
    for (const int part : {0, 1, 2}) {
        int reads = 0;
        const system_calls::HookScope bad([&](system_calls::Call call, const char*) {
            return call == system_calls::Call::Read && reads++ == part ? EIO : 0;
        });
        const auto read_lines = [&] {
            for (LineReader reader(in("f")); !reader.at_end();)
                reader.line();
        };
        EXPECT_EQ(failure_of(read_lines), 57) << part;
        reads = 0;
        EXPECT_EQ(failure_of([&] { read_file(in("f")); }), 57) << part;
        reads = 0;
        put("doel", "oud");
        EXPECT_EQ(failure_of([&] { copy_file(in("f"), in("doel")); }), 57) << part;
        EXPECT_EQ(bytes_of("doel"), "oud") << "not emptied before the other was read";
    }
}

TEST_F(Files, ALookUpThatFailsIsNotAnAnswer) {
    put("Map/Vraag.txt", "x");
    using system_calls::Call;
    for (const Call call : {Call::Status, Call::OpenFolder, Call::ReadFolder}) {
        const system_calls::HookScope bad([&](Call made, const char*) { return made == call ? EACCES : 0; });
        EXPECT_EQ(failure_of([&] { file_length(in("map/vraag.txt")); }), 70);
        EXPECT_EQ(failure_of([&] { write_file(in("map/vraag.txt"), ""); }), 70);
    }
    EXPECT_EQ(bytes_of("Map/Vraag.txt"), "x");
}

TEST_F(Files, WithNamesOutsideTheCodePageStayApartAndAreFoundBack) {
    const Lines on_disk{"Spel \u2660", "Spel \u2665", "Spel \xE9",    "Spel {2665}",
                        "Spel {E9}",   "Spel {a}",    "Spel \xC3\xA9"};
    for (const std::string& name : on_disk)
        put(name + "/x", name);
    const Lines listed = subfolders_of(in(""));
    EXPECT_EQ(listed, (Lines{"Spel {2660}", "Spel {2665}", "Spel {7B}2665}", "Spel {7B}E9}", "Spel {a}", "Spel {E9}",
                             "Spel \xE9"}));
    Lines found;
    for (const std::string& name : listed)
        found.push_back(read_file(join_path(in(""), name + "/X")));
    EXPECT_TRUE(std::ranges::is_permutation(found, on_disk));
    make_folders(in("kopie/" + listed[1]));
    EXPECT_EQ(names("kopie"), Lines{"Spel \u2665"}) << "never another name";
}

TEST_F(Files, LinksAreRefusedBelowTheRootOnly) {
    put("echt/spel/x.txt", "x");
    fs::create_symlink("echt", folder / "wortel");
    fs::create_symlink("spel", folder / "echt/link");
    fs::create_symlink("x.txt", folder / "echt/spel/Y.txt");
    const struct {
        const char* path;
        int failure;
    } cases[] = {{"", 0},       {"/spel", 0},        {"/spel/x.txt", 0},  {"/SPEL/y.TXT", 75},
                 {"/link", 75}, {"/link/x.txt", 75}, {"/link/nieuw", 75}, {"/nieuw/x", 0}};
    for (const auto& each : cases) {
        EXPECT_EQ(failure_of([&] { refuse_links(in("wortel"), in("wortel") + each.path); }), each.failure) << each.path;
    }
    EXPECT_EQ(failure_of([&] { refuse_links_in(in("wortel/spel"), "*.txt"); }), 75);
    EXPECT_EQ(failure_of([&] { refuse_links_in(in("wortel/spel"), "*.ini"); }), 0);
    EXPECT_EQ(failure_of([&] { refuse_links_in(in("wortel/geen"), "*"); }), 0);
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

TEST_F(Files, AreCopiedOverNoLinkAndThroughOneOnlyIfAsked) {
    put("bron/x", "nieuw");
    put("elders", "geheim");
    put("linken/y", "y");
    put("vol/Y", "oud");
    fs::create_symlink(folder / "elders", folder / "linken/x");
    EXPECT_EQ(failure_of([&] { copy_file(in("bron/x"), in("linken/x")); }), 75);
    EXPECT_EQ(failure_of([&] { copy_folder(in("bron"), in("linken")); }), 75);
    EXPECT_EQ(failure_of([&] { copy_folder(in("linken"), in("vol"), Links::Refuse); }), 75);
    EXPECT_EQ(bytes_of("elders"), "geheim");
    EXPECT_EQ(names("vol"), Lines{"Y"}) << "none of the folder's files came";
    EXPECT_EQ(bytes_of("vol/Y"), "oud");
    copy_folder(in("linken"), in("vol"));
    EXPECT_EQ(names("vol"), (Lines{"Y", "x"}));
    EXPECT_EQ(bytes_of("vol/Y") + bytes_of("vol/x"), "ygeheim");
    fs::create_directory(folder / "zelf");
    fs::create_hard_link(folder / "bron/x", folder / "zelf/x");
    for (const char* itself : {"BRON", "zelf"}) {
        copy_file(in("bron/x"), in(itself) + "/x");
        copy_folder(in("bron"), in(itself));
        EXPECT_EQ(bytes_of("bron/x"), "nieuw") << "onto itself: nothing is lost";
    }
}

TEST_F(Files, AreDeletedAndFoldersOnlyWhenEmpty) {
    put("Map/x", "x");
    EXPECT_EQ(failure_of([&] { remove_folder(in("map")); }), 75);
    delete_file(in("map/X"));
    EXPECT_EQ(failure_of([&] { delete_file(in("map/x")); }), 53);
    remove_folder(in("map"));
    EXPECT_EQ(failure_of([&] { remove_folder(in("map")); }), 76);
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
