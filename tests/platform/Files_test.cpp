// Files and folders: names without regard to case, the code page, short and damaged files, and what stands in the
// place of a file.
#include "platform/Files.h"

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
    EXPECT_EQ(platform::read_file(asked), "x");
    EXPECT_EQ(platform::file_length(asked), 1);
    put("Map/spel 1 contract.txt", "exact");
    EXPECT_EQ(platform::read_file(in("map/spel 1 contract.txt")), "exact") << "the exact name goes first";
    EXPECT_EQ(platform::find_case_blind(in("Map/nieuw/Niets.txt")), fs::path(in("Map/nieuw/Niets.txt")));
}

TEST_F(Files, AreRewrittenUnderTheSpellingThatIsThere) {
    put("Map/Vraag.TXT", "oud");
    const struct {
        const char* name;
        std::function<void(const std::string&)> write;
    } cases[] = {
        {"write", [](const std::string& path) { platform::write_file(path, "write"); }},
        {"replace", [](const std::string& path) { platform::replace_file(path, "replace"); }},
        {"copy", [&](const std::string& path) { platform::copy_file(in("bron"), path); }},
    };
    put("bron", "copy");
    for (const auto& each : cases) {
        each.write(in("map/vraag.txt"));
        EXPECT_EQ(bytes_of("Map/Vraag.TXT"), each.name);
    }
    EXPECT_EQ(names("Map"), Lines{"Vraag.TXT"});
}

TEST_F(Files, HaveNamesInTheCodePage) {
    platform::write_file(in("\xC9\xE9n\x80.txt"), "x");
    EXPECT_EQ(names(), Lines{"Één€.txt"});
    EXPECT_EQ(platform::file_length(in("\xE9\xC9N\x80.TXT")), 1);
    EXPECT_EQ(platform::files_of(in(""), "*"), Lines{"\xC9\xE9n\x80.txt"});
}

TEST(CodePage, RoundTripKeepsEveryByte) {
    for (int code = 0; code < 256; ++code) {
        const std::string one(1, static_cast<char>(code));
        EXPECT_EQ(platform::from_utf8(platform::to_utf8(one)), one) << code;
    }
    EXPECT_EQ(platform::to_utf8("\x80\xC9"), "\u20AC\u00C9");
}

TEST(CodePage, NamesInUtf16ComeBackAsTheyWere) {
    const struct {
        std::u16string units;
        std::string bytes;
    } cases[] = {{u"a\u00E9\u2665", "a\u00E9\u2665"},
                 {u"\U0001F0A1", "\U0001F0A1"},
                 {{0xD800, u'x'}, "\xED\xA0\x80x"},  // half a pair, as a name may hold it
                 {{0xDC00, 0xD800}, "\xED\xB0\x80\xED\xA0\x80"}};
    for (const auto& each : cases) {
        EXPECT_EQ(platform::bytes_of_utf16(each.units), each.bytes);
        EXPECT_EQ(platform::utf16_of(each.bytes), each.units);
        EXPECT_EQ(platform::name_bytes(platform::name_text(each.bytes)), each.bytes);
    }
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
        EXPECT_EQ(platform::from_utf8(each.utf8), each.text);
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
        platform::LineReader reader(in("f"));
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
        EXPECT_EQ(platform::read_records(in("f"), 3, 2), each.records) << each.bytes;
    }
    platform::write_records(in("f"), 3, {"x", "longer"});
    EXPECT_EQ(bytes_of("f"), "x  lonmore") << "what stands behind the records stays";
    platform::write_records(in("new"), 3, {"x"});
    EXPECT_EQ(bytes_of("new"), "x  ");
}

// Lets the n-th call fail; tells whether there was one.
class FailingCall {
public:
    FailingCall(int number, int error)
        : hook_([this, number, error](platform::system_calls::Call call, const char*) {
              if (call == platform::system_calls::Call::Remove || calls_++ != number) return 0;
              return error;
          }) {}
    bool came(int number) const { return calls_ > number; }

private:
    int calls_ = 0;
    platform::system_calls::HookScope hook_;
};

void copy_folder(const std::string& from, const std::string& to, platform::Links links = platform::Links::Follow) {
    platform::Copies copies;
    copies.add_folder(from, platform::files_of(from, "*"), to, links);
    copies.finish();
}

// Each replaces "doel" in the folder; the copy takes it from "van".
const struct {
    const char* name;
    std::function<void(const std::string& folder)> replace;
} kReplacements[] = {
    {"copy", [](const std::string& folder) { copy_folder(platform::join_path(folder, "van"), folder); }},
    {"text",
     [](const std::string& folder) {
         platform::replace_file(platform::join_path(folder, "doel"), std::string(100000, 'n'));
     }},
};

