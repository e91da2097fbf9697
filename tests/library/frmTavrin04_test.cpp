#include <gtest/gtest.h>

#include "forms/Form.h"
#include "forms/ListBox.h"
#include "support/Program.h"

namespace {

const std::string kOld = "QVT_Spel 012";

// Stands for the preparation screen, with the lines chosen on it that a test wants.
class Preparation final : public forms::Form {
public:
    Preparation(services::Programma& programma, const std::vector<std::string>& deals,
                const std::vector<std::string>& packages)
        : Form(programma.windows, "frmTavrin03", {100, 100}) {
        fill(lstRVLX, deals);
        fill(lstAfTavrin, packages);
    }
    forms::ListBox lstRVLX{*this, "lstRVLX"};
    forms::ListBox lstAfTavrin{*this, "lstAfTavrin"};

private:
    // The last line is the current one; a list that ends in "" has none.
    static void fill(forms::ListBox& list, const std::vector<std::string>& lines) {
        for (const std::string& line : lines)
            list.AddItem(line);
        if (!lines.empty() && !lines.back().empty()) list.ListIndex = list.ListCount() - 1;
    }
};

class Rename : public testing::Test {
protected:
    Rename() {
        program.install_companion();
        program.write("aftavrin/" + kOld + "/" + kOld + " aftavrin.txt", "rows");
    }

    // Opens the screen for the deal of that line of the main screen.
    void open(int line = 0) {
        program("start");
        program.programma.schermen.registreer("frmTavrin03", [this](services::Programma& programma) {
            return std::make_unique<Preparation>(programma, deals, packages);
        });
        program("select frmTavrin01.lstSpellen " + std::to_string(line));
        program("click frmTavrin01.cmdHerbeNoem");
    }
    std::string rename_to(const std::string& number) {
        program("text frmTavrin04.txtSpelNummer " + number);
        return program("click frmTavrin04.cmdHerbenoem");
    }
    std::string get(const std::string& name) { return program.get("frmTavrin04." + name); }
    std::string report() { return program.shared("foutNummer") + " " + program.shared("foutPlaats"); }

