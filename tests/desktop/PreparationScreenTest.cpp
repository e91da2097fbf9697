#include <QTableWidget>
#include <QTextEdit>
#include <filesystem>
#include <string_view>

#include "base/Text.h"
#include "desktop/Look.h"
#include "desktop/RealProgram.h"
#include "desktop/Text.h"
#include "library/frmTavrin01.h"
#include "prepare/frmTavrin03.h"

namespace {

constexpr std::string_view kRanks = "23456789TBVHA";
constexpr std::string_view kSuits = "SHRK";

// The play that is recorded in the sample package of the deal: one row a trick, the order of the seats and then the
// card codes of Noord, Oost, Zuid and West.
struct Played {
    int seat;
    int suit;
    char rank;
};

class PreparationScreen : public RealProgram {
protected:
    PreparationScreen() {
        const std::string file = "aftavrin/QVT_Spel 001/QVT_Spel 001 aftavrin.txt";
        recorded = read(file);
        for (const std::string& row : split(recorded, "\r\n")) {
            if (row.empty()) continue;
            const Pieces parts = split(row, "|");
            for (const char digit : parts[0]) {
                const int seat = digit - '0';
                const int card = numeric_value(parts[seat]) - 2201;
                play.push_back({seat, card / 13, kRanks[static_cast<std::size_t>(card % 13)]});
            }
        }
        std::filesystem::remove_all(path("aftavrin/QVT_Spel 001"));
        start_program();
        click(screen<frmTavrin01>().cmdNieuwSpel);
        click_line(preparation().lstRVLX, "Spel 001");
    }
    frmTavrin03& preparation() { return screen<frmTavrin03>(); }

    forms::Label& label(const Played& card) {
        auto& row = preparation().labels.rij(card.seat, static_cast<kaart::Kleur>(card.suit));
        for (int i = 0; i <= prepare::kHoogste; ++i) {
            if (row(i).Visible() && row(i).Caption() == std::string(1, card.rank)) return row(i);
        }
        throw std::logic_error("no such card");
    }
    void play_to(std::size_t count) {
        for (; played < count; ++played)
            click(label(play[played]));
    }
    // What the user sees of every card and cell, against the play itself.
    void expect_shown() {
        const std::size_t closed = played / 4 * 4;
        for (std::size_t i = 0; i < play.size(); ++i) {
            const Colour colour = i < closed ? prepare::kGespeeld : i < played ? prepare::kInSlag : prepare::kInHand;
            EXPECT_EQ(painted(label(play[i])).name(), desktop::colour(colour).name())
                << "card " << i << " after " << played;
        }
        const auto& table = widget_as<QTableWidget>(preparation().msfgTavrin);
        for (std::size_t i = 0; i < play.size(); ++i) {
            const Played& card = play[i];
            const QString text = QString("%1 %2").arg(kSuits[static_cast<std::size_t>(card.suit)]).arg(card.rank);
            EXPECT_EQ(table.item(static_cast<int>(i / 4) + 1, card.seat)->text(), i < played ? text : "") << i;
        }
    }

    std::string recorded;
    std::vector<Played> play;
    std::size_t played = 1;  // the opening lead
};

TEST_F(PreparationScreen, CardsFollowTheClicksAndTheGridTakesThemBack) {
    expect_shown();
    click(label(play[2]));  // not its turn
    ASSERT_EQ(platform.told.size(), 1U);
    click(label(play[0]));  // the lead stays
    ASSERT_EQ(platform.told.size(), 2U);
    expect_shown();
    for (const std::size_t count : {3U, 4U, 10U}) {
        play_to(count);
        expect_shown();
    }
    const forms::FlexGrid& grid = preparation().msfgTavrin;
    click_cell(grid, 2, 3);
    EXPECT_EQ(platform.told.back(), "Vanaf slag 2 de kaarten terug plaatsen?");
    expect_shown();
    platform.answers = {Answer::Yes};
    click_cell(grid, 2, 3);
    played = 4;
    expect_shown();
    EXPECT_EQ(platform.told.size(), 4U);
}

TEST_F(PreparationScreen, AWholePlayThatIsClickedIsStoredAsItWas) {
    play_to(play.size());
    EXPECT_EQ(platform.told, (std::vector<std::string>{"Klik op de knop Opslaan om uw spel op te slaan."}));
    expect_shown();
    accelerator(preparation().cmdOpslaan);
    EXPECT_EQ(read("aftavrin/QVT_Spel 001/QVT_Spel 001 aftavrin.txt"), recorded);
    EXPECT_EQ(lines(preparation().lstAfTavrin).size(), 5U);
}

TEST_F(PreparationScreen, AQuestionIsTypedByRealKeys) {
    forms::TextBox& question = preparation().txtVraag;
    click(question);
    key(Qt::Key_A, Qt::ControlModifier);
    type(QString::fromUtf8("Één caf"));
    compose(QString::fromUtf8("é"));
    type(QString::fromUtf8("\nkost € 2"));
    key(Qt::Key_Home);
    type("x");
    key(Qt::Key_Delete);
    key(Qt::Key_Backspace);
    EXPECT_EQ(question.Text(), "\xC9\xE9n caf\xE9\r\nost \x80 2");
    EXPECT_EQ(shown(question), QString::fromUtf8("Één café\nost € 2"));
    key(Qt::Key_Tab);
    EXPECT_FALSE(widget(question).hasFocus());
    key(Qt::Key_Escape);
    screen<frmTavrin01>();
}

}  // namespace