TEST_F(Files, AreReplacedWholeOrNotAtAllWhicheverCallFails) {
    const std::string fresh(100000, 'n');
    put("van/doel", fresh);
    for (const auto& each : kReplacements) {
        SCOPED_TRACE(each.name);
        for (int number = 0, came = true; came; ++number) {
            put("doel", "oud");
            fs::permissions(folder / "doel", fs::perms(0666));
            const fs::perms mode = fs::status(folder / "doel").permissions();
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
            EXPECT_EQ(fs::status(folder / "doel").permissions(), mode) << number;
            ASSERT_LT(number, 100);
        }
    }
}

// A folder that is empty gets all files of the copy or none, and a failure leaves nothing beside it.
TEST_F(Files, FillAnEmptyFolderWholeOrNotAtAllWhicheverCallFails) {
    const Lines both{"doel", "twee"};
    put("van/doel", std::string(100000, 'n'));
    put("van/twee", "");
    for (int number = 0, came = true; came; ++number) {
        fs::remove_all(folder / "naar");
        fs::create_directory(folder / "naar");
        const int failure = [&] {
            const FailingCall failing(number, EIO);
            const int found = failure_of([&] { copy_folder(in("van"), in("naar")); });
            came = failing.came(number);
            return found;
        }();
        EXPECT_TRUE(failure == 57 || failure == 0) << number;
        const bool whole = names("naar") == both && bytes_of("naar/doel").size() == 100000;
        EXPECT_TRUE(whole || (failure != 0 && names("naar").empty())) << number;
        EXPECT_EQ(names(), (Lines{"naar", "van"})) << number;
        ASSERT_LT(number, 100);
    }
    EXPECT_EQ(names("naar"), both);
}

// What a copy that was killed left beside the deals of a stick goes with the next one, when nobody can be at it any
// more.
TEST_F(Files, LeftBesideAFolderGoWithTheNextCopy) {
    put("van/doel", "n");
    put("stick/.zandolin-nieuw-1-2", "half");
    put("stick/.zandolin-nieuw-3-4/doel", "half");
    fs::last_write_time(folder / "stick/.zandolin-nieuw-1-2", fs::file_time_type::clock::now() - std::chrono::hours(2));
    fs::create_directory(folder / "stick/naar");
    copy_folder(in("van"), in("stick/naar"));
    EXPECT_EQ(names("stick"), (Lines{".zandolin-nieuw-3-4", "naar"}));
    EXPECT_EQ(bytes_of("stick/naar/doel"), "n");
}

TEST_F(Files, ThatMayNotBeWrittenAreNotReplaced) {
    put("vast", "oud");
    const platform::system_calls::HookScope fast([this](platform::system_calls::Call call, const char* path) {
        return call == platform::system_calls::Call::Open && path == in("vast") ? EACCES : 0;
    });
    EXPECT_EQ(failure_of([&] { platform::replace_file(in("vast"), "nieuw"); }), 70);
    EXPECT_EQ(names(), Lines{"vast"});
}

TEST_F(Files, ThatTheUserLinkedAreReplacedWhereTheyAre) {
    put("elders/echt.ini", "oud");
    if (!make_link("elders/echt.ini", folder / "link.ini")) GTEST_SKIP() << kNoLinks;
    platform::replace_file(in("link.ini"), "nieuw");
    EXPECT_TRUE(fs::is_symlink(folder / "link.ini"));
    EXPECT_EQ(bytes_of("elders/echt.ini"), "nieuw");
}

TEST_F(Files, AReadThatFailsIsNotTheEnd) {
    put("f", std::string(100000, 'a') + "\r\nb\r\n");
    for (const int part : {0, 1, 2}) {
        int reads = 0;
        const platform::system_calls::HookScope bad([&](platform::system_calls::Call call, const char*) {
            return call == platform::system_calls::Call::Read && reads++ == part ? EIO : 0;
        });
        const auto read_lines = [&] {
            for (platform::LineReader reader(in("f")); !reader.at_end();)
                reader.line();
        };
        EXPECT_EQ(failure_of(read_lines), 57) << part;
        reads = 0;
        EXPECT_EQ(failure_of([&] { platform::read_file(in("f")); }), 57) << part;
        reads = 0;
        put("doel", "oud");
        EXPECT_EQ(failure_of([&] { platform::copy_file(in("f"), in("doel")); }), 57) << part;
        EXPECT_EQ(bytes_of("doel"), "oud") << "not emptied before the other was read";
    }
}