    Program program;
    std::vector<std::string> deals;
    std::vector<std::string> packages;
};

TEST_F(Rename, FolderAndTextFilesGetTheNewName) {
    const std::string folder = "aftavrin/" + kOld + "/";
    program.write(folder + "qvt_SPEL 012 Contract.TXT", "contract");
    program.write(folder + "QVT_Spel 012 naar QVT_Spel 012.txt", "twice");
    program.write(folder + "los.txt", "loose");
    program.write(folder + "QVT_Spel 012 plan.doc", "other kind");
    program.write(folder + ".QVT_Spel 012.txt", "hidden");
    open();
    EXPECT_EQ(get("lblOudNummer.Caption"), "Oud spelnummer: " + kOld);
    EXPECT_EQ(rename_to("7"), "ok");

    const std::string renamed = "aftavrin/QVT_Spel 007/";
    EXPECT_EQ(program.tree("aftavrin"),
              (std::vector<std::string>{
                  renamed, renamed + ".QVT_Spel 012.txt = hidden", renamed + "QVT_Spel 007 Contract.TXT = contract",
                  renamed + "QVT_Spel 007 aftavrin.txt = rows", renamed + "QVT_Spel 007 naar QVT_Spel 007.txt = twice",
                  renamed + "QVT_Spel 012 plan.doc = other kind", renamed + "los.txt = loose"}));
    EXPECT_EQ(get("lstAfTavrin[0].Text"), "QVT_Spel 007");
    EXPECT_EQ(get("txtSpelNummer.Text"), "");
    EXPECT_EQ(get("cmdHerbenoem.Enabled"), "false");
    EXPECT_EQ(program.shared("foutNummer"), "0");
}

TEST_F(Rename, NumbersBecomeThreeDigits) {
    const struct {
        const char* box;
        const char* typed;
        const char* name;
    } rows[] = {
        {"txtSpelNummer", "7", "QVT_Spel 007"},
        {"txtSpelNummer", "1234", "QVT_Spel 234"},
        {"txtSpelNummer", "1000", "QVT_Spel 000"},
        {"txtEigenSpelnummer", "45", "Spel 045"},
        {"txtEigenSpelnummer", "een", "Spel 000"},
        {"txtEigenSpelnummer", "12b", "Spel 012"},
        {"txtEigenSpelnummer", "-5", "Spel 995"},
        {"txtSpelNummer", "10000000000000000000042", "QVT_Spel 042"},
        {"txtEigenSpelnummer", "99999999999", "Spel 999"},
    };
    open();
    std::string now = kOld;
    for (const auto& row : rows) {
        program("text frmTavrin04." + std::string(row.box) + " " + row.typed);
        EXPECT_EQ(program("click frmTavrin04.cmdHerbenoem"), "ok") << row.typed;
        EXPECT_TRUE(program.exists("aftavrin/" + std::string(row.name))) << row.typed;
        EXPECT_FALSE(program.exists("aftavrin/" + now)) << row.typed;
        now = row.name;
        program("close frmTavrin04\nselect frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdHerbeNoem");
    }
}

TEST_F(Rename, ANameThatIsTakenIsRefused) {
    const struct {
        const char* other;  // a second deal
        const char* typed;
        const char* refused;
    } rows[] = {
        {"QVT_Spel 001", "12", "QVT_Spel 012"},         // itself
        {"QVT_Spel 001", "1", "QVT_Spel 001"},          //
        {"qvt_spel 001", "1", "QVT_Spel 001"},          // in another case
        {"QVT_Spel 001 reserve", "1", "QVT_Spel 001"},  // a line that begins with it
    };
    open();
    for (const auto& row : rows) {
        const std::string other = "aftavrin/" + std::string(row.other);
        std::filesystem::create_directory(program.path(other));
        program("click frmTavrin04.chkSorteerTavrin");  // reads the list again
        const auto before = program.tree("aftavrin");
        program("text frmTavrin04.txtSpelNummer\nkeys");
        rename_to(row.typed);
        const std::string refused = row.refused;
        EXPECT_EQ(program("boxes"), "64\tHerbenoem\tKan " + kOld + " niet wijzigen in " + refused + ".\\n\\n" +
                                        refused + " bestaat al.\\nKies een ander nummer voor " + kOld + ".\tok\n.");
        EXPECT_EQ(program("keys"), "16 0 0\n35 0 1\n35 79 3\n16 0 2\n.");
        EXPECT_EQ(program.get("frmTavrin04.ActiveControl"), "txtSpelNummer");
        EXPECT_EQ(program.tree("aftavrin"), before);
        std::filesystem::remove_all(program.path(other));
    }
    EXPECT_EQ(program.shared("foutNummer"), "0");
}

TEST_F(Rename, FailuresAreReportedAndLeaveWhatWasDone) {
    open();
    rename_to("1");
    rename_to("2");  // the label still names the old folder
    EXPECT_EQ(report(), "53 frmTavrin04 - cmdHerbenoem - Click");
    EXPECT_TRUE(program.exists("aftavrin/QVT_Spel 001"));
    EXPECT_FALSE(program.exists("aftavrin/" + kOld));
    EXPECT_EQ(program.get("frmTavrin08.Visible"), "true");
}

TEST_F(Rename, NoFileIsOverwritten) {
    const std::string folder = "aftavrin/" + kOld + "/";
    program.write(folder + "QVT_Spel 012 vraag.txt", "question");
    program.write(folder + "qvt_spel 003 VRAAG.txt", "kept");
    open();
    rename_to("3");
    EXPECT_EQ(report(), "58 frmTavrin04 - cmdHerbenoem - Click");
    const std::string renamed = "aftavrin/QVT_Spel 003/";
    EXPECT_EQ(program.tree("aftavrin"), (std::vector<std::string>{renamed, renamed + "QVT_Spel 003 aftavrin.txt = rows",
                                                                  renamed + "QVT_Spel 012 vraag.txt = question",
                                                                  renamed + "qvt_spel 003 VRAAG.txt = kept"}));
}

TEST_F(Rename, APlainFileInTheWayIsNoDealAndStays) {
    program.write("aftavrin/QVT_Spel 003", "file");
    open();
    rename_to("3");
    EXPECT_EQ(report(), "58 frmTavrin04 - cmdHerbenoem - Click");
    EXPECT_EQ(program.read("aftavrin/QVT_Spel 003"), "file");
    EXPECT_TRUE(program.exists("aftavrin/" + kOld));
}

TEST_F(Rename, TheNumberProposedComesFromThePreparationScreen) {
    const struct {
        std::vector<std::string> deals;
        std::vector<std::string> packages;
        const char* text;
        const char* bar;
    } rows[] = {
        {{}, {}, "", "0"},
        {{"Spel 900", ""}, {"QVT_Spel 013", ""}, "", "0"},  // no current line
        {{"Spel 900", "Spel 017"}, {}, "017", "17"},        // the current line counts, not the highest
        {{"Spel 017"}, {"QVT_Spel 040"}, "017", "17"},      //
        {{"Spel 017", ""}, {"QVT_Spel 040"}, "039", "39"},  //
        {{}, {"QVT_Spel 000"}, "", "0"},                    // -1 is no number
        {{"oefenspel"}, {"QVT_Spel 040"}, "", "0"},         // nor is this
    };
    for (const auto& row : rows) {
        deals = row.deals;
        packages = row.packages;
        open();
        EXPECT_EQ(get("txtSpelNummer.Text"), row.text);
        EXPECT_EQ(get("vscrSpelNummer.Value"), row.bar);
        EXPECT_EQ(get("vscrEigenSpelnummer.Value"), row.bar);
        EXPECT_EQ(get("cmdHerbenoem.Enabled"), row.text[0] == 0 ? "false" : "true");
        EXPECT_EQ(get("txtEigenSpelnummer.Enabled"), row.text[0] == 0 ? "true" : "false");
        EXPECT_EQ(program.shared("foutNummer"), "0");
        program("close frmTavrin04");
    }
}

TEST_F(Rename, TheBarsRunOverTheListAndWrap) {
    deals = {"Spel 017"};
    open();
    const struct {
        const char* bar;
        int to;
        const char* number;
        const char* own;
        const char* value;
    } rows[] = {
        {"vscrSpelNummer", 16, "983", "", "16"},  // line 16 of a list that begins at 999
        {"vscrSpelNummer", 998, "001", "", "998"},     {"vscrSpelNummer", 999, "999", "", "0"},
        {"vscrSpelNummer", -1, "001", "", "998"},      {"vscrEigenSpelnummer", 18, "", "981", "18"},
        {"vscrEigenSpelnummer", 1000, "", "999", "0"}, {"vscrSpelNummer", 997, "002", "", "997"},
    };
    for (const auto& row : rows) {
        program("scroll frmTavrin04." + std::string(row.bar) + " " + std::to_string(row.to));
        EXPECT_EQ(get("txtSpelNummer.Text"), row.number) << row.bar << row.to;
        EXPECT_EQ(get("txtEigenSpelnummer.Text"), row.own) << row.bar << row.to;
        EXPECT_EQ(get(std::string(row.bar) + ".Value"), row.value) << row.bar << row.to;
        EXPECT_EQ(get("txtSpelNummer.Enabled"), row.own[0] == 0 ? "true" : "false");
        EXPECT_EQ(get("txtEigenSpelnummer.Enabled"), row.own[0] == 0 ? "false" : "true");
        EXPECT_EQ(get("cmdHerbenoem.Enabled"), "true");
    }
}

TEST_F(Rename, TheBoxesExcludeEachOther) {
    open();
    program("text frmTavrin04.txtSpelNummer 1a2-3");
    EXPECT_EQ(get("txtSpelNummer.Text"), "123");  // digits only
    EXPECT_EQ(program("text frmTavrin04.txtEigenSpelnummer 5"), "refused: disabled");
    program("text frmTavrin04.txtSpelNummer");
    EXPECT_EQ(get("cmdHerbenoem.Enabled"), "false");
    program("text frmTavrin04.txtEigenSpelnummer 5");
    EXPECT_EQ(get("cmdHerbenoem.Enabled"), "true");
    EXPECT_EQ(program("text frmTavrin04.txtSpelNummer 5"), "refused: disabled");
    program("text frmTavrin04.txtEigenSpelnummer  ");  // one blank
    EXPECT_EQ(get("cmdHerbenoem.Enabled"), "false");
    EXPECT_EQ(get("txtSpelNummer.Enabled"), "true");
}

TEST_F(Rename, TheListIsOnlyForLooking) {
    program.write("aftavrin/Spel 003/x", "");
    open();
    EXPECT_EQ(program("keys"), "16 0 0\n35 0 1\n35 79 3\n16 0 2\n.");
    program("click frmTavrin04.chkSorteerTavrin");
    EXPECT_EQ(program.get("frmTavrin04.ActiveControl"), "cmdFocus");
    EXPECT_EQ(get("chkSorteerTavrin.Caption"), "Sorteer &laag-hoog");
    EXPECT_EQ(get("lstAfTavrin[0].Text"), "Spel 003");
    EXPECT_NE(program.read("standaardtavrin.ini").find("chkSorteerTavrin=1"), std::string::npos);
    program("select frmTavrin04.lstAfTavrin 1");
    EXPECT_EQ(get("lstAfTavrin.ListIndex"), "-1");
    EXPECT_EQ(program.get("frmTavrin04.ActiveControl"), "txtSpelNummer");
    EXPECT_EQ(program("keys"), "16 0 0\n35 0 1\n35 79 3\n16 0 2\n.");
}

}  // namespace
