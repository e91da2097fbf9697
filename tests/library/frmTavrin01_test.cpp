// The main screen: what is open to the user, the list of deals, and the ways from it and back.
#include <gtest/gtest.h>

#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/User.h"
#include "script/Names.h"
#include "support/Program.h"
#include "support/System.h"

namespace {

std::string get(Program& program, const std::string& name) { return program.get("frmTavrin01." + name); }

void add_deals(Program& program, std::initializer_list<const char*> names) {
    for (const std::string name : names) {
        Package package = Package::west_wins_all();
        package.name = name;
        write_package(program, package);
    }
}

// The buttons that are enabled.
std::string enabled(Program& program) {
    std::string buttons;
    for (const std::string name : {"NieuwSpel", "KaartenEditor", "ImportExport", "HerbeNoem", "Wissen", "Tavrin"}) {
        if (get(program, "cmd" + name + ".Enabled") == "true") buttons += name + " ";
    }
    return buttons;
}

std::string list(Program& program) {
    std::string lines;
    const int count = std::stoi(get(program, "lstSpellen.ListCount"));
    for (int i = 0; i < count; ++i)
        lines += get(program, "lstSpellen[" + std::to_string(i) + "].Text") + "|";
    return lines;
}

TEST(MainScreen, OpensWhatTheCompanionAllows) {
    const std::string all = "NieuwSpel KaartenEditor ImportExport HerbeNoem Wissen Tavrin ";
    const struct {
        const char* name;
        int folder;              // number of the folder that the companion stands in
        const char* executable;  // its bytes; null for none
        bool deals;
        std::string at_start;
        std::string with_a_line;
    } cases[] = {
        {"present", 38, "x", true, "NieuwSpel KaartenEditor ImportExport ", all},
        {"x86", 42, "x", true, "NieuwSpel KaartenEditor ImportExport ", all},
        {"no deals", 38, "x", false, "NieuwSpel ImportExport ", ""},
        {"absent", 38, nullptr, true, "ImportExport ", "ImportExport Tavrin "},
        {"no bytes", 38, "", true, "ImportExport ", "ImportExport Tavrin "},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        Program program;
        program.interpreter.platform.special_folders[each.folder] = program.path("pf").string();
        if (each.executable) program.write("pf/RVLX/rvlx.exe", each.executable);
        if (each.deals) add_deals(program, {"QVT_Spel 1"});
        program("start");
        EXPECT_EQ(enabled(program), each.at_start);
        const bool found = each.at_start.starts_with("NieuwSpel");
        EXPECT_EQ(get(program, "lblRVLX.Caption"), found ? "" : "Ik heb geen Zandolin RVLX kunnen vinden.....");
        EXPECT_EQ(get(program, "lblRVLX.ForeColor"), found ? "0x008000" : "0x0000FF");
        EXPECT_EQ(get(program, "cmdDownLoaden.Enabled"), "false");
        if (!each.deals) continue;
        program("select frmTavrin01.lstSpellen 0");
        EXPECT_EQ(enabled(program), each.with_a_line);
        EXPECT_EQ(get(program, "ActiveControl"), "cmdFocus");
        EXPECT_EQ(program.shared("spelMap"), script::escaped(program.path("aftavrin/QVT_Spel 1").string()));
        EXPECT_EQ(program.shared("spelMapKopie"), program.shared("spelMap"));
        EXPECT_EQ(program.shared("spelNaam"), "QVT_Spel 1");
    }
}

TEST(MainScreen, SortsTheOtherWayAtEachClickAndForgetsIt) {
    Program program;
    add_deals(program, {"QVT_Spel 2", "qvt_spel 10", "QVT_Spel 1"});
    const std::string up = "QVT_Spel 1|qvt_spel 10|QVT_Spel 2|";
    const std::string down = "QVT_Spel 2|qvt_spel 10|QVT_Spel 1|";
    program("start");
    EXPECT_EQ(list(program), up);
    EXPECT_EQ(get(program, "chkSorteer.Caption"), "Sorteer hoog-&laag");
    program("select frmTavrin01.lstSpellen 0\nclick frmTavrin01.chkSorteer");
    EXPECT_EQ(list(program), down);
    EXPECT_EQ(get(program, "chkSorteer.Caption"), "Sorteer &laag-hoog");
    EXPECT_EQ(enabled(program), "ImportExport ");
    program("select frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin\nclick frmTavrin02.cmdTerug");
    EXPECT_EQ(list(program), up);
    EXPECT_EQ(get(program, "chkSorteer.Caption"), "Sorteer hoog-&laag");
    program("click frmTavrin01.chkSorteer\nclick frmTavrin01.chkSorteer");
    EXPECT_EQ(list(program), up);
}

TEST(Deleting, TakesWhatWasLeftBesideTheFilesToo) {
    Program program;
    program.install_companion();
    add_deals(program, {"QVT_Spel 1"});
    program("start\nselect frmTavrin01.lstSpellen 0\nanswer yes");
    program.write("aftavrin/QVT_Spel 1/.zandolin-nieuw-1-0", "broken off");
    program("click frmTavrin01.cmdWissen");
    EXPECT_EQ(program.shared("foutNummer"), "0");
    EXPECT_FALSE(program.exists("aftavrin/QVT_Spel 1"));
}

TEST(MainScreen, ClearsAwayAtTheStartWhatAnEarlierRunLeft) {
    Program program;
    program.write("elders/.zandolin-nieuw-1-0", "x");
    program.write("aftavrin/Spel 001/x.txt", "x");
    if (!make_link(program.path("elders"), program.path("aftavrin/Spel 002"))) GTEST_SKIP() << kNoLinks;
    const auto now = std::filesystem::file_time_type::clock::now();
    for (const std::string folder : {"", "aftavrin/Spel 001/"}) {
        for (const auto& [name, time] :
             {std::pair{"1-0", now - std::chrono::hours(1)}, {"2-0", now + std::chrono::hours(1)}}) {
            program.write(folder + ".zandolin-nieuw-" + name, "x");
            std::filesystem::last_write_time(program.path(folder + ".zandolin-nieuw-" + name), time);
        }
    }
    std::filesystem::last_write_time(program.path("elders/.zandolin-nieuw-1-0"), now - std::chrono::hours(1));
    program("start");
    for (const std::string folder : {"", "aftavrin/Spel 001/"}) {
        EXPECT_FALSE(program.exists(folder + ".zandolin-nieuw-1-0"));
        EXPECT_TRUE(program.exists(folder + ".zandolin-nieuw-2-0")) << "another program may be at work";
    }
    EXPECT_TRUE(program.exists("elders/.zandolin-nieuw-1-0")) << "nothing is deleted through a link";
}

// What is deleted, renamed or fetched must lie in the program's own folder.
TEST(MainScreen, ChangesNothingThroughALink) {
    const struct {
        const char* link;
        const char* commands;
    } rows[] = {
        {"aftavrin/Spel 001", "answer yes\nclick frmTavrin01.cmdWissen"},
        {"aftavrin/Spel 001/Spel 001 vraag.txt", "answer yes\nclick frmTavrin01.cmdWissen"},
        {"aftavrin/Spel 001",
         "click frmTavrin01.cmdHerbeNoem\ntext frmTavrin04.txtSpelNummer 7\n"
         "click frmTavrin04.cmdHerbenoem"},
        {"aftavrin/Spel 001/Spel 001 vraag.txt",
         "click frmTavrin01.cmdHerbeNoem\n"
         "text frmTavrin04.txtSpelNummer 7\nclick frmTavrin04.cmdHerbenoem"},
        {"Update/tavrinupdate.exe", "click frmTavrin01.cmdDownLoaden"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.link) + ": " + row.commands);
        Program program;
        program.install_companion();
        program.write("elders/Spel 001 aftavrin.txt", "x");
        program.write("aftavrin/Spel 001/Spel 001 aftavrin.txt", "x");
        const auto link = program.path(row.link);
        std::filesystem::remove_all(link);
        std::filesystem::create_directories(link.parent_path());
        const bool folder = link.filename() == "Spel 001";
        if (!make_link(program.path(folder ? "elders" : "elders/Spel 001 aftavrin.txt"), link))
            GTEST_SKIP() << kNoLinks;
        program("online on\nserve http://www.zandolin.example/tavrin/actueleversie.txt " +
                program.path("elders/Spel 001 aftavrin.txt").string());
        program("start\nselect frmTavrin01.lstSpellen 0");
        const auto before = program.tree("");
        program(row.commands);
        EXPECT_EQ(program.shared("foutNummer"), "75");
        EXPECT_EQ(program.tree(""), before);
    }
}

