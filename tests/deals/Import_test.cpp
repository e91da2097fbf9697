// What an import makes of boards, what it tells, and where it puts them.
#include <filesystem>

#include "base/Text.h"
#include "deals/Arguments.h"
#include "deals/ImportOptions.h"
#include "deals/TestImport.h"
#include "platform/SpecialFolders.h"

namespace {

namespace fs = std::filesystem;

// Each hand is a suit: Noord has the spades, Oost the hearts, Zuid the diamonds, West the clubs. Against 1S by South
// West leads the ace, and Noord ruffs and goes on with trumps.
const std::string kDeal = "[Deal \"N:AKQJT98765432... .AKQJT98765432.. ..AKQJT98765432. ...AKQJT98765432\"]\n";
const std::string kBoard = "[Board \"3\"]\n" + kDeal;
const std::string kContract = "[Declarer \"S\"]\n[Contract \"1S\"]\n";

// The play up to a number of tricks, with a text at the lead.
std::string play(int tricks, const std::string& text = "") {
    std::string section = "[Play \"W\"]\n";
    for (int trick = 0; trick < tricks; ++trick) {
        const char rank = "AKQJT98765432"[trick];
        for (const char suit : {'C', 'S', 'H', 'D'}) {
            section += std::string(" ") + suit + rank;
            if (trick == 0 && suit == 'C') section += text;
        }
        section += "\n";
    }
    return section + "*\n";
}
const std::string kText = " {Kijk!}";

struct Row {
    const char* name;
    std::string pbn;
    std::vector<std::string> options;
    std::string out;
    int status;
    std::string error;
};

class ImportOf : public TestImport, public testing::WithParamInterface<Row> {};

TEST_P(ImportOf, MakesOrRefuses) {
    program.write("club.pbn", GetParam().pbn);
    std::vector<std::string> words{"club.pbn"};
    words.insert(words.end(), GetParam().options.begin(), GetParam().options.end());
    const Told told = import(words);
    EXPECT_EQ(base::replaced(told.out, "\n", "/"), GetParam().out);
    EXPECT_EQ(told.status, GetParam().status);
    EXPECT_EQ(base::replaced(told.error, "\n", "/"), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ImportOf,
    testing::Values(
        Row{"PlayWithTextBecomesALesson", kBoard + kContract + play(13, kText), {}, "QVT_Spel 001/", 0, ""},
        Row{"PlayWithoutTextBecomesADeal", kBoard + kContract + play(13), {}, "Spel 001/", 0, ""},
        Row{"LessonsTakesPlayWithoutText", kBoard + kContract + play(13), {"--as", "lessons"}, "QVT_Spel 001/", 0, ""},
        Row{"DealsMakesNoLesson", kBoard + kContract + play(13, kText), {"--as", "deals"}, "Spel 001/", 0, ""},
        Row{"ClaimWithTextBecomesADeal", kBoard + kContract + play(11, kText), {}, "Spel 001/", 0, ""},
        Row{"LessonsRefusesAClaim",
            kBoard + kContract + play(11, kText),
            {"--as", "lessons"},
            "refused: board 3, line 1: the play is not complete/",
            2,
            ""},
        Row{"LastTrickPlaysItself",
            kBoard + kContract + play(12, kText),
            {},
            "QVT_Spel 001/",
            0,
            "note: board 3, line 1: the play ends with card 48; the last cards follow/"},
        Row{"ADealNeedsNoLastTrick", kBoard + kContract + play(12), {}, "Spel 001/", 0, ""},
        Row{"FinishPlaysOut",
            kBoard + kContract + play(2, kText),
            {"--finish"},
            "QVT_Spel 001/",
            0,
            "note: board 3, line 1: the play is played out from card 9 on/"},
        Row{"FinishMakesNoLessonByItself", kBoard + kContract + play(2), {"--finish"}, "Spel 001/", 0, ""},
        Row{"FinishNeedsACardInTheFile",
            kBoard + kContract,
            {"--finish", "--as", "lessons", "--lead", "1=CA"},
            "refused: board 3, line 1: the play is not complete/",
            2,
            ""},
        Row{"NoContract", kBoard, {}, "refused: board 3, line 1: no contract/", 2, ""},
        Row{"NoLead", kBoard + kContract, {}, "refused: board 3, line 1: no opening lead/", 2, ""},
        Row{"LeadGiven", kBoard + kContract, {"--lead", "1=CK"}, "Spel 001/", 0, ""},
        Row{"ContractGivenToAPlay", kBoard + play(13, kText), {"--contract", "1=S1SX"}, "QVT_Spel 001/", 0, ""},
        Row{"ContractAgainstTheFile",
            kBoard + kContract + play(13),
            {"--contract", "1=S2S"},
            "refused: board 3, line 1: the file says 1S by S/",
            2,
            ""},
        Row{"LeadAgainstTheFile",
            kBoard + kContract + play(13),
            {"--lead", "1=CK"},
            "refused: board 3, line 1: the file says the lead is CA/",
            2,
            ""},
        Row{"AgainstTheRules",
            kBoard + kContract + "[Play \"W\"]\nCA SA HA D2\nC2 S2 H2 D2\n",
            {},
            "refused: board 3, line 7: card 7 (D2): S does not hold it/",
            2,
            ""},
        Row{"WithoutANumber", kDeal, {}, "refused: deal 1, line 1: no contract/", 2, ""},
        Row{"GoodOnesComeInBesideBadOnes",
            kBoard + kContract + play(13) + "\n[Board \"4\"]\n[Deal \"N:A... - - -\"]\n\n[Board \"5\"]\n" + kDeal +
                kContract + play(1),
            {},
            "Spel 001/refused: board 4, line 22: more than one hand is unknown/Spel 002/",
            1,
            ""},
        Row{"SomeOfThem",
            kBoard + "\n[Board \"4\"]\n" + kDeal + kContract + play(13) + "\n" + kBoard + "\n" + kBoard,
            {"--deals", "2,4-4", "--contract", "4=N3NT", "--lead", "4=HA"},
            "Spel 001/Spel 002/",
            0,
            ""},
        Row{"PlaceThatIsNotThere",
            kBoard + kContract + play(1),
            {"--deals", "1,7"},
            "Spel 001/",
            1,
            "error: there is no deal 7; the last is 1/"},
        Row{"NothingInIt", "A letter to the club.\n", {}, "", 2, "error: there are no boards in it/"}),
    [](const auto& info) { return info.param.name; });

TEST_F(TestImport, CountsPlacesAndNamesFilesThroughAllOfThem) {
    program.write("een.pbn", kBoard + "\n" + kBoard);
    program.write("twee.lin", "qx|o9|md|1SAKQJT98765432,HAKQJT98765432,DAKQJT98765432,|mb|1Hppp|pc|SA|");
    const Told told = import({"een.pbn", "weg.pbn", "twee.lin", "--contract", "2=S4HXX,1=N1SA", "--lead", "2=CA"});
    EXPECT_EQ(told.out,
              "refused: een.pbn: board 3, line 1: no opening lead\nSpel 001\n"
              "refused: twee.lin: board 9, line 1: card 1 (SA): W does not hold it\n");
    EXPECT_EQ(told.error, "error: weg.pbn: no such file (weg.pbn)\n");
    EXPECT_EQ(told.status, 1);
    EXPECT_EQ(program.read(kSpellen + "Spel 001/Spel 001 vraag.txt"), "\r\nHet contract is geredoubleerd.\r\n");
}

TEST_F(TestImport, BringsTheSampleFilesIn) {
    program.add_samples();
    program.write("standaardtavrin.ini", "[Platform]\r\nProgramFiles=.\r\n");
    const auto told =
        import({"files/club.pbn", "files/les.pbn", "files/tafel.lin", "--lead", "4=D2,5=DT,7=H8", "--finish"});
    EXPECT_EQ(
        told.out,
        native(
            "Spel 010\nSpel 011\nSpel 012\nSpel 013\nSpel 014\nrefused: files/club.pbn: board 6, line 74: no contract\n"
            "Spel 015\nQVT_Spel 016\nQVT_Spel 017\nSpel 018\n"));
    EXPECT_EQ(told.error, native("note: files/tafel.lin: board 1, line 2: the play is played out from card 25 on\n"));
    EXPECT_EQ(program.read(kSpellen + "Spel 012/Spel 012 vraag.txt"),
              "\r\nWest volgt met 1S. Hoe speelt Zuid na SH start?\r\n1S: een goede vijfkaart\r\n"
              "4H: vijfkaart steun en een singleton\r\n");
    EXPECT_EQ(program.read("aftavrin/QVT_Spel 016/QVT_Spel 016 bieding.txt").substr(0, 7), "Oost\r\n-");
    const std::string texts = program.read("aftavrin/QVT_Spel 016/QVT_Spel 016 informatie.txt");
    EXPECT_NE(texts.find("|E\xE9n keer troef."), std::string::npos);
    EXPECT_NE(texts.find("dan is HV straks hoog."), std::string::npos);
}

TEST_F(TestImport, RefusesWhatItCannotUnderstand) {
    for (const auto& [words, text] : std::vector<std::pair<std::vector<std::string>, std::string>>{
             {{}, "no file is given"},
             {{"x", "--as", "best of all"}, "--as is deals, lessons or best, not best of all"},
             {{"x", "--deals", "0"}, "--deals has no such places: 0"},
             {{"x", "--deals", "3-1"}, "--deals has no such places: 3-1"},
             {{"x", "--deals", "een"}, "--deals has no such places: een"},
             {{"x", "--contract", "S4H"}, "--contract cannot be read: S4H"},
             {{"x", "--contract", "1=4HS"}, "--contract cannot be read: 1=4HS"},
             {{"x", "--contract", "1=S8H"}, "--contract cannot be read: 1=S8H"},
             {{"x", "--lead", "1=H1"}, "--lead cannot be read: 1=H1"},
             {{"x", "--lead"}, "--lead has no value"},
             {{"x", "--leads", "1=H2"}, "unknown option --leads"}}) {
        try {
            deals::import_options(words);
            ADD_FAILURE() << text;
        } catch (const deals::WrongArguments& wrong) {
            EXPECT_EQ(wrong.what(), text);
        }
    }
}

TEST_F(TestImport, NumbersDealsAndLessonsTogether) {
    program.write("club.pbn", kBoard + kContract + play(13) + "\n" + kBoard + kContract + play(13, kText));
    program.write("RVLX/RVLX.exe", "programma");
    program.write("standaardtavrin.ini", "[Platform]\r\nProgramFiles=.\r\n");
    for (const char* name : {"RVLX/Spellen/Spel 007", "RVLX/Spellen/spel 3", "RVLX/Spellen/Spel 90 oud",
                             "aftavrin/qvt_SPEL 0012", "aftavrin/Spel 020"})
        fs::create_directories(program.path(name));
    EXPECT_EQ(import({"club.pbn"}).out, "Spel 013\nQVT_Spel 014\n");
    EXPECT_EQ(import({"club.pbn"}).out, "Spel 015\nQVT_Spel 016\n");
}

TEST_F(TestImport, TakesTheLowestFreeNumberPastTheHighestAndTellsWhenNoneIsLeft) {
    program.write("club.pbn", kBoard + kContract + play(13) + "\n" + kBoard + kContract + play(13, kText));
    for (int number = 1; number <= 999; ++number) {
        if (number == 4) continue;
        const std::string digits = base::right("00" + std::to_string(number), 3);
        fs::create_directories(
            program.path(number % 2 == 0 ? kSpellen + "Spel " + digits : "aftavrin/QVT_Spel " + digits));
    }
    const auto told = import({"club.pbn"});
    EXPECT_EQ(told.out, "Spel 004\nrefused: board 3, line 21: all numbers up to 999 are in use\n");
    EXPECT_EQ(told.status, 1);
    EXPECT_EQ(import({"club.pbn"}).status, 2);
}

std::string settings_key(Program& program) {
    const std::string settings = program.read("standaardtavrin.ini");
    const std::size_t at = settings.find("ProgramFilesX86");
    return at == std::string::npos ? "" : settings.substr(at, settings.find('\r', at) - at);
}

TEST_F(TestImport, StandsInForACompanionThatIsNotInstalled) {
    program.write("club.pbn", kBoard + kContract + play(1));
    program.write("standaardtavrin.ini", "[Standaard]\r\nSnelheid=500\r\n");
    EXPECT_EQ(import({"club.pbn"}).out, "Spel 001\n");
    EXPECT_EQ(program.read("standaardtavrin.ini"),
              "[Standaard]\r\nSnelheid=500\r\n[Platform]\r\nProgramFilesX86=.\r\n");
    program("start\nclick frmTavrin01.cmdNieuwSpel\nselect frmTavrin03.lstRVLX 0");
    EXPECT_EQ(program.get("frmTavrin03.lblContract.Caption"), "Zuid 1 Schoppen");
    EXPECT_EQ(import({"club.pbn"}).out, "Spel 002\n") << "in the same folder";
    EXPECT_EQ(settings_key(program), "ProgramFilesX86=.");
}

TEST_F(TestImport, LeavesItsOwnFolderWhenACompanionTurnsUp) {
    program.write("club.pbn", kBoard + kContract + play(1) + "\n" + kBoard + kContract + play(1, kText));
    import({"club.pbn"});
    // Where the key hid it until now.
    const std::string folder = "home/.wine/drive_c/Program Files (x86)";
    if (platform::special_folder_without_key(platform::kProgramFilesX86) != platform::path_text(program.path(folder)))
        GTEST_SKIP() << "a companion is installed for the whole machine only";
    const std::string installed = folder + "/RVLX/";
    program.write(installed + "RVLX.exe", "het programma zelf");
    program.write(installed + "spellen/Spel 041/Spel 041 Contract.txt", "Zuid 2 SA\r\n");
    run("check", {"Spel 041", "--program", program.path().string()});
    EXPECT_EQ(settings_key(program), "ProgramFilesX86=.") << "only an import tells where the deals are left";
    const auto told = import({"club.pbn", "--deals", "1"});
    EXPECT_EQ(told.out, "Spel 042\n");
    EXPECT_EQ(
        told.error,
        "note: the companion is installed now; 2 deals are left in RVLX/Spellen, and importing that folder copies "
        "them\n");
    EXPECT_EQ(settings_key(program), "");
    EXPECT_TRUE(program.exists(installed + "spellen/Spel 042/Spel 042 handen.txt"));

    const auto copied = import({"RVLX/Spellen"});
    EXPECT_EQ(copied.out, "Spel 043\nSpel 044\n");
    EXPECT_EQ(copied.error, "");
    for (const char* suffix :
         {" Contract.txt", " Uitkomst.txt", " handen.txt", " bieding.txt", " vraag.txt", " antwoord.txt"}) {
        EXPECT_EQ(program.read(installed + "spellen/Spel 044/Spel 044" + suffix),
                  program.read(kSpellen + "Spel 002/Spel 002" + suffix));
    }
    EXPECT_NE(program.read(installed + "spellen/Spel 044/Spel 044 antwoord.txt").find("Kijk!"), std::string::npos);
    EXPECT_EQ(import({installed}).error, "error: these deals are there already\n");
    EXPECT_EQ(run("import", {"club.pbn", "--program", "weg"}).error, "error: no such folder (weg)\n");
    EXPECT_EQ(import({"home"}).error, "error: no deals of a companion are in this folder\n");
    EXPECT_EQ(import({"RVLX", "--as", "lessons", "--deals", "2"}).out, "refused: Spel 002: the play is not complete\n");
}

TEST_F(TestImport, LeavesAKeyOfTheUserAlone) {
    program.write("club.pbn", kBoard + kContract + play(1));
    program.write("standaardtavrin.ini", "[Platform]\r\nProgramFilesX86=elders\r\n");
    const auto told = import({"club.pbn"});
    EXPECT_EQ(told.out, "Spel 001\n");
    EXPECT_EQ(told.error,
              "note: no companion is found in elders, which ProgramFilesX86 names; without that key the deals in " +
                  native("RVLX/Spellen are found\n"));
    EXPECT_EQ(settings_key(program), "ProgramFilesX86=elders");
}

}  // namespace
