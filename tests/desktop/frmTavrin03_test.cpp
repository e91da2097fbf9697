#include "prepare/frmTavrin03.h"
#include "desktop/Look.h"
#include "desktop/RealProgram.h"
#include "library/frmTavrin01.h"

namespace {

class PreparationScreen : public RealProgram {
protected:
    PreparationScreen() {
        start_program();
        click(screen<library::frmTavrin01>().cmdNieuwSpel);
        click_line(screen<prepare::frmTavrin03>().lstRVLX, "Spel 001");
    }
};

TEST_F(PreparationScreen, CardsArePaintedInTheColourOfTheirState) {
    auto& preparation = screen<prepare::frmTavrin03>();
    const auto expect_painted = [&](cards::Kleur suit, int seat, base::Colour colour) {
        EXPECT_EQ(painted(preparation.labels.rij(seat, suit)(0)).name(), desktop::colour(colour).name()) << seat;
    };
    using enum cards::Kleur;
    expect_painted(Ruiten, 4, prepare::kInSlag);  // the ace is the lead
    expect_painted(Ruiten, 1, prepare::kInHand);
    for (const int seat : {1, 2, 3})
        click(preparation.labels.rij(seat, Ruiten)(0));
    for (const int seat : {1, 2, 3, 4})
        expect_painted(Ruiten, seat, prepare::kGespeeld);
    expect_painted(Schoppen, 1, prepare::kInHand);
}

TEST_F(PreparationScreen, AQuestionIsTypedByRealKeys) {
    forms::TextBox& question = screen<prepare::frmTavrin03>().txtVraag;
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
}

}  // namespace
