#include <QElapsedTimer>
#include <algorithm>
#include <filesystem>

#include "base/Text.h"
#include "cards/Kaart.h"
#include "desktop/RealProgram.h"
#include "desktop/Text.h"
#include "library/frmTavrin01.h"
#include "platform/IniFile.h"
#include "table/frmTavrin02.h"

namespace {

const std::string kDeal = "QVT_Spel 001";
constexpr int kInterval = 100;
constexpr int kPatience = 20000;

class TableScreen : public RealProgram {
protected:
    frmTavrin02& open_table() {
        set("Standaard", "Snelheid", std::to_string(kInterval));
        start_program();
        auto& main = screen<frmTavrin01>();
        click_line(main.lstSpellen, kDeal);
        click(main.cmdTavrin);
        return screen<frmTavrin02>();
    }
    std::string stem() const { return "aftavrin/" + kDeal + "/" + kDeal; }

    // The text that is stored for a card, as words.
    QString stored(int card) const {
        const std::string record = read(stem() + " informatie.txt").substr((card - 1) * std::size_t{532}, 532);
        return desktop::to_qt(replaced(record.substr(record.find('|') + 1), "~", " ")).simplified();
    }
};

TEST_F(TableScreen, ALineOfTheListOpensItsTable) {
    start_program();
    auto& main = screen<frmTavrin01>();
    std::vector<std::string> folders;
    for (const auto& entry : std::filesystem::directory_iterator(path("aftavrin")))
        folders.push_back(entry.path().filename().string());
    std::vector<std::string> shown_lines = lines(main.lstSpellen);
    std::ranges::sort(folders);
    std::ranges::sort(shown_lines);
    EXPECT_EQ(shown_lines, folders);

    click(main.cmdTavrin);
    EXPECT_EQ(programma.windows.active(), &main) << "no deal is chosen yet";
    click_line(main.lstSpellen, kDeal);
    click(main.cmdTavrin);
    auto& table = screen<frmTavrin02>();
    EXPECT_EQ(programma.windows.find("frmTavrin01"), nullptr);
    EXPECT_EQ(shown(table.txtVraag).simplified(),
              desktop::to_qt(replaced(read(stem() + " vraag.txt"), "~", " ")).simplified());
}

TEST_F(TableScreen, ADealIsPlayedByTheRealTimerAndStopsAtEachText) {
    auto& table = open_table();
    QElapsedTimer clock;
    clock.start();
    click(table.cmdStart);
    int texts = 0;
    int since = 1;  // the card that was played at once
    do {
        const bool stopped =
            QTest::qWaitFor([&] { return table.cmdVerder.Visible() || gedeeld().kaartTeller == 52; }, kPatience);
        ASSERT_TRUE(stopped && !table.timSpeelKaart.Enabled());
        const int card = gedeeld().kaartTeller;
        EXPECT_GE(clock.elapsed(), (card - since) * kInterval * 9 / 10) << card;
        EXPECT_EQ(shown(table.txtInformatie).simplified(), stored(card)) << card;
        for (int between = since + 1; between < card; ++between)
            EXPECT_TRUE(stored(between).isEmpty()) << between;

        QStringList cut;
        for (int i = 0; i < table.lstKnipTekst.ListCount(); ++i)
            cut << desktop::to_qt(table.lstKnipTekst.List(i));
        EXPECT_EQ(drawn_lines(table.txtInformatie), cut << QString()) << "no line that was cut breaks again";
        ++texts;
        since = card + 1;
        if (card == 4) {
            const Pieces row = split(split(read(stem() + " aftavrin.txt"), "\r\n")[0], "|");
            for (int seat = 1; seat <= 4; ++seat) {
                EXPECT_EQ(widget(table.picPlay(seat)).accessibleName(),
                          desktop::to_qt(kaart::titel(numeric_value(row[seat]))));
            }
        }
        if (table.cmdVerder.Visible()) accelerator(table.cmdVerder);
        clock.restart();
    } while (gedeeld().kaartTeller < 52);
    EXPECT_GE(texts, 12);
    EXPECT_FALSE(widget(table.cmdVerder).isVisible());
    EXPECT_EQ(numeric_value(table.lblSlagenNZ.Caption()) + numeric_value(table.lblSlagenOW.Caption()), 13);
}

TEST_F(TableScreen, TheSpeedBarGoesRoundAtBothEndsAndIsStored) {
    auto& table = open_table();
    const struct {
        QStyle::SubControl arrow;
        const char* speed;
    } rows[] = {{QStyle::SC_ScrollBarAddLine, "3000"},
                {QStyle::SC_ScrollBarAddLine, "2900"},
                {QStyle::SC_ScrollBarSubLine, "3000"},
                {QStyle::SC_ScrollBarSubLine, "100"},
                {QStyle::SC_ScrollBarSubLine, "200"}};
    EXPECT_EQ(shown(table.txtSnelHeid), "100");
    for (const auto& row : rows) {
        click_arrow(table.vscrSnelHeid, row.arrow);
        EXPECT_EQ(shown(table.txtSnelHeid), row.speed);
        EXPECT_EQ(read_setting(programma.instellingen(), "Standaard", "Snelheid"), row.speed);
    }
}

TEST_F(TableScreen, EscapeInTheMiddleOfThePlayLeadsBack) {
    auto& table = open_table();
    click(table.cmdStart);
    accelerator(table.cmdVerder);
    EXPECT_TRUE(table.timSpeelKaart.running());
    key(Qt::Key_Escape);
    EXPECT_EQ(programma.windows.find("frmTavrin02"), nullptr);
    QTest::qWait(3 * kInterval);  // a tick that came now would find no table
    auto& main = screen<frmTavrin01>();
    EXPECT_EQ(highlighted(main.lstSpellen), std::vector<int>{});
    EXPECT_FALSE(widget(main.cmdTavrin).isEnabled());
    key(Qt::Key_Escape);
    EXPECT_TRUE(ended);
}

}  // namespace
