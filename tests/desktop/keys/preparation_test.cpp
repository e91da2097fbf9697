// The preparation screen by keys alone.
#include <filesystem>
#include <fstream>
#include <map>

#include "base/Text.h"
#include "cards/Kaart.h"
#include "desktop/RealProgram.h"
#include "library/frmTavrin01.h"
#include "prepare/frmTavrin03.h"

namespace fs = std::filesystem;

namespace {

class PreparationKeys : public RealProgram {
protected:
    PreparationKeys() { start_program(); }

    prepare::frmTavrin03& open(const std::string& deal) {
        accelerator(screen<library::frmTavrin01>().cmdNieuwSpel);
        auto& preparation = screen<prepare::frmTavrin03>();
        tab_to(preparation.lstRVLX);
        while (preparation.lstRVLX.Text() != deal &&
               preparation.lstRVLX.ListIndex() + 1 < preparation.lstRVLX.ListCount())
            key(Qt::Key_Down);
        EXPECT_EQ(preparation.lstRVLX.Text(), deal);
        return preparation;
    }

    static int seat_to_play(const prepare::frmTavrin03& preparation) {
        return 1 + static_cast<int>(std::string("NOZW").find(preparation.lstKlaar.Tag()));
    }
    // A card that the seat may play: of the suit led, otherwise of any.
    static forms::Label* card_to_play(prepare::frmTavrin03& preparation) {
        const int seat = seat_to_play(preparation);
        const std::string led = base::trimmed(preparation.GevraagdeKleur);
        forms::Label* any = nullptr;
        for (const cards::Kleur suit : cards::kKleuren) {
            for (int i = 0; i <= prepare::kHoogste; ++i) {
                forms::Label& label = preparation.labels.rij(seat, suit)(i);
                if (!label.Visible || !(label.BackColor == prepare::kInHand)) continue;
                if (cards::gegevens(suit).naam[0] == led[0]) return &label;
                any = &label;
            }
        }
        return any;
    }
    // With the cursor of the hand.
    void play_by_cursor(prepare::frmTavrin03& preparation, const forms::Label& card) {
        tab_to(preparation.labels.fra(seat_to_play(preparation)));
        cursor_to(card);
        key(Qt::Key_Space);
    }
    void cursor_to(const forms::Control& card) {
        for (int i = 0; i < 3; ++i)
            key(Qt::Key_Up);
        key(Qt::Key_Home);
        for (int i = 0; i < 3 && marked().center().y() != place_of(card).center().y(); ++i)
            key(Qt::Key_Down);
        for (int i = 0; i < card.index(); ++i)
            key(Qt::Key_Right);
        ASSERT_EQ(marked(), place_of(card));
    }
    void play_by_letters(const forms::Label& card) {
        const std::string value = card.Caption() == "T" && card.name()[3] == 'H' ? "10" : card.Caption();
        type(QString::fromStdString(card.name().substr(3, 1) + value).toLower());
    }
    template <class Play>
    void record(prepare::frmTavrin03& preparation, Play play) {
        for (int card = 0; card < cards::kKaarten && !preparation.cmdOpslaan.Enabled; ++card)
            play(card, *card_to_play(preparation));
        ASSERT_TRUE(preparation.cmdOpslaan.Enabled());
    }
    std::map<std::string, std::string> files_of(const std::string& package) {
        std::map<std::string, std::string> files;
        for (const auto& file : fs::directory_iterator(path("aftavrin/" + package))) {
            std::ifstream stream(file.path(), std::ios::binary);
            files[file.path().filename()] = {std::istreambuf_iterator<char>(stream), {}};
        }
        return files;
    }
};

TEST_F(PreparationKeys, AWholeDealIsRecordedAsByTheMouse) {
    const std::string package = "QVT_Spel 001";
    fs::remove_all(path("aftavrin/" + package));
    auto& preparation = open("Spel 001");
    record(preparation, [&](int, const forms::Label& card) { click(card); });
    accelerator(preparation.cmdOpslaan);
    EXPECT_FALSE(preparation.cmdOpslaan.Enabled());
    const auto by_mouse = files_of(package);
    fs::remove_all(path("aftavrin/" + package));
    key(Qt::Key_Escape);

    auto& again = open("Spel 001");
    record(again, [&](int number, const forms::Label& card) {
        const int seat = seat_to_play(again);
        if (number % 3 == 1) return play_by_letters(card);
        play_by_cursor(again, card);
        ASSERT_EQ(focused(), again.labels.fra(seat).name());
        ASSERT_NE(again.focus(), &again.labels.fra(seat)) << "the program never learns of the cursor";
    });
    accelerator(again.cmdOpslaan);
    EXPECT_EQ(files_of(package), by_mouse);
}

TEST_F(PreparationKeys, ARefusalLeavesTheCursorOnItsCard) {
    auto& preparation = open("Spel 001");
    const forms::Label& lead = preparation.labels.rij(4, cards::Kleur::Ruiten)(0);
    const forms::Label& wrong_suit = preparation.labels.rij(1, cards::Kleur::Klaveren)(1);
    const forms::Label& wrong_seat = preparation.labels.rij(2, cards::Kleur::Ruiten)(1);
    for (const forms::Label* card : {&lead, &wrong_seat, &wrong_suit}) {
        const auto told = platform.told.size();
        tab_to(*card->container().as_control());
        cursor_to(*card);
        key(Qt::Key_Return);
        EXPECT_EQ(platform.told.size(), told + 1) << card->name();
        EXPECT_EQ(preparation.focus(), &preparation.cmdFocus);
        EXPECT_EQ(marked(), place_of(*card)) << card->name();
    }
    // What was refused by the mouse leaves the keyboard where the program has it.
    click(wrong_suit);
    EXPECT_EQ(focused(), "cmdFocus");
    EXPECT_EQ(marked(), QRect());
}

TEST_F(PreparationKeys, LettersPlayACardOfTheSeatToPlay) {
    auto& preparation = open("Spel 001");
    const auto played = [&](const forms::Label& card) { return card.BackColor == prepare::kInSlag; };
    const forms::Label& own = *card_to_play(preparation);
    const QString letters = QString::fromStdString("R" + own.Caption());

    tab_to(preparation.txtVraag);
    type(letters);
    EXPECT_FALSE(played(own));
    EXPECT_TRUE(shown(preparation.txtVraag).contains(letters));
    tab_to(preparation.lstRVLX);
    type(letters);
    EXPECT_FALSE(played(own)) << "letters look for a line in a list";
    tab_to(preparation.cmdTerug);
    type(QString::fromStdString("R" + preparation.labels.rij(2, cards::Kleur::Ruiten)(0).Caption()));
    EXPECT_FALSE(played(preparation.labels.rij(2, cards::Kleur::Ruiten)(0))) << "it is another seat's turn";
    type(QString::fromStdString("R" + preparation.labels.rij(4, cards::Kleur::Ruiten)(0).Caption()));
    EXPECT_TRUE(played(preparation.labels.rij(4, cards::Kleur::Ruiten)(0))) << "the lead is not taken back";
    EXPECT_TRUE(platform.told.empty());
    type(letters);
    EXPECT_TRUE(played(own));
    EXPECT_EQ(focused(), "cmdTerug");

    const forms::Label& next = *card_to_play(preparation);
    play_by_letters(next);
    click(own);  // taken back
    play_by_letters(own);
    EXPECT_TRUE(played(own));
    play_by_letters(next);
    EXPECT_TRUE(played(next)) << "letters take no card back";
}

TEST_F(PreparationKeys, TheGridIsClickedAtItsCursor) {
    auto& preparation = open("Spel 001");
    tab_to(preparation.cmdTerug);
    for (int card = 0; card < 9; ++card)
        play_by_letters(*card_to_play(preparation));
    tab_to(preparation.msfgTavrin);
    key(Qt::Key_Up);
    key(Qt::Key_Up);
    key(Qt::Key_Down);
    for (const auto answer : {platform::Answer::No, platform::Answer::Yes}) {
        platform.answers = {answer};
        key(Qt::Key_Space);
        ASSERT_FALSE(platform.told.empty());
        EXPECT_EQ(platform.told.back(), "Vanaf slag 2 de kaarten terug plaatsen?");
        EXPECT_EQ(focused(), "msfgTavrin");
        EXPECT_EQ(preparation.focus(), &preparation.cmdFocus);
        const bool empty = preparation.msfgTavrin.cell(2, 1).text.empty();
        EXPECT_EQ(empty, answer == platform::Answer::Yes);
    }
}

}  // namespace
