#include <gtest/gtest.h>

#include <chrono>

#include "forms/ListBox.h"
#include "platform/SystemCalls.h"
#include "script/Names.h"
#include "services/Drives.h"
#include "support/Program.h"
#include "support/System.h"

namespace {

namespace fs = std::filesystem;

// A program with three deals, and two sticks that can be put in.
struct Sticks {
    Sticks() {
        for (const char* name : {"Spel 001", "Spel 002", "Spel 003"}) {
            program.write("aftavrin/" + std::string(name) + "/" + name + " aftavrin.txt", name);
        }
        fs::create_directories(program.path("stick/QVT_Spellen"));
        fs::create_directories(program.path("stick2/QVT_Spellen"));
    }
    void put_in(const std::string& stick = "stick") { program("drive " + program.path(stick).string() + " 2 LES"); }
    void open() { program("start\nclick frmTavrin01.cmdImportExport"); }
    void choose(const std::string& list, std::initializer_list<int> lines) {
        for (const int line : lines)
            program("select frmTavrin07." + list + " " + std::to_string(line));
    }
    std::string get(const std::string& name) { return program.get("frmTavrin07." + name); }
    std::string selected(const std::string& list, int line) {
        return get(list + "[" + std::to_string(line) + "].Selected");
    }
    std::string report() { return program.shared("foutNummer") + " " + program.shared("foutPlaats"); }