TEST(Deleting, ReportsAFolderThatVanished) {
    Program program;
    program.install_companion();
    add_deals(program, {"QVT_Spel 1", "QVT_Spel 2"});
    program("start\nselect frmTavrin01.lstSpellen 0");
    std::filesystem::remove_all(program.path("aftavrin/QVT_Spel 1"));
    program("click frmTavrin01.cmdWissen");
    EXPECT_EQ(program.shared("foutNummer"), "76");
    EXPECT_EQ(program("boxes"), ".");
}

TEST(MainScreen, TestsTheConnectionOncePerLoad) {
    Program program;
    program.install_companion();
    add_deals(program, {"QVT_Spel 1"});
    program.write("served", "never read");
    const auto serve = [&](const std::string& what) {
        program("serve http://www.zandolin.example/tavrin/actueleversie.txt " + what);
    };
    const auto expect_online = [&](const char* online) {
        EXPECT_EQ(program.shared("internetOk"), online);
        EXPECT_EQ(get(program, "cmdDownLoaden.Enabled"), online);
    };
    serve(program.path("served").string());
    program("start");
    expect_online("false");
    EXPECT_FALSE(program.exists("actueleversie.txt")) << "no connection: no download";

    program("online on\nclick frmTavrin01.cmdNieuwSpel\nclick frmTavrin03.cmdTerug");
    expect_online("false");
    program("select frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin\nclick frmTavrin02.cmdTerug");
    expect_online("true");
    EXPECT_EQ(program.read("actueleversie.txt"), "never read");
    serve("fail");
    program("select frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin\nclose frmTavrin02");
    expect_online("false");
}