TEST_F(Files, ALookUpThatFailsIsNotAnAnswer) {
    put("Map/Vraag.txt", "x");
    using platform::system_calls::Call;
    for (const Call call : {Call::Status, Call::OpenFolder, Call::ReadFolder}) {
        if (kSystemIgnoresCase && call != Call::Status) continue;  // no folder is looked through
        const platform::system_calls::HookScope bad([&](Call made, const char*) { return made == call ? EACCES : 0; });
        EXPECT_EQ(failure_of([&] { platform::file_length(in("map/vraag.txt")); }), 70);
        EXPECT_EQ(failure_of([&] { platform::write_file(in("map/vraag.txt"), ""); }), 70);
    }
    EXPECT_EQ(bytes_of("Map/Vraag.txt"), "x");
}

TEST_F(Files, WithNamesOutsideTheCodePageStayApartAndAreFoundBack) {
    Lines on_disk{"Spel \u2660", "Spel \u2665", "Spel {2665}", "Spel {E9}", "Spel {a}", "Spel \xC3\xA9"};
    Lines texts{"Spel {2660}", "Spel {2665}", "Spel {7B}2665}", "Spel {7B}E9}", "Spel {a}", "Spel \xE9"};
    if (kNamesAreBytes) {
        on_disk.push_back("Spel \xE9");
        texts.insert(texts.end() - 1, "Spel {E9}");
    }
    for (const std::string& name : on_disk)
        put(name + "/x", name);
    const Lines listed = platform::subfolders_of(in(""));
    EXPECT_EQ(listed, texts);
    Lines found;
    for (const std::string& name : listed)
        found.push_back(platform::read_file(platform::join_path(in(""), name + "/X")));
    EXPECT_TRUE(std::ranges::is_permutation(found, on_disk));
    platform::make_folders(in("kopie/" + listed[1]));
    EXPECT_EQ(names("kopie"), Lines{"Spel \u2665"}) << "never another name";
}

TEST_F(Files, LinksAreRefusedBelowTheRootOnly) {
    put("echt/spel/x.txt", "x");
    if (!make_link("echt", folder / "wortel")) GTEST_SKIP() << kNoLinks;
    if (!make_link("spel", folder / "echt/link")) GTEST_SKIP() << kNoLinks;
    if (!make_link("x.txt", folder / "echt/spel/Y.txt")) GTEST_SKIP() << kNoLinks;
    const struct {
        const char* path;
        int failure;
    } cases[] = {{"", 0},       {"/spel", 0},        {"/spel/x.txt", 0},  {"/SPEL/y.TXT", 75},
                 {"/link", 75}, {"/link/x.txt", 75}, {"/link/nieuw", 75}, {"/nieuw/x", 0}};
    for (const auto& each : cases) {
        EXPECT_EQ(failure_of([&] { platform::refuse_links(in("wortel"), in("wortel") + each.path); }), each.failure)
            << each.path;
    }
    EXPECT_EQ(failure_of([&] { platform::refuse_links_in(in("wortel/spel"), "*.txt"); }), 75);
    EXPECT_EQ(failure_of([&] { platform::refuse_links_in(in("wortel/spel"), "*.ini"); }), 0);
    EXPECT_EQ(failure_of([&] { platform::refuse_links_in(in("wortel/geen"), "*"); }), 0);
}

TEST_F(Files, FailWithANumberWhereSomethingElseStandsInTheirPlace) {
    put("file", "x");
    fs::create_directory(folder / "folder");
    const bool pipe = make_pipe(folder / "pipe");
    const bool link = make_link(folder / "nothing", folder / "dangling");
    const struct {
        const char* name;
        int read;
        int write;
    } cases[] = {{"folder", 75, 75}, {"pipe", 75, 75},   {"none", 53, 0},
                 {"none/x", 76, 76}, {"file/x", 76, 76}, {"dangling", 53, 0}};
    for (const auto& each : cases) {
        const std::string path = in(each.name);
        SCOPED_TRACE(each.name);
        if ((!pipe && path == in("pipe")) || (!link && path == in("dangling"))) continue;
        EXPECT_EQ(platform::file_length(path), -1);
        EXPECT_EQ(failure_of([&] { platform::read_file(path); }), each.read);
        EXPECT_EQ(failure_of([&] { platform::LineReader{path}; }), each.read);
        EXPECT_EQ(failure_of([&] { platform::read_records(path, 532, 52); }), each.read);
        EXPECT_EQ(failure_of([&] { platform::copy_file(path, in("copy")); }), each.read);
        if (each.write == 0) continue;
        EXPECT_EQ(failure_of([&] { platform::write_file(path, "y"); }), each.write);
        EXPECT_EQ(failure_of([&] { platform::write_records(path, 3, {"y"}); }), each.write);
        EXPECT_EQ(failure_of([&] { platform::replace_file(path, "y"); }), each.write);
        EXPECT_EQ(failure_of([&] { platform::copy_file(in("file"), path); }), each.write);
    }
    EXPECT_FALSE(fs::exists(in("copy")));
}

