// The editor of the texts, and the overview.
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <map>
#include <random>

#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"
#include "script/Names.h"
#include "support/Places.h"
#include "support/System.h"

namespace {

constexpr const char* kStem = "aftavrin/QVT_Spel 012/QVT_Spel 012";
constexpr std::size_t kRecord = 532;

class Editor : public testing::Test {
protected:
    void open(const Package& package) {
        write_package(program, package);
        program.install_companion();
        program("start\nclick frmTavrin01.cmdKaartenEditor\nselect frmTavrin05.lstSpellen 0");
    }
    std::string get(const std::string& name) { return program.get("frmTavrin05." + name); }
    std::string marker(int card) { return get("picYesNo(" + std::to_string(card - 1) + ").Picture"); }
    void choose(int card) { program("click frmTavrin05.picYesNo(" + std::to_string(card - 1) + ")"); }
    void store(const std::string& text) {
        program("text frmTavrin05.txtInformatie " + script::escaped(text) + "\nclick frmTavrin05.cmdGebruiken");
    }
    std::string record(int card) {
        return program.read(std::string(kStem) + " informatie.txt").substr((card - 1) * kRecord, kRecord);
    }
    // A record as the file holds it.
    static std::string padded(std::string text) {
        text.resize(kRecord, ' ');
        return text;
    }