    Program program;
};

class Exchange : public testing::Test, protected Sticks {};

TEST(Drives, EachDriveBecomesALine) {
    const struct {
        const char* root;
        int type;
        std::string label;
        const char* line;
    } rows[] = {
        {"A:\\", 2, "", "A:\\ [] "},
        {"B:\\", 2, "", "B:\\ [] "},
        {"C:\\", 2, "LES", "C:\\ [USB-Drive] LES"},
        {"D:\\", 3, "Data", "D:\\ [Vaste schijf] Data"},
        {"E:\\", 4, "", "E:\\ [Extern] "},
        {"F:\\", 5, "", "F:\\ [CD/DVD] "},
        {"G:\\", 6, "", "G:\\ [Ram disk] "},
        {"H:\\", 1, "", "H:\\ [Onbekend] "},
        {"/", 3, "", "/ [Vaste schijf] "},
        {"E:\\sticks\\les", 2, "", "E:\\sticks\\les [USB-Drive] "},
        {"/media/An [oud]/les", 2, std::string("LES\0rest", 8), "/media/An [oud]/les [USB-Drive] LES"},
    };
    Program program;
    program("start\nclick frmTavrin01.cmdImportExport");
    auto& form = *program.programma.windows.find("frmTavrin07");
    auto& types = dynamic_cast<forms::ListBox&>(form.control("lstDriveType"));
    auto& names = dynamic_cast<forms::ListBox&>(form.control("lstDriveNaam"));
    for (const auto& row : rows)
        program.interpreter.platform.drive_list.push_back({row.root, row.type, row.label});

    const std::string roots = services::Bas_Aftavrin::GetDriveStrings(program.programma);
    EXPECT_TRUE(roots.ends_with(std::string("les\0\0", 5)));
    services::Bas_Aftavrin::DisplyDriveTypes(program.programma, types, names, roots);
    ASSERT_EQ(names.ListCount(), static_cast<int>(std::size(rows)));
    for (int i = 0; i < names.ListCount(); ++i) {
        EXPECT_EQ(types.List(i), rows[i].root);
        EXPECT_EQ(names.List(i), rows[i].line);
    }
    services::Bas_Aftavrin::DisplyDriveTypes(program.programma, types, names, "");
    EXPECT_EQ(names.ListCount(), static_cast<int>(std::size(rows)));
    program("nodrives");
    services::Bas_Aftavrin::DisplyDriveTypes(program.programma, types, names,
                                             services::Bas_Aftavrin::GetDriveStrings(program.programma));
    EXPECT_EQ(names.ListCount(), 0);
    services::Bas_Aftavrin::DisplyDriveTypes(program.programma, types, names, std::string("e:\\\0", 4));
    EXPECT_EQ(types.List(0), "E:\\");
}

TEST_F(Exchange, ExportCopiesTheChosenDealsOverWhatIsThere) {
    program.write("aftavrin/Spel 001/.verborgen", "hidden");
    program.write("aftavrin/Spel 001/sub/x", "no file of the deal");
    program.write("aftavrin/Spel 003/plan.doc", std::string(200000, 'p'));
    fs::remove_all(program.path("stick/QVT_Spellen"));
    program.write("stick/qvt_spellen/spel 003/SPEL 003 AFTAVRIN.TXT", "a longer older text");
    program.write("stick/qvt_spellen/spel 003/eigen.txt", "stays");
    put_in();
    open();
    choose("lstExporteer", {0, 2});
    program("click frmTavrin07.cmdExporteer");

    const std::string stick = "stick/qvt_spellen/";
    EXPECT_EQ(program.tree("stick"),
              (std::vector<std::string>{stick, stick + "Spel 001/", stick + "Spel 001/Spel 001 aftavrin.txt = Spel 001",
                                        stick + "spel 003/", stick + "spel 003/SPEL 003 AFTAVRIN.TXT = Spel 003",
                                        stick + "spel 003/eigen.txt = stays",
                                        stick + "spel 003/plan.doc = " + std::string(200000, 'p')}));
    EXPECT_EQ(selected("lstExporteer", 0) + selected("lstExporteer", 2), "falsefalse");
    EXPECT_EQ(get("cmdExporteer.Enabled"), "false");
    EXPECT_EQ(get("MousePointer"), "0");
    EXPECT_EQ(get("lstImporteer.ListCount"), "1");  // the right list is as old as it was
    EXPECT_EQ(program.shared("foutNummer"), "0");
}

TEST_F(Exchange, ADealComesBackAsItWent) {
    put_in();
    open();
    const auto before = program.tree("aftavrin");
    program("click frmTavrin07.chkSelecteerExporteer\nclick frmTavrin07.cmdExporteer");
    EXPECT_EQ(get("chkSelecteerExporteer.Value"), "0");
    EXPECT_EQ(get("chkSelecteerExporteer.Caption"), "Selecteer alles");
    program("close frmTavrin07");
    fs::remove_all(program.path("aftavrin"));

    program("click frmTavrin01.cmdImportExport");
    EXPECT_EQ(get("lstExporteer.ListCount"), "0");
    program("click frmTavrin07.chkSelecteerImporteer\nclick frmTavrin07.cmdImporteer");
    EXPECT_EQ(program.tree("aftavrin"), before);
    EXPECT_EQ(get("lstExporteer.ListCount"), "3");
    program("close frmTavrin07");
    EXPECT_EQ(program.get("frmTavrin01.lstSpellen.ListCount"), "3");
}

TEST_F(Exchange, WithoutAStickItIsSaidAndNothingIsCopied) {
    program("drive /dev/fixed 3 USB");
    open();
    const std::string box = "64\tImport/Export\tKan geen USB-Drive vinden!\tok\n.";
    EXPECT_EQ(program("boxes"), box);
    EXPECT_EQ(get("cmdCheckVoorUSB.Visible"), "true");
    EXPECT_EQ(get("lblUSBDrive.Caption"), "Geen");
    program("click frmTavrin07.chkSorteerImporteer");  // no folder to read
    program("click frmTavrin07.cmdCheckVoorUSB");
    EXPECT_EQ(program("boxes"), box);
    EXPECT_EQ(get("cmdCheckVoorUSB.Visible"), "true");
    choose("lstExporteer", {1});
    program("click frmTavrin07.cmdExporteer");
    EXPECT_EQ(program("boxes"), box);
    EXPECT_EQ(get("cmdExporteer.Enabled") + selected("lstExporteer", 1), "truetrue");
    EXPECT_EQ(program.get("frmTavrin07.ActiveControl"), "cmdFocus");

    program.write("stick/QVT_Spellen/Spel 009/x.txt", "");
    put_in();
    program("click frmTavrin07.cmdCheckVoorUSB");
    const std::string line = script::escaped(program.path("stick").string()) + " [USB-Drive] LES";
    EXPECT_EQ(get("cmdCheckVoorUSB.Visible"), "false");
    EXPECT_EQ(get("lstImporteer[0].Text"), "Spel 009");
    EXPECT_EQ(get("lblUSBDrive.Caption"), line);
    EXPECT_EQ(get("fraImporteer.Caption"), "Importeer van " + line);

    // Pulled out: the lines stay on view, the copying is refused.
    program("nodrives");
    choose("lstImporteer", {0});
    program("click frmTavrin07.cmdImporteer");
    EXPECT_EQ(program("boxes"), box);
    EXPECT_EQ(get("lblUSBDrive.Caption"), line);
    EXPECT_FALSE(program.exists("aftavrin/Spel 009"));
    program("click frmTavrin07.chkSorteerImporteer");
    EXPECT_EQ(get("lstImporteer.ListCount"), "0");
    EXPECT_EQ(program.shared("foutNummer"), "0");
}

TEST_F(Exchange, TheFirstStickIsUsedAndLookedForAgain) {
    put_in("stick");
    put_in("stick2");
    open();
    program("nodrives");
    put_in("stick2");
    choose("lstExporteer", {0});
    program("click frmTavrin07.cmdExporteer");
    EXPECT_FALSE(program.exists("stick/QVT_Spellen/Spel 001"));
    EXPECT_TRUE(program.exists("stick2/QVT_Spellen/Spel 001"));
}

TEST_F(Exchange, AStickWithoutTheFolderIsReportedAndGetsItAtTheFirstExport) {
    fs::remove_all(program.path("stick/QVT_Spellen"));
    put_in();
    open();
    EXPECT_EQ(report(), "76 frmTavrin07 - General - LeesExporteer");
    choose("lstExporteer", {0});
    program("click frmTavrin07.cmdExporteer");
    EXPECT_TRUE(program.exists("stick/QVT_Spellen/Spel 001/Spel 001 aftavrin.txt"));
}

TEST_F(Exchange, SelectionAndSorting) {
    put_in();
    open();
    choose("lstExporteer", {1});
    EXPECT_EQ(get("cmdExporteer.Enabled"), "true");
    choose("lstExporteer", {1});
    EXPECT_EQ(get("cmdExporteer.Enabled"), "false");

    program("click frmTavrin07.chkSelecteerExporteer\nclick frmTavrin07.chkSorteerExporteer");
    EXPECT_EQ(get("chkSorteerExporteer.Caption"), "Sorteer &laag-hoog");
    EXPECT_EQ(get("lstExporteer[0].Text"), "Spel 003");
    EXPECT_EQ(get("chkSelecteerExporteer.Caption"), "De-selecteer alles");
    EXPECT_EQ(selected("lstExporteer", 0) + selected("lstExporteer", 2) + get("cmdExporteer.Enabled"), "truetruetrue");

    program("click frmTavrin07.chkSelecteerExporteer");
    choose("lstExporteer", {2});
    program("click frmTavrin07.chkSorteerExporteer");
    EXPECT_EQ(selected("lstExporteer", 0) + get("cmdExporteer.Enabled"), "falsefalse");
    EXPECT_EQ(program.get("frmTavrin07.ActiveControl"), "cmdFocus");
}

TEST_F(Exchange, AFailureStopsTheRunWhereItIs) {
    put_in();
    open();
    program("click frmTavrin07.chkSelecteerExporteer");
    fs::remove_all(program.path("aftavrin/Spel 002"));
    program("click frmTavrin07.cmdExporteer");
    EXPECT_EQ(report(), "76 frmTavrin07 - cmdExporteer - Click");
    EXPECT_TRUE(program.exists("stick/QVT_Spellen/Spel 001/Spel 001 aftavrin.txt"));
    EXPECT_FALSE(program.exists("stick/QVT_Spellen/Spel 003"));
    EXPECT_EQ(selected("lstExporteer", 0) + selected("lstExporteer", 1) + selected("lstExporteer", 2), "falsetruetrue");
    EXPECT_EQ(get("MousePointer"), "11");
    EXPECT_EQ(get("chkSelecteerExporteer.Value"), "1");
}

// What a stranger's stick holds: links in every place where a folder or a file is expected.
TEST(ExchangeWithLinks, LeadsNowhere) {
    const struct {
        const char* link;
        const char* to;  // below the program folder
        const char* half;
    } rows[] = {
        {"stick/QVT_Spellen/Spel 009/Spel 009 geheim.txt", "outside/secret.txt", "Importeer"},
        {"stick/QVT_Spellen/Spel 009", "outside", "Importeer"},
        {"stick/QVT_Spellen/Spel 001/Spel 001 aftavrin.txt", "outside/secret.txt", "Exporteer"},
        {"stick/QVT_Spellen/Spel 001/Spel 001 aftavrin.txt", "outside/new.txt", "Exporteer"},
        {"stick/QVT_Spellen/Spel 001", "outside", "Exporteer"},
        {"stick/QVT_Spellen/Spel 001", "nowhere", "Exporteer"},
        {"stick/QVT_Spellen", "outside", "Exporteer"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.link) + " to " + row.to);
        Sticks sticks;
        Program& program = sticks.program;
        program.write("outside/secret.txt", "secret");
        program.write("deals/Spel 009/secret.txt", "secret");
        fs::remove_all(program.path("stick"));
        fs::create_directories(program.path("stick"));
        fs::create_directories(program.path(row.link).parent_path());
        if (!make_link(program.path(row.to), program.path(row.link))) GTEST_SKIP() << kNoLinks;
        const auto outside = program.tree("outside");

        sticks.put_in();
        sticks.open();
        program.programma.gedeeld.foutNummer = 0;
        sticks.choose(std::string("lst") + row.half, {0});
        program(std::string("click frmTavrin07.cmd") + row.half);
        EXPECT_EQ(sticks.report(), std::string("75 frmTavrin07 - cmd") + row.half + " - Click");
        EXPECT_EQ(program.tree("outside"), outside);
        EXPECT_FALSE(program.exists("nowhere"));
        for (const std::string& entry : program.tree("aftavrin"))
            EXPECT_EQ(entry.find("secret"), std::string::npos);
    }
}

