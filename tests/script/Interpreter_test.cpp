// The script host: what each command answers, what is refused, and what is wrong.
#include <gtest/gtest.h>

#include "script/Names.h"
#include "support/Program.h"
#include "support/System.h"

namespace {

struct Step {
    std::string command;
    std::string answer;
};

class Script : public testing::Test {
protected:
    void expect(const std::vector<Step>& steps) {
        for (const Step& step : steps)
            EXPECT_EQ(program.interpreter.run(step.command), step.answer) << step.command;
    }
    void expect_errors(const std::vector<std::string>& commands) {
        for (const std::string& command : commands) {
            const std::string answer = program.interpreter.run(command);
            EXPECT_TRUE(answer.starts_with("error: ") && answer.find('\n') == std::string::npos) << command << answer;
        }
    }
    void add_package() {
        program.install_companion();
        write_package(program, Package::west_wins_all());
    }

    Program program;
};

TEST_F(Script, TypesIntoBoxesAndGrid) {
    program.add_samples();
    expect({{"start", "ok"},
            {"click frmTavrin01.cmdNieuwSpel", "ok"},
            {"screens", "frmTavrin03 visible\nfrmTavrin01 visible\n."},
            {"select frmTavrin03.lstRVLX 0", "ok"},
            {"text frmTavrin03.txtVraag een\\ttwee\\r\\ndrie\\\\", "ok"},
            {"get frmTavrin03.txtVraag.Text", "= een\\ttwee\\r\\ndrie\\\\"},
            {"type frmTavrin03.txtVraag  \u00E9\u0416", "ok"},
            {"get frmTavrin03.txtVraag.Text", "= een\\ttwee\\r\\ndrie\\\\ \u00E9?"},
            {"text frmTavrin03.txtVraag", "ok"},
            {"get frmTavrin03.txtVraag.Text", "= "},
            {"click frmTavrin03.msfgTavrin[1,2]", "ok"},
            {"get frmTavrin03.msfgTavrin[1,2].CellBackColor", "= 0xFFFFFF"},
            {"activate frmTavrin03", "ok"},
            {"key frmTavrin03 escape", "ok"},
            {"screens", "frmTavrin01 visible\n."}});
}

TEST_F(Script, ListsEveryControl) {
    add_package();
    program("start");
    const std::string dump = program("dump frmTavrin01");
    for (const char* line : {"cmdTavrin CommandButton visible disabled 5280 4530 1545 435 &Tavrin\n",
                             "lstSpellen ListBox visible enabled 120 270 2925 2985 1 lines, -1\n",
                             "dirSpellen DirListBox hidden enabled 3360 1590 2085 315 \n",
                             "picLogo PictureBox visible enabled 255 165 3120 810 logo\n"}) {
        EXPECT_NE(dump.find(line), std::string::npos) << line << dump;
    }
    EXPECT_TRUE(dump.ends_with("\n."));
}

TEST_F(Script, AnswersBoxesOrCallsThemWrong) {
    add_package();
    const std::string question = "Weet u zeker dat u spel QVT_Spel 012 wilt wissen?";
    program("start\nselect frmTavrin01.lstSpellen 0");
    expect({{"click frmTavrin01.cmdWissen", "error: no answer to " + question}});
    EXPECT_TRUE(program.interpreter.failed());
    expect({{"shared foutPlaats", "= "},
            {"boxes", "."},
            {"select frmTavrin01.lstSpellen 0", "ok"},
            {"answer no", "ok"},
            {"click frmTavrin01.cmdWissen", "ok"},
            {"boxes", "36\tZandolin Lomert\t" + question + "\tno\n."},
            {"boxes", "."}});
}

TEST_F(Script, TellsThePlatformWhatIsThere) {
    program.write("served", "x");
    program.write("help.chm", "x");
    const std::string folder = program.path().string();
    auto& platform = program.interpreter.platform;
    expect({{"online on", "ok"},
            {"serve http://een/twee " + folder + "/served", "ok"},
            {"drive /media/stick 2 Mijn stick", "ok"},
            {"screen 15000 12000", "ok"},
            {"start", "ok"},
            {"get frmTavrin01.cmdFocus.Left", "= 15010"},
            {"key frmTavrin01 f1", "ok"},
            {"opened", script::escaped(native(folder + "/help.chm")) + "\t\t\n."},
            {"opened", "."},
            {"keys", "."}});
    EXPECT_TRUE(platform.online);
    EXPECT_EQ(platform.volume_label("/media/stick"), "Mijn stick");
    EXPECT_EQ(platform.drive_type("/media/stick"), 2);
    EXPECT_TRUE(platform.download("http://een/twee", folder + "/fetched"));
    EXPECT_EQ(program.read("fetched"), "x");
    platform.send_keys({{.type = 1, .virtual_key = 65, .scan_code = 30, .flags = 2}});
    expect({{"keys", "65 30 2\n."}, {"serve http://een/twee fail", "ok"}, {"nodrives", "ok"}, {"online off", "ok"}});
    EXPECT_FALSE(platform.download("http://een/twee", folder + "/fetched"));
    EXPECT_TRUE(platform.drives().empty());
    EXPECT_FALSE(platform.online);
}

TEST_F(Script, TellsWhatIsWrongWithACommand) {
    program("start");
    EXPECT_FALSE(program.interpreter.failed());
    expect_errors({"dance",
                   "click",
                   "click frmTavrin09.cmdTerug",
                   "click frmTavrin01.cmdGeen",
                   "click frmTavrin01",
                   "click frmTavrin01.lstSpellen[0]",
                   "click frmTavrin01.cmdTavrin(1)",
                   "select frmTavrin01.lstSpellen",
                   "select frmTavrin01.lstSpellen 0",
                   "select frmTavrin01.lstSpellen 1x",
                   "type frmTavrin01.lblInfo x",
                   "scroll frmTavrin01.chkSorteer 1",
                   "tick frmTavrin01.cmdTavrin",
                   "wait",
                   "wait -1",
                   "wait 1e3",
                   "key frmTavrin01 enter",
                   "answer maybe",
                   "get frmTavrin01",
                   "get frmTavrin01.Geen",
                   "get frmTavrin01.lstSpellen[0].Text",
                   "get frmTavrin01.lstSpellen[99999999999].Text",
                   "shared geen",
                   "online",
                   "drive /x two y",
                   "screen wide",
                   "window frmTavrin01 tall",
                   "resize frmTavrin01 1",
                   "dump " + std::string(1 << 17, 'x'),
                   "get frmTavrin01." + std::string(1 << 17, 'x') + ".Text"});
    EXPECT_TRUE(program.interpreter.failed());
    EXPECT_EQ(program("screens"), "frmTavrin01 visible\n.") << "nothing happened";
}

TEST_F(Script, KnowsOnlyAFewCommandsAfterTheEnd) {
    expect({{"start", "ok"},
            {"key frmTavrin01 escape", "ok"},
            {"start", "ended"},
            {"screens", "ended"},
            {"get frmTavrin01.Caption", "ended"},
            {"keys", "ended"},
            {"dance", "ended"},
            {"clipboard", "= "},
            {"opened", "."},
            {"boxes", "."}});
    EXPECT_FALSE(program.interpreter.finished());
    expect({{"quit", "ok"}, {"screens", ""}});
    EXPECT_TRUE(program.interpreter.finished());
    EXPECT_FALSE(program.interpreter.failed());
}

}  // namespace
