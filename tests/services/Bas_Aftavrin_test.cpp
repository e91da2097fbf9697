// The general services: messages, settings, folders, list search, rescaling.
#include <gtest/gtest.h>

#include "forms/Label.h"
#include "forms/ListBox.h"
#include "platform/SpecialFolders.h"
#include "services/Bas_Aftavrin.h"
#include "support/Program.h"
#include "support/System.h"
#include "support/TestForm.h"

namespace {

using namespace services::Bas_Aftavrin;

class Services : public testing::Test {
protected:
    Services() { program("start"); }
    std::string path(const char* name) { return program.path(name).string(); }

    Program program;
    services::Programma& programma = program.programma;
};

TEST_F(Services, MessageNumbersAreCompletedByTheirLength) {
    const struct {
        int number;
        const char* text;
    } cases[] = {
        {1, "Zandolin"}, {10001, "Zandolin"}, {19, "Noord"}, {102, "Ik heb geen Zandolin RVLX kunnen vinden....."}};
    for (const auto& each : cases)
        EXPECT_EQ(LeesResString(programma, each.number), each.text) << each.number;
    EXPECT_EQ(program.shared("foutPlaats"), "");
}

TEST_F(Services, UnknownMessageIsReportedUnderTheNameOfAnotherRoutine) {
    for (const int number : {0, 128, 1001, 10000, 10107, 123456, -1, -20000}) {
        programma.gedeeld.foutPlaats.clear();
        programma.gedeeld.foutNummer = 0;
        EXPECT_EQ(LeesResString(programma, number), "") << number;
        EXPECT_EQ(program.shared("foutPlaats"), "Bas_Aftavrin - General - DisplyDriveTypes");
        EXPECT_EQ(program.shared("foutNummer"), "326");
    }
}

TEST_F(Services, FileCountsOnlyWithALength) {
    program.write("empty", "");
    program.write("folder/full", "x");
    EXPECT_EQ(BestandStatus(path("folder/full")), 1);
    for (const char* name : {"empty", "folder", "none", "none/x"})
        EXPECT_EQ(BestandStatus(path(name)), 0) << name;
}

TEST_F(Services, PathIsMadeFolderByFolder) {
    program.write("file", "x");
    for (const char* name : {"a/b/c", "a/b/c/", "A/B", "file/x"}) {
        std::string made = path(name);
        MaakPad(made);
        EXPECT_TRUE(made.ends_with(native("/")) && !made.ends_with(native("//"))) << made;
    }
    EXPECT_TRUE(program.exists("a/b/c"));
    EXPECT_EQ(program.exists("A"), kSystemIgnoresCase);
    EXPECT_EQ(program.shared("foutPlaats"), "");
}

TEST_F(Services, SettingsAreCutAndAFailedWriteIsNotNoticed) {
    SchrijfINI(programma, "Standaard", "LaatsteRVLX", std::string(300, 'x'), programma.instellingen());
    EXPECT_EQ(LeesIni(programma, "Standaard", "LaatsteRVLX", programma.instellingen()), std::string(254, 'x'));
    EXPECT_EQ(LeesIni(programma, "Standaard", "geen", programma.instellingen()), "");
    EXPECT_EQ(program.shared("iniWaarde"), "");
    program.write("in.ini/x", "");
    for (const char* place : {"in.ini", "none/s.ini"})
        SchrijfINI(programma, "Standaard", "a", "b", path(place));
    EXPECT_EQ(program.shared("foutPlaats"), "");
}

TEST_F(Services, ServerAndFoldersComeFromTheSettings) {
    EXPECT_EQ(Server(programma), "www.zandolin.example");
    program.write("standaardtavrin.ini", "[Platform]\r\nServer=localhost:81\r\nProgramFilesX86=pf86\r\n");
    EXPECT_EQ(Server(programma), "localhost:81");
    program.interpreter.platform.special_folders.erase(platform::kProgramFilesX86);
    EXPECT_EQ(GetSpecialfolder(programma, platform::kProgramFilesX86), path("pf86"));
    EXPECT_EQ(ZoekRVLX(programma), "");
    program.write("pf86/rvlx/Rvlx.EXE", "x");
    EXPECT_EQ(ZoekRVLX(programma), path("pf86"));
}

TEST_F(Services, ListSearchIsExactOrByPrefix) {
    auto& list = dynamic_cast<forms::ListBox&>(programma.windows.find("frmTavrin01")->control("lstSpellen"));
    for (const char* line : {"Spel 10", "spel 1"})
        list.AddItem(line);
    EXPECT_EQ(GetListBoxIndex(programma, list, "SPEL 1", true), 1);
    EXPECT_EQ(GetListBoxIndex(programma, list, "SPEL 1", false), 0);
    EXPECT_EQ(GetListBoxIndex(programma, list, "Spel 2", false), -1);
}

TEST_F(Services, ProgramsNeverMeet) {
    Program other;
    other("start");
    other.write("aftavrin/Spel 9/x", "x");
    other("click frmTavrin01.chkSorteer\nselect frmTavrin01.lstSpellen 0");
    LeesResString(other.programma, 0);
    EXPECT_EQ(program.shared("foutPlaats"), "");
    EXPECT_EQ(program.shared("spelNaam"), "");
    EXPECT_EQ(program.get("frmTavrin01.lstSpellen.ListCount"), "0");
    EXPECT_EQ(program("screens"), "frmTavrin01 visible\n.");
}

// A form with controls whose names the rescaler knows; each stands at 100, 200 with a size of 300 by 400.
class Rescaler : public Services {
protected:
    Rescaler() { programma.maten.maxLetterGrootte = 11.5; }
    std::string place(const forms::Control& control) {
        return control.Left.text() + " " + control.Top.text() + " " + control.Width.text() + " " +
               control.Height.text() + " / " + control.FontSize.text();
    }
    void size(double width, double height) {
        form.Width = width;
        form.Height = height;
        PasMatenAan(programma, form);
    }