    Program program;
};

TEST_F(Editor, ShowsTheFirstTrickAndWhichCardsHaveAText) {
    Package package = Package::west_wins_all();
    package.rows[0].replace(0, 4, "3412");
    package.texts = {{2, "Tekst"}, {7, "  "}, {9, "a|b"}, {52, "Eind"}};
    open(package);
    EXPECT_EQ(get("fraSlag.Caption"), "Zuid 3 SA");
    EXPECT_EQ(get("txtSlag.Text"), "1");
    EXPECT_EQ(get("vscrSlag.Value"), "12");
    EXPECT_EQ(get("lblUit.Caption"), "Uit:Zuid");
    EXPECT_EQ(get("lblKaartNummer(3).Caption"), "Nummer: 1");
    EXPECT_EQ(get("lblKaartNummer(3).FontBold"), "true");
    EXPECT_EQ(get("lblKaartNummer(3).ForeColor"), "0xFF0000");
    EXPECT_EQ(get("lblKaartNummer(2).Caption"), "Nummer: 4");
    EXPECT_EQ(get("picKaart(2).Picture"), "2239") << "the pictures stay at their seats";
    for (const int card : {2, 9, 52})
        EXPECT_EQ(marker(card), "ja") << card;
    for (const int card : {1, 7, 51})
        EXPECT_EQ(marker(card), "nee") << card;
    EXPECT_EQ(get("fraKaartMetTekst.Enabled"), "true");
}

TEST_F(Editor, TricksFormARing) {
    open(Package::west_wins_all());
    const auto expect_trick = [&](const char* position, const char* trick) {
        program(std::string("scroll frmTavrin05.vscrSlag ") + position);
        EXPECT_EQ(get("txtSlag.Text"), trick);
    };
    expect_trick("13", "13");
    EXPECT_EQ(get("vscrSlag.Value"), "0");
    expect_trick("-1", "1");
    EXPECT_EQ(get("vscrSlag.Value"), "12");
    expect_trick("11", "2");
    EXPECT_EQ(get("lblKaartNummer(4).Caption"), "Nummer: 5");
}

TEST_F(Editor, StoringNeedsAChosenCard) {
    open(Package::west_wins_all());
    const auto before = program.tree("aftavrin");
    store("Nergens");
    program("click frmTavrin05.cmdWissen");
    EXPECT_EQ(program.tree("aftavrin"), before);
    EXPECT_EQ(get("ActiveControl"), "cmdFocus");
}

TEST_F(Editor, StoresTextsAsTyped) {
    open(Package::west_wins_all());
    struct Case {
        int card;
        std::string text;
        std::string comes_back;
    };
    const Case cases[] = {
        {1, "E\xE9n tekst", "E\xE9n tekst"},
        {13, "Regel 1\r\nRegel 2\r\n\r\nRegel 4", "Regel 1\r\nRegel 2\r\n\r\nRegel 4"},
        {26, "tilde~hier", "tilde\r\nhier"},
        {39, "voor|achter", "voor"},
        {52, std::string(255, 'w'), std::string(255, 'w')},
    };
    for (const Case& each : cases) {
        choose(each.card);
        store(platform::to_utf8(each.text));
        EXPECT_EQ(get("txtSlag.Text"), std::to_string((each.card + 3) / 4)) << "its trick is on view";
        EXPECT_EQ(record(each.card), padded(std::to_string(each.card) + "|" + each.text));
    }
    EXPECT_EQ(program.read(std::string(kStem) + " informatie.txt").size(), 52 * kRecord);
    program("key frmTavrin05 escape\nclick frmTavrin01.cmdKaartenEditor\nselect frmTavrin05.lstSpellen 0");
    EXPECT_EQ(marker(39), "ja");
    for (const Case& each : cases) {
        choose(each.card);
        EXPECT_EQ(script::unescaped(platform::from_utf8(get("txtInformatie.Text"))), each.comes_back);
    }
}

TEST_F(Editor, MissingFilesAreToldInWordsAndLeaveNoDealChosen) {
    open(Package::west_wins_all());
    std::filesystem::remove(program.path(std::string(kStem) + " Contract.txt"));
    program("select frmTavrin05.lstSpellen 0");
    const std::string folder = platform::path_text(program.path("aftavrin/QVT_Spel 012"));
    EXPECT_EQ(program.interpreter.platform.boxes.back().text,
              "Kan het bestand (QVT_Spel 012 contract.txt) niet vinden!\n\n(QVT_Spel 012 contract.txt) moet in "
              "onderstaande map staan:\n" +
                  folder);
    EXPECT_EQ(get("fraSlag.Enabled"), "false");
    EXPECT_EQ(get("cmdToonSpel.Enabled"), "false");
    program.write(std::string(kStem) + " Contract.txt", "Zuid 3 SA\r\n");
    std::filesystem::remove(program.path(std::string(kStem) + " aftavrin.txt"));
    program("select frmTavrin05.lstSpellen 0");
    EXPECT_NE(program.interpreter.platform.boxes.back().text.find("\n\nQVT_Spel 012 aftavrin.txt moet"),
              std::string::npos);
}

TEST(EditorAndOverview, ReportWhatIsDamagedWhereItIsUsed) {
    const struct {
        const char* name;
        std::string record;  // the first
        const char* used;
        const char* place;
    } rows[] = {
        {"QVT_Spel 012", std::string(kRecord, ' '), "click frmTavrin05.picYesNo(0)", "frmTavrin05 - picYesNo - Click"},
        {"QVT_Spel 012", "xx", "", "frmTavrin05 - General - ZetJaNeePic"},
        {"17", "1|", "click frmTavrin05.cmdToonSpel", "frmTavrin06 - Form - Load"}};
    for (const auto& row : rows) {
        Program program;
        Package package = Package::west_wins_all();
        package.name = row.name;
        write_package(program, package);
        program.install_companion();
        const std::string file = "aftavrin/" + package.name + "/" + package.name + " informatie.txt";
        program.write(file, program.read(file).replace(0, row.record.size(), row.record));
        program("start\nclick frmTavrin01.cmdKaartenEditor\nselect frmTavrin05.lstSpellen 0\n" + std::string(row.used));
        EXPECT_EQ(program.shared("foutPlaats"), row.place);
    }
}

TEST_F(Editor, MissingTextsAreMadeByTheFirstStore) {
    open(Package::west_wins_all());
    std::filesystem::remove(program.path(std::string(kStem) + " informatie.txt"));
    program("select frmTavrin05.lstSpellen 0");
    EXPECT_FALSE(program.exists(std::string(kStem) + " informatie.txt"));
    choose(52);
    store("Eind");
    EXPECT_EQ(record(52), padded("52|Eind"));
    EXPECT_EQ(record(1), padded("1|"));
}

TEST_F(Editor, StoreThatFailsLeavesTheOldTexts) {
    open(Package::west_wins_all());
    choose(1);
    const std::string file = std::string(kStem) + " informatie.txt";
    const std::string before = program.read(file);
    {
        const platform::system_calls::HookScope full([](platform::system_calls::Call call, const char*) {
            return call == platform::system_calls::Call::Sync ? ENOSPC : 0;
        });
        store("Nieuw");
    }
    EXPECT_EQ(program.shared("foutPlaats"), "frmTavrin05 - cmdGebruiken - Click");
    EXPECT_EQ(program.read(file), before);
    EXPECT_EQ(get("txtInformatie.Text"), "Nieuw") << "to be stored elsewhere, or again";

    std::filesystem::rename(program.path(file), program.path("elders"));
    if (!make_link(program.path("elders"), program.path(file))) GTEST_SKIP() << kNoLinks;
    store("Nieuw");
    EXPECT_EQ(program.shared("foutNummer"), "75") << "not through a link";
    EXPECT_EQ(program.read("elders"), before);
}

TEST_F(Editor, TextsThatCannotBeReadAreNotStoredOver) {
    open(Package::west_wins_all());
    const platform::system_calls::HookScope broken([](platform::system_calls::Call call, const char* path) {
        return call == platform::system_calls::Call::Read && std::string_view(path).ends_with("informatie.txt") ? EIO
                                                                                                                : 0;
    });
    program("select frmTavrin05.lstSpellen 0");
    EXPECT_EQ(program.shared("foutNummer") + program.shared("foutPlaats"), "57frmTavrin05 - lstSpellen - Click");
    EXPECT_EQ(get("fraKaartMetTekst.Enabled"), "false");
}

// Any text that the box can hold, on any card, in any order: it is stored, comes back, and stops the table.
TEST_F(Editor, AnyTextOnAnyCardComesBack) {
    open(Package::west_wins_all());
    std::mt19937 random(5);
    std::map<int, std::string> texts;
    for (int round = 0; round < 150; ++round) {
        const int card = static_cast<int>(random() % 52) + 1;
        choose(card);
        std::string text(1, static_cast<char>('a' + random() % 26));
        while (text.size() < random() % 253 + 1) {
            const auto kind = random() % 12;
            text += kind == 0 ? "\r\n" : kind == 1 ? " " : std::string(1, static_cast<char>(0xA1 + random() % 90));
        }
        text += "z";
        store(platform::to_utf8(text));
        texts[card] = text;
    }
    program("key frmTavrin05 escape\nclick frmTavrin01.cmdKaartenEditor\nselect frmTavrin05.lstSpellen 0");
    for (int card = 1; card <= 52; ++card) {
        EXPECT_EQ(marker(card), texts.contains(card) ? "ja" : "nee");
        if (!texts.contains(card)) continue;
        choose(card);
        EXPECT_EQ(script::unescaped(platform::from_utf8(get("txtInformatie.Text"))), texts[card]);
    }
    program(
        "key frmTavrin05 escape\nselect frmTavrin01.lstSpellen 0\nclick frmTavrin01.cmdTavrin\nclick "
        "frmTavrin02.cmdStart");
    for (int card = 1; card <= 51; ++card) {
        EXPECT_EQ(program.get("frmTavrin02.cmdVerder.Visible"), texts.contains(card) ? "true" : "false") << card;
        program(texts.contains(card) ? "click frmTavrin02.cmdVerder" : "tick frmTavrin02.timSpeelKaart");
    }
}

class Overview : public Editor {
protected:
    void open_overview(const Package& package) {
        open(package);
        program("click frmTavrin05.cmdToonSpel");
    }
    std::string get(const std::string& name) { return program.get("frmTavrin06." + name); }
};

TEST_F(Overview, ShowsTheDealInSmallFacesAndComesBackToTheEditor) {
    open_overview(Package::west_wins_all());
    EXPECT_EQ(get("Caption"), "Spel 12");
    EXPECT_EQ(program("screens"), "frmTavrin06 visible\nfrmTavrin05 hidden\nfrmTavrin01 hidden\n.");
    EXPECT_EQ(get("picKaartNoord(1).Picture"), "2114") << "from the lowest card up";
    EXPECT_EQ(get("picKaartNoord(13).Left"), "4600");
    EXPECT_EQ(get("picKaartZuid(1).Top"), "4265");
    EXPECT_EQ(get("picKaartWest(1).Left"), "100");
    EXPECT_EQ(get("picKaartWest(1).Top"), "1720");
    EXPECT_EQ(get("picKaartOost(1).Top"), std::to_string(1720 + 3 * 300))
        << "diamonds come last, empty suits keep their row";
    EXPECT_EQ(get("picKaartNoord(0).Visible"), "false");
    program("key frmTavrin06 escape");
    EXPECT_EQ(program("screens"), "frmTavrin05 visible\nfrmTavrin01 hidden\n.");
}

TEST_F(Overview, NothingLiesOnAnotherThereOrInTheEditorAndHandsStandAtTheirSeats) {
    program.add_samples();
    program("start\nclick frmTavrin01.cmdKaartenEditor");
    const std::array<std::string, 4> hands{"picKaartNoord", "picKaartOost", "picKaartZuid", "picKaartWest"};
    for (int deal = 0; deal < 5; ++deal) {
        program("select frmTavrin05.lstSpellen " + std::to_string(deal));
        EXPECT_EQ(on_each_other(program, "frmTavrin05"), std::vector<std::string>{});
        program("click frmTavrin05.cmdToonSpel");
        EXPECT_EQ(on_each_other(program, "frmTavrin06"), std::vector<std::string>{});
        EXPECT_EQ(around_the_table(program, "frmTavrin06", hands), std::vector(hands.begin(), hands.end()));
        program("key frmTavrin06 escape");
    }
}

TEST_F(Overview, LongRowOfOostSlidesLeftOfTheFrame) {
    open_overview(Package::west_wins_all());
    // 13 steps of 570 and a card of 1005 must end before 7140 - 128, in steps of 300 from the start.
    const double left = std::stod(get("picKaartOost(1).Left"));
    EXPECT_LE(13 * 570 + left + 1005, 7140 - 128);
    EXPECT_GT(13 * 570 + left + 300 + 1005, 7140 - 128);
}

TEST_F(Overview, ScalesWithTheWindowAndCapsItsFonts) {
    open_overview(Package::west_wins_all());
    const double width = std::stod(get("Width"));
    const double height = std::stod(get("Height"));
    const double button = std::stod(get("cmdTerug.Width"));
    const double font = std::stod(get("cmdTerug.FontSize"));
    const auto resize = [&](double factor) {
        program("resize frmTavrin06 " + std::to_string(width * factor) + " " + std::to_string(height * factor));
    };
    resize(2);
    EXPECT_NEAR(std::stod(get("cmdTerug.Width")), 2 * button, 0.01);
    EXPECT_NEAR(std::stod(get("picKaartNoord(13).Left")), 2 * 4600, 0.1);
    EXPECT_EQ(get("cmdTerug.FontSize"), "11.5");
    resize(0.5);
    EXPECT_NEAR(std::stod(get("cmdTerug.FontSize")), font / 2, 0.01);
    resize(1);
    EXPECT_NEAR(std::stod(get("picKaartNoord(13).Left")), 4600, 0.1);
    EXPECT_EQ(get("picKaartNoord(13).Picture"), "2126");
    program("window frmTavrin06 minimised\nwindow frmTavrin06 normal");
    EXPECT_NEAR(std::stod(get("cmdTerug.Width")), button, 0.01);
}

TEST_F(Overview, DamagedDealsShowWhatTheyHold) {
    Package package = Package::west_wins_all();
    package.rows.resize(2);
    open_overview(package);
    EXPECT_EQ(program.shared("foutNummer"), "0");
    EXPECT_EQ(get("picKaartNoord(2).Visible"), "true");
    EXPECT_EQ(get("picKaartNoord(3).Visible"), "false");
}

}  // namespace
