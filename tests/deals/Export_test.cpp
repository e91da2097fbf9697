// What leaves the program, and that it comes back.
#include <filesystem>

#include "base/Text.h"
#include "deals/TestImport.h"
#include "exchange/RandomLesson.h"

namespace {

namespace fs = std::filesystem;

class Export : public TestImport {
protected:
    Export() { fs::create_directories(program.path("home")); }

    void put(const std::string& name, const std::vector<exchange::DealFile>& files) {
        for (const exchange::DealFile& file : files)
            program.write("aftavrin/" + name + "/" + name + file.suffix, file.bytes);
    }
    Told export_to(const std::string& file, std::vector<std::string> words) {
        words.insert(words.end(), {"--to", program.path(file).string(), "--program", program.path().string()});
        return run("export", words);
    }
    static std::vector<exchange::DealFile> sound_lesson() {
        test::Random random(2);
        exchange::Board board = test::random_board(random);
        board.texts = {{{exchange::Place::Kind::Card, 5}, "Kijk.", 0}};
        std::vector<exchange::Remark> notes;
        return exchange::files_as_told(board, notes);
    }
};

TEST_F(Export, ComesBackByteByByte) {
    test::Random random(7);
    std::vector<std::string> words;
    for (int number = 101; number <= 150; ++number) {
        words.push_back("QVT_Spel " + std::to_string(number));
        put(words.back(), test::random_lesson(random));
    }
    std::string names;
    for (const std::string& word : words)
        names += word + "\n";
    const Told exported = export_to("alle.PBN", words);
    EXPECT_EQ(exported.status, 0) << exported.error;
    EXPECT_EQ(exported.out, names);
    // So that the lessons get their numbers again.
    fs::create_directories(program.path("other/aftavrin/QVT_Spel 100"));
    const Told imported = run("import", {"alle.PBN", "--as", "lessons", "--program", program.path("other").string()});
    EXPECT_EQ(imported.status, 0) << imported.error;
    EXPECT_EQ(imported.out, names);
    fs::remove_all(program.path("other/aftavrin/QVT_Spel 100"));
    const auto left = program.tree("aftavrin");
    const auto back = program.tree("other/aftavrin");
    ASSERT_EQ(back.size(), left.size());
    for (std::size_t i = 0; i < left.size(); ++i)
        ASSERT_EQ(back[i], "other/" + left[i]);
}

TEST_F(Export, ComesBackFromLinWithTheSamePlayAndTexts) {
    put("QVT_Spel 001", sound_lesson());
    EXPECT_EQ(export_to("les.lin", {"QVT_Spel 001"}).status, 0);
    EXPECT_EQ(import({"les.lin"}).out, "QVT_Spel 002\n");
    for (const exchange::DealFile& file : sound_lesson())
        EXPECT_EQ(program.read("aftavrin/QVT_Spel 002/QVT_Spel 002" + file.suffix), file.bytes) << file.suffix;
}

TEST_F(Export, TellsWhatOthersWillNotSee) {
    auto files = sound_lesson();
    std::string& play = test::file(files, " aftavrin.txt").bytes;
    play[26] = play[26] == '4' ? '1' : static_cast<char>(play[26] + 1);  // who leads trick 2
    put("QVT_Spel 001", files);
    const Told told = export_to("a.pbn", {"QVT_Spel 001", "qvt_spel 001", "QVT_Spel 9"});
    EXPECT_EQ(told.out, "QVT_Spel 001\nQVT_Spel 001\nrefused: QVT_Spel 9: no such lesson\n");
    EXPECT_EQ(told.status, 1);
    EXPECT_NE(told.error.find("note: QVT_Spel 001: trick 2 is led by"), std::string::npos) << told.error;
    EXPECT_NE(told.error.find("; only this program will find the rest again\n"), std::string::npos) << told.error;
}

TEST_F(Export, ShowsOnAPageOnlyWhatIsSound) {
    put("QVT_Spel 001", sound_lesson());
    auto files = sound_lesson();
    test::file(files, " aftavrin.txt").bytes.resize(26 * 12);
    put("QVT_Spel 002", files);
    const Told told = export_to("les.HTML", {"QVT_Spel 001", "QVT_Spel 002"});
    EXPECT_EQ(told.out, "QVT_Spel 001\nrefused: QVT_Spel 002: 12 tricks are recorded\n");
    EXPECT_EQ(told.status, 1);
    EXPECT_NE(program.read("les.HTML").find("Kijk."), std::string::npos);
    EXPECT_EQ(export_to("niets.html", {"QVT_Spel 002"}).status, 2);
    EXPECT_FALSE(program.exists("niets.html"));
}

TEST_F(Export, WritesOverNothingThatIsNotMeant) {
    put("QVT_Spel 001", sound_lesson());
    program.write("Les.pbn", "van een ander");
    const std::vector<std::string> lesson{"QVT_Spel 001"};
    EXPECT_EQ(export_to("les.pbn", lesson).status, 2);
    EXPECT_EQ(export_to("nergens/les.pbn", lesson).status, 2);
    EXPECT_EQ(export_to("les.txt", lesson).status, 2);
    EXPECT_EQ(program.read("Les.pbn"), "van een ander");
    EXPECT_EQ(export_to("Les.pbn", lesson).status, 0);
    EXPECT_NE(program.read("Les.pbn"), "van een ander");
}

}  // namespace