TEST(ExchangeWithLinks, ReadsNoListThroughOneOnTheStickButTheUsersOwnFiles) {
    Sticks sticks;
    Program& program = sticks.program;
    fs::remove_all(program.path("stick"));
    fs::create_directories(program.path("stick"));
    if (!make_link(program.path("aftavrin"), program.path("stick/QVT_Spellen"))) GTEST_SKIP() << kNoLinks;
    sticks.put_in();
    sticks.open();
    EXPECT_EQ(sticks.report(), "75 frmTavrin07 - General - LeesExporteer");
    EXPECT_EQ(sticks.get("lstImporteer.ListCount"), "0");

    fs::remove(program.path("stick/QVT_Spellen"));
    fs::create_directory(program.path("stick/QVT_Spellen"));
    program.write("elders/Spel 004 vraag.txt", "Hoe?");
    program.write("documenten/plan", "Zo.");
    if (!make_link(program.path("elders"), program.path("aftavrin/Spel 004"))) GTEST_SKIP() << kNoLinks;
    if (!make_link(program.path("documenten/plan"), program.path("aftavrin/Spel 001/plan.txt")))
        GTEST_SKIP() << kNoLinks;
    program.programma.gedeeld.foutNummer = 0;
    program("click frmTavrin07.chkSorteerExporteer");
    sticks.choose("lstExporteer", {0, 3});
    program("click frmTavrin07.cmdExporteer");
    EXPECT_EQ(program.shared("foutNummer"), "0");
    EXPECT_EQ(program.read("stick/QVT_Spellen/Spel 001/plan.txt"), "Zo.");
    EXPECT_EQ(program.read("stick/QVT_Spellen/Spel 004/Spel 004 vraag.txt"), "Hoe?");
    EXPECT_FALSE(fs::is_symlink(program.path("stick/QVT_Spellen/Spel 001/plan.txt")));
    EXPECT_EQ(sticks.get("MousePointer"), "0");
}