TEST(MainScreen, IsBackWithAFreshListAndNothingElse) {
    const struct {
        const char* button;
        const char* screen;
        bool stays;  // behind the other screen
    } cases[] = {{"cmdTavrin", "frmTavrin02", false},
                 {"cmdNieuwSpel", "frmTavrin03", true},
                 {"cmdHerbeNoem", "frmTavrin04", false},
                 {"cmdKaartenEditor", "frmTavrin05", false},
                 {"cmdImportExport", "frmTavrin07", false}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.screen);
        Program program;
        program.install_companion();
        add_deals(program, {"QVT_Spel 1"});
        program("start\nselect frmTavrin01.lstSpellen 0\nclick frmTavrin01." + std::string(each.button));
        const std::string screens = program("screens");
        EXPECT_TRUE(screens.starts_with(std::string(each.screen) + " visible\n")) << screens;
        EXPECT_EQ(screens.find("frmTavrin01 visible") != std::string::npos, each.stays);
        add_deals(program, {"QVT_Spel 0"});
        program("key " + std::string(each.screen) + " escape");
        EXPECT_EQ(program("screens"), "frmTavrin01 visible\n.");
        EXPECT_EQ(list(program), "QVT_Spel 0|QVT_Spel 1|");
        EXPECT_EQ(enabled(program), "NieuwSpel KaartenEditor ImportExport ");
        EXPECT_EQ(program.shared("spelNaam"), "QVT_Spel 1") << "the deal chosen last stays known";
        EXPECT_EQ(program.shared("foutPlaats"), "");
    }
}

TEST(MainScreen, UnloadsAScreenThatTheUserLeftOpenBehindIt) {
    Program program;
    program.install_companion();
    EXPECT_EQ(program("start\nclick frmTavrin01.cmdNieuwSpel\nactivate frmTavrin01\nscreens"),
              "frmTavrin01 visible\n.");
}

// Coming back to the screen reads its list anew.
TEST(MainScreen, ReportsALineThatVanishedUnderTheClick) {
    Program program;
    program.install_companion();
    for (const char* deal : {"Spel 1", "Spel 2"})
        program.write("aftavrin/" + std::string(deal) + "/x.txt", "");
    program("start\nclick frmTavrin01.cmdNieuwSpel");
    std::filesystem::remove_all(program.path("aftavrin/Spel 2"));
    // The click that brings the window in front reads the list anew before it reaches the line.
    forms::Control& list = program.programma.windows.find("frmTavrin01")->control("lstSpellen");
    forms::user::select(dynamic_cast<forms::ListBox&>(list), 1);
    EXPECT_EQ(program.shared("foutPlaats"), "frmTavrin01 - lstTavrin - Click");
    EXPECT_EQ(program.shared("foutNummer"), "9");
    EXPECT_EQ(program.get("frmTavrin01.lstSpellen.ListIndex"), "-1");
}

TEST(MainScreen, EndsTheProgram) {
    for (const char* way : {"key frmTavrin01 escape", "close frmTavrin01", "click frmTavrin01.cmdAfsluiten"}) {
        Program program;
        EXPECT_EQ(program("start\n" + std::string(way) + "\nscreens"), "ended") << way;
        EXPECT_EQ(program("boxes"), ".");
    }
    Program second;
    second.interpreter.platform.other_instance = true;
    EXPECT_EQ(second("start\nscreens"), "ended");
    EXPECT_FALSE(second.exists("aftavrin")) << "a second instance leaves no trace";
}

TEST(MainScreen, OpensTheHelpFileOnEveryScreenWhereThereIsOne) {
    for (const char* bytes : {"", "x"}) {
        Program program;
        program.install_companion();
        program.write("Help.chm", bytes);
        program("start\nkey frmTavrin01 f1\nclick frmTavrin01.cmdNieuwSpel\nkey frmTavrin03 f1");
        const std::string line = script::escaped(program.path("help.chm").string()) + "\t\t\n";
        EXPECT_EQ(program("opened"), *bytes ? line + line + "." : ".");
    }
}

TEST(MainScreen, StandsInTheMiddleOfAnyScreen) {
    const struct {
        const char* screen;
        const char* left;
        const char* top;
    } cases[] = {{"28800 15600", "10927", "5257"}, {"6000 5000", "-472", "-42"}};
    for (const auto& each : cases) {
        Program program;
        program("screen " + std::string(each.screen) + "\nstart");
        EXPECT_EQ(get(program, "Left") + " " + get(program, "Top"), std::string(each.left) + " " + each.top);
        EXPECT_EQ(std::stod(get(program, "cmdFocus.Left")), std::stod(each.screen) + 10);
    }
}

}  // namespace
