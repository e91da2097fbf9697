// The main screen: what is open to the user, the list of deals, and the ways from it and back.
#include <gtest/gtest.h>

#include "support/Program.h"

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
        EXPECT_EQ(program.shared("spelMap"), program.path("aftavrin/QVT_Spel 1").string());
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
        const std::string line = program.path("help.chm").string() + "\t\t\n";
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
