// The report of a failure: what it shows, what it leaves on the clipboard, and that leaving it ends the program.
#include <gtest/gtest.h>

#include "services/Bas_Aftavrin.h"
#include "services/Foutpad.h"
#include "support/Program.h"

namespace {

class Report : public testing::Test {
protected:
    // A failure like any other: the message of a number that isn't there.
    void fail() {
        program.programma.windows.dispatch([&] { services::Bas_Aftavrin::LeesResString(program.programma, 0); });
    }
    // A deal whose table reports a contract of two words.
    void open_damaged_deal() {
        Package package = Package::west_wins_all();
        package.contract = "Zuid 4";
        write_package(program, package);
        program.install_companion();
        program("start\nselect frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin");
    }
    std::string get(const std::string& name) { return program.get("frmTavrin08." + name); }

    Program program;
};

const char* const kFirst = "Bas_Aftavrin - General - DisplyDriveTypes";
const char* const kDamaged = "Kaarten - General - OverigeStartPositie";

TEST_F(Report, IsAsWideAsItsTextButNeverAsTheScreen) {
    program("screen 15000 9000\nstart");
    program.programma.windows.dispatch(
        [&] { services::meld_fout(program.programma, "plaats", 1, std::string(400, 'x')); });
    EXPECT_LE(std::stod(get("Left")) + std::stod(get("Width")), 15000);
    EXPECT_GT(std::stod(get("Width")), std::stod(get("cmdInterNet.Left")) + std::stod(get("cmdInterNet.Width")));
    EXPECT_NE(program("clipboard").find(std::string(400, 'x')), std::string::npos);
}

TEST_F(Report, NamesTheFailureAndPutsItOnTheClipboard) {
    program.interpreter.platform.clipboard = "eerder";
    program("start");
    fail();
    EXPECT_EQ(get("Caption"), "Fout in het programma");
    EXPECT_EQ(get("lblFoutInfo(0).Caption"), kFirst);
    EXPECT_EQ(get("lblFoutInfo(1).Caption"), "326");
    EXPECT_EQ(get("lblFoutInfo(2).Caption"), program.shared("foutNaam"));
    EXPECT_NE(program.shared("foutNaam"), "");
    EXPECT_EQ(program("clipboard"),
              std::string("= Fout in:") + kFirst + "\\r\\nFoutnummer:326\\r\\nFoutnaam:" + program.shared("foutNaam"));
    for (const char* row : {"0", "1", "2"}) {
        const std::string number = std::string("(") + row + ").";
        const double end =
            std::stod(get("lblWatWaar" + number + "Left")) + std::stod(get("lblWatWaar" + number + "Width"));
        EXPECT_LE(end, std::stod(get("lblFoutInfo" + number + "Left"))) << "no text stands over the value beside it";
    }
}

TEST_F(Report, OffersTheWebPageOnlyWithAConnection) {
    program("start");
    fail();
    EXPECT_EQ(get("cmdInterNet.Visible"), "false");
    EXPECT_EQ(get("lblWatWaar(5).Caption"), "https:\\\\\\\\www.zandolin.example\\\\QVTMelding");
    EXPECT_TRUE(get("lblWatWaar(3).Caption").starts_with("Ik heb geen internetverbinding.\\nU kunt"));

    Program online;
    online.write("served", "x");
    online("online on\nserve http://www.zandolin.example/tavrin/actueleversie.txt " + online.path("served").string() +
           "\nstart");
    online.programma.windows.dispatch([&] { services::Bas_Aftavrin::LeesResString(online.programma, 0); });
    EXPECT_EQ(online.get("frmTavrin08.lblWatWaar(5).Caption"), "");
    EXPECT_TRUE(online.get("frmTavrin08.lblWatWaar(3).Caption").starts_with("Wilt u de foutmelding"));
    online.interpreter.platform.clipboard = "iets anders";
    EXPECT_EQ(online("click frmTavrin08.cmdInterNet\nopened"),
              "https://www.zandolin.example/QVTMelding.html\t\tC:\\\\\n.");
    EXPECT_TRUE(online("clipboard").starts_with("= Fout in:"));
    EXPECT_EQ(online.get("frmTavrin08.Visible"), "true");
}

TEST_F(Report, Blinks) {
    program("start");
    fail();
    const struct {
        int wait;
        const char* face;
    } steps[] = {{749, "gezicht0"},  {1, "gezicht1"}, {149, "gezicht1"}, {1, "gezicht0"},
                 {1499, "gezicht0"}, {1, "gezicht1"}, {150, "gezicht0"}, {1650, "gezicht0"}};
    for (const auto& step : steps) {
        program("wait " + std::to_string(step.wait));
        EXPECT_EQ(get("picShow.Picture"), step.face) << step.wait;
    }
}

TEST_F(Report, LeavingItEndsTheProgram) {
    const char* const confirmed =
        "64\tZandolin\tIk heb de foutmelding in het klembord geplaats.\\nOpen de  kladblok en kies daar voor "
        "Plakken\tok\n.";
    const struct {
        const char* way;
        const char* screens;
        const char* boxes;
    } cases[] = {{"click frmTavrin08.cmdAfsluiten", "ended", confirmed},
                 {"close frmTavrin08", "ended", "."},
                 {"key frmTavrin08 escape", "frmTavrin08 visible\nfrmTavrin01 visible\n.", "."}};
    for (const auto& each : cases) {
        Program one;
        one("start");
        one.programma.windows.dispatch([&] { services::Bas_Aftavrin::LeesResString(one.programma, 0); });
        one(each.way);
        EXPECT_EQ(one("screens"), each.screens) << each.way;
        EXPECT_EQ(one("boxes"), each.boxes) << each.way;
        EXPECT_TRUE(one("clipboard").starts_with("= Fout in:"));
    }
}

TEST_F(Report, OfAFailureDuringTheStartStaysOnView) {
    program.write("aftavrin", "a file in the folder's place");
    program("start");
    EXPECT_EQ(program("screens"), "frmTavrin08 visible\nfrmTavrin01 visible\n.");
    EXPECT_EQ(get("lblFoutInfo(0).Caption"), "Kaarten - General - LeesSpellen");
    EXPECT_EQ(get("lblFoutInfo(1).Caption"), "76");
    // The main screen fails again when the user comes back to it: the report's show is pending and it isn't unloaded.
    EXPECT_EQ(program("activate frmTavrin01\nscreens"), "frmTavrin08 visible\nfrmTavrin01 visible\n.");
}

TEST_F(Report, KeepsTheFirstFailureOnView) {
    open_damaged_deal();
    EXPECT_EQ(program("screens"), "frmTavrin08 visible\nfrmTavrin02 visible\n.");
    program("activate frmTavrin02");
    fail();
    EXPECT_EQ(program("screens"), "frmTavrin08 visible\nfrmTavrin02 visible\n.") << "in front again";
    EXPECT_EQ(program.shared("foutPlaats"), kFirst);
    EXPECT_EQ(get("lblFoutInfo(0).Caption"), kDamaged);
    EXPECT_TRUE(program("clipboard").starts_with(std::string("= Fout in:") + kDamaged));
}

TEST_F(Report, ThatStoodEndsTheProgramWhenTheUserComesBackToTheMainScreen) {
    open_damaged_deal();
    EXPECT_EQ(program("key frmTavrin02 escape\nscreens"), "ended");
}

}  // namespace