TEST_F(Files, AreNeverOverwrittenByARename) {
    put("Een/x", "x");
    put("Twee/y", "y");
    put("bestand", "z");
    EXPECT_EQ(failure_of([&] { platform::rename_path(in("een"), in("TWEE")); }), 58);
    EXPECT_EQ(failure_of([&] { platform::rename_path(in("bestand"), in("Een/X")); }), 58);
    EXPECT_EQ(failure_of([&] { platform::rename_path(in("geen"), in("drie")); }), 53);
    platform::rename_path(in("een"), in("Drie"));
    EXPECT_EQ(names(), (Lines{"Drie", "Twee", "bestand"}));
}

TEST_F(Files, AreCopiedOverNoLinkAndThroughOneOnlyIfAsked) {
    put("bron/x", "nieuw");
    put("elders", "geheim");
    put("linken/y", "y");
    put("vol/Y", "oud");
    if (!make_link(folder / "elders", folder / "linken/x")) GTEST_SKIP() << kNoLinks;
    EXPECT_EQ(failure_of([&] { platform::copy_file(in("bron/x"), in("linken/x")); }), 75);
    EXPECT_EQ(failure_of([&] { copy_folder(in("bron"), in("linken")); }), 75);
    EXPECT_EQ(failure_of([&] { copy_folder(in("linken"), in("vol"), platform::Links::Refuse); }), 75);
    EXPECT_EQ(bytes_of("elders"), "geheim");
    EXPECT_EQ(names("vol"), Lines{"Y"}) << "none of the folder's files came";
    EXPECT_EQ(bytes_of("vol/Y"), "oud");
    copy_folder(in("linken"), in("vol"));
    EXPECT_EQ(names("vol"), (Lines{"Y", "x"}));
    EXPECT_EQ(bytes_of("vol/Y") + bytes_of("vol/x"), "ygeheim");
}

TEST_F(Files, AreCopiedOntoThemselvesWithoutLoss) {
    put("bron/x", "nieuw");
    fs::create_directory(folder / "zelf");
    fs::create_hard_link(folder / "bron/x", folder / "zelf/x");
    for (const char* itself : {"BRON", "zelf"}) {
        platform::copy_file(in("bron/x"), in(itself) + "/x");
        copy_folder(in("bron"), in(itself));
        EXPECT_EQ(bytes_of("bron/x"), "nieuw") << "onto itself: nothing is lost";
    }
}

TEST_F(Files, AreDeletedAndFoldersOnlyWhenEmpty) {
    put("Map/x", "x");
    EXPECT_EQ(failure_of([&] { platform::remove_folder(in("map")); }), 75);
    platform::delete_file(in("map/X"));
    EXPECT_EQ(failure_of([&] { platform::delete_file(in("map/x")); }), 53);
    platform::remove_folder(in("map"));
    EXPECT_EQ(failure_of([&] { platform::remove_folder(in("map")); }), 76);
}

TEST_F(Files, AreListedInOrderWithoutRegardToCase) {
    for (const char* name : {"b.txt", "A.TXT", "c.ini", ".hidden.txt", "sub 10/x", "Sub 2/x", "sub 1/x", "txt/x"}) {
        put(name, "x");
    }
    EXPECT_EQ(platform::files_of(in(""), "*"), (Lines{"A.TXT", "b.txt", "c.ini"}));
    EXPECT_EQ(platform::files_of(in(""), "*.txt"), (Lines{"A.TXT", "b.txt"}));
    EXPECT_EQ(platform::subfolders_of(in("")), (Lines{"sub 1", "sub 10", "Sub 2", "txt"}));
    EXPECT_EQ(failure_of([&] { platform::subfolders_of(in("geen")); }), 76);
    EXPECT_EQ(failure_of([&] { platform::files_of(in("b.txt"), "*"); }), 76);
}

}  // namespace