    TestWindows windows;
    TestForm& form = windows.load("A");
    static constexpr forms::Rect kPlace{100, 200, 300, 400};
    // In the order of the form's controls: what one list skips must not shift the records of those behind it.
    forms::Label both{form, "timKlok", kPlace};
    forms::Label menu{form, "hMenu", kPlace};
    forms::Label clock{form, "lblDeKlok", kPlace};
    forms::Label images{form, "imaList", kPlace};
    forms::Label plain{form, "lblInfo", kPlace};
};

TEST_F(Rescaler, FollowsTheFormUpToTheLargestFont) {
    BewaarMaten(programma, form);
    const struct {
        double width;
        double height;
        const char* plain;
    } cases[] = {{12000, 4000, "200 200 600 400 / 8.25"}, {6000, 5000, "100 250 300 500 / 10.3125"},
                 {6000, 6000, "100 300 300 600 / 11.5"},  {3000, 2000, "50 100 150 200 / 4.125"},
                 {6000, 400, "100 20 300 40 / 0.825"},    {6000, 4000, "100 200 300 400 / 8.25"}};
    for (const auto& each : cases) {
        size(each.width, each.height);
        // The ratio to a stored single-precision number leaves a rest far behind the comma.
        EXPECT_EQ(place(plain).substr(0, 12), std::string(each.plain).substr(0, 12));
        EXPECT_NEAR(plain.FontSize, std::stod(std::string(each.plain).substr(std::string(each.plain).find('/') + 1)),
                    1e-6);
    }
}

TEST_F(Rescaler, SkipsTheNamesOfEachList) {
    BewaarMaten(programma, form);
    size(12000, 4000);
    for (const forms::Control* still : {&both, &menu, &clock})
        EXPECT_EQ(place(*still), "100 200 300 400 / 8.25");
    EXPECT_EQ(place(images), "0 0 0 0 / 0") << "scaled, but never measured";
    EXPECT_EQ(place(plain), "200 200 600 400 / 8.25");
}

TEST_F(Rescaler, DoesNothingUnmeasuredOrMinimised) {
    size(12000, 8000);
    EXPECT_EQ(place(plain), "100 200 300 400 / 8.25");
    BewaarMaten(programma, form);
    form.WindowState = forms::WindowState::Minimised;
    size(6000, 4000);
    EXPECT_EQ(place(plain), "100 200 300 400 / 8.25");
}

}  // namespace