TEST_F(Exchange, ABreakInTheMiddleLeavesWholeFilesOnly) {
    const std::string file = "stick/QVT_Spellen/Spel 001/Spel 001 aftavrin.txt";
    program.write(file, "an older text");
    program.write("stick/QVT_Spellen/Spel 001/.zandolin-nieuw-1-0", "left behind");
    put_in();
    open();
    choose("lstExporteer", {0});
    {
        const platform::system_calls::HookScope pulled([](platform::system_calls::Call call, const char* path) {
            return call == platform::system_calls::Call::Write && std::string_view(path).find("stick") ? EIO : 0;
        });
        program("click frmTavrin07.cmdExporteer");
    }
    EXPECT_EQ(report(), "57 frmTavrin07 - cmdExporteer - Click");
    EXPECT_EQ(program.tree("stick").back(), file + " = an older text");
    EXPECT_EQ(program.tree("stick").size(), 3U) << "nothing stands beside it";
}

TEST_F(Exchange, SelectsAndDeselectsAHundredThousandLines) {
    open();
    auto& list = dynamic_cast<forms::ListBox&>(program.programma.windows.find("frmTavrin07")->control("lstExporteer"));
    for (int i = 0; i < 100000; ++i)
        list.AddItem(std::to_string(i));
    const auto begin = std::chrono::steady_clock::now();
    program("click frmTavrin07.chkSelecteerExporteer");
    EXPECT_EQ(get("cmdExporteer.Enabled"), "true");
    program("click frmTavrin07.chkSelecteerExporteer");
    EXPECT_EQ(get("cmdExporteer.Enabled"), "false");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5)) << "not line by line over all lines";
}

}  // namespace
