#include <gtest/gtest.h>

#include "support/Program.h"

namespace {

namespace fs = std::filesystem;

const std::string kServer = "http://www.zandolin.example/tavrin/";

// A program whose server answers and has an installer.
struct Served {
    Served() {
        program.write("served/versie", "1");
        program.write("served/installer", "new");
        program("online on");
        serve("actueleversie.txt", "served/versie");
        serve("tavrinupdate.exe", "served/installer");
    }
    void serve(const std::string& name, const std::string& file) {
        program("serve " + kServer + name + " " + (file == "fail" ? file : program.path(file).string()));
    }
    void download() { program("start\nclick frmTavrin01.cmdDownLoaden"); }

    Program program;
};

class Update : public testing::Test, protected Served {};

TEST_F(Update, InstallerIsFetchedStartedAndTheProgramEnds) {
    download();
    EXPECT_EQ(program.tree("Update"), (std::vector<std::string>{"Update/tavrinupdate.exe = new"}));
    EXPECT_EQ(program("boxes"),
              "64\tZandolin Lomert\tZandolin Lomert wordt nu afgesloten en de installatie van de "
              "nieuwe versie zal zo starten.\tok\n.");
    const std::string folder = program.path().string();
    EXPECT_EQ(program("opened"), folder + "/Update/tavrinupdate.exe\t\"/p=" + folder + "\"\tC:\\\\\n.");
    EXPECT_EQ(program("screens"), "ended");
}

TEST(UpdateOverALeftover, ReplacesItUnderItsOwnSpelling) {
    for (const char* leftover : {"", "an older and longer installer"}) {
        Served served;
        served.program.write("UPDATE/TavrinUpdate.EXE", leftover);
        served.download();
        const std::vector<std::string> tree = served.program.tree("UPDATE");
        ASSERT_EQ(tree.size(), 1U);
        EXPECT_TRUE(tree[0].ends_with(" = new")) << tree[0];
        EXPECT_FALSE(served.program.exists("Update"));
    }
}

TEST_F(Update, WithoutAServerAtTheStartNothingCanBeFetched) {
    serve("actueleversie.txt", "fail");
    program("start");
    EXPECT_EQ(program("click frmTavrin01.cmdDownLoaden"), "refused: disabled");
    EXPECT_FALSE(program.exists("Update"));
}

TEST_F(Update, AServerThatGoesAwayLeadsToTheWebsiteIfWanted) {
    serve("tavrinupdate.exe", "fail");
    const struct {
        const char* answer;
        const char* opened;
    } rows[] = {{"no", "."},
                {"yes", "https://www.zandolin.example/download/download-software/zandolin-lomert\t\tC:\\\\\n."}};
    for (const auto& row : rows) {
        program("answer " + std::string(row.answer));
        download();
        EXPECT_EQ(program("opened"), row.opened);
        EXPECT_EQ(program("boxes").substr(0, 57), "68\tZandolin Lomert\tEr is geen update voor Zandolin Lomert");
        EXPECT_EQ(program.get("frmTavrin01.Visible") + program.get("frmTavrin01.ActiveControl"), "truecmdFocus");
        EXPECT_EQ(program.get("frmTavrin01.MousePointer"), "0");
    }
}

TEST_F(Update, AnOldInstallerIsGoneBeforeTheDownload) {
    program.write("Update/tavrinupdate.exe", "old");
    serve("tavrinupdate.exe", "fail");
    program("answer no");
    download();
    EXPECT_TRUE(program.tree("Update").empty());
}

TEST_F(Update, ADownloadThatBreaksIsReported) {
    serve("tavrinupdate.exe", "served/gone");
    download();
    EXPECT_EQ(program.shared("foutPlaats"), "frmTavrin01 - cmdDownLoaden - Click");
}

}  // namespace
