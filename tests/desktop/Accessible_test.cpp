#include <QAccessible>
#include <QToolTip>
#include <map>

#include "annotate/frmTavrin05.h"
#include "annotate/frmTavrin06.h"
#include "desktop/RealProgram.h"
#include "library/frmTavrin01.h"
#include "prepare/frmTavrin03.h"
#include "table/frmTavrin02.h"

namespace {

// What a screen reader is told.
class Spoken : public RealProgram {
protected:
    QAccessibleInterface& reader(const forms::Control& control) {
        return *QAccessible::queryAccessibleInterface(&widget(control));
    }
    std::string name(const forms::Control& control) { return reader(control).text(QAccessible::Name).toStdString(); }
    bool is_silent(const forms::Control& control) {
        return name(control).empty() &&
               (reader(control).state().invisible || reader(control).role() == QAccessible::Pane);
    }
    // What was announced last, wherever the keyboard is.
    std::string said() {
        const QWidget* listening = window().focusWidget() ? window().focusWidget() : &window();
        return listening->accessibleDescription().toStdString();
    }
};

TEST_F(Spoken, TheTableNamesItsSymbolsAndWhoPlaysWhat) {
    set("Standaard", "Snelheid", "100");
    start_program();
    click_line(screen<library::frmTavrin01>().lstSpellen, "QVT_Spel 001");
    click(screen<library::frmTavrin01>().cmdTavrin);
    auto& table = screen<table::frmTavrin02>();
    EXPECT_EQ(name(table.lblContractWie) + " " + name(table.picContract), "Zuid: 4 Harten");
    EXPECT_EQ(name(table.txtSnelHeid), "Afspeelsnelheid:");
    EXPECT_EQ(name(table.txtVraag), "Vraag");
    EXPECT_TRUE(is_silent(table.cmdFocus));
    EXPECT_TRUE(is_silent(table.picPlay(cards::kWest))) << "nothing lies there yet";
    EXPECT_EQ(reader(table.picKaart(cards::kNoord)(1)).role(), QAccessible::Graphic);

    click(table.cmdStart);
    ASSERT_TRUE(QTest::qWaitFor([&] { return table.cmdVerder.Visible(); }, 20000));
    EXPECT_NE(said().find("West legt ruitenaas op tafel"), std::string::npos) << said();
    EXPECT_NE(name(table.picPlay(cards::kWest)).find("West: "), std::string::npos);
    EXPECT_EQ(name(table.txtInformatie), "Tekst bij de kaart");
    accelerator(table.cmdVerder);
    const std::string before = said();
    ASSERT_TRUE(QTest::qWaitFor([&] { return said() != before; }, 5000));
    EXPECT_TRUE(std::ranges::any_of(std::array{"Noord: ", "Oost: ", "Zuid: ", "West: "}, [&](const char* seat) {
        return said().starts_with(seat);
    })) << said();
}

TEST_F(Spoken, TheEditorNamesNumbersWithTheirStateAndTheOverviewTheSeats) {
    start_program();
    click(screen<library::frmTavrin01>().cmdKaartenEditor);
    auto& editor = screen<annotate::frmTavrin05>();
    EXPECT_EQ(name(editor.lstSpellen), "Spellen");
    click_line(editor.lstSpellen, "QVT_Spel 001");
    std::map<std::string, int> states;
    for (int i = 0; i < cards::kKaarten; ++i) {
        const std::string said = name(editor.picYesNo(i));
        const std::string number = "Nummer " + std::to_string(i + 1) + ", ";
        ASSERT_TRUE(said.starts_with(number)) << said;
        ++states[said.substr(number.size())];
        EXPECT_EQ(widget(editor.picYesNo(i)).toolTip().isEmpty(), !said.ends_with("met tekst")) << said;
    }
    EXPECT_EQ(states["met tekst"] + states["zonder tekst"], cards::kKaarten);
    EXPECT_GT(states["met tekst"], 0);
    EXPECT_EQ(reader(editor.picYesNo(3)).role(), QAccessible::Button);
    reader(editor.picYesNo(3)).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(name(editor.picYesNo(3)), "Nummer 4, wordt geschreven");
    EXPECT_EQ(name(editor.txtInformatie), "Bijschrift kaarten");
    click(editor.cmdVoorBeeld);
    EXPECT_EQ(name(editor.txtVoorbeeld), "Voorbeeld van de tekst");
    click(editor.cmdSluiten);

    click(editor.cmdToonSpel);
    auto& overview = screen<annotate::frmTavrin06>();
    for (const auto& [seat, word] :
         std::map<int, std::string>{{1, "Noord: "}, {2, "Oost: "}, {3, "Zuid: "}, {4, "West: "}})
        EXPECT_TRUE(name(overview.picKaart(seat)(1)).starts_with(word)) << name(overview.picKaart(seat)(1));
}

TEST_F(Spoken, TheCursorSaysWhatItStandsOn) {
    start_program();
    click(screen<library::frmTavrin01>().cmdNieuwSpel);
    auto& preparation = screen<prepare::frmTavrin03>();
    click_line(preparation.lstRVLX, "Spel 001");
    EXPECT_EQ(name(preparation.txtVraag), "Vraag");
    EXPECT_EQ(name(preparation.txtAntwoord), "Antwoord");
    EXPECT_EQ(name(preparation.msfgTavrin), "Gespeelde slagen");
    const forms::Frame& hand = preparation.labels.fra(cards::kWest);
    const auto under_cursor = [&] {
        for (const cards::Kleur suit : cards::kKleuren) {
            for (int i = 0; i <= prepare::kHoogste; ++i) {
                const forms::Label& label = preparation.labels.rij(cards::kWest, suit)(i);
                if (label.Visible && place_of(label) == marked()) return name(label);
            }
        }
        return std::string("nothing");
    };
    tab_to(hand);
    EXPECT_EQ(said(), under_cursor()) << "as soon as the keyboard is there";
    const std::string first = said();
    for (const auto arrow : {Qt::Key_Right, Qt::Key_Down}) {
        key(arrow);
        EXPECT_EQ(said(), under_cursor());
        EXPECT_NE(said(), first);
    }
    key(Qt::Key_Space);
    tab_to(preparation.msfgTavrin);
    EXPECT_EQ(said(), "Noord, 1");
    key(Qt::Key_End);
    EXPECT_EQ(said(), "Noord, 13");
}

TEST_F(Spoken, ASymbolThatIsTypedIsALetterAndAFullBoxSaysSo) {
    start_program();
    click(screen<library::frmTavrin01>().cmdKaartenEditor);
    auto& editor = screen<annotate::frmTavrin05>();
    click_line(editor.lstSpellen, "QVT_Spel 002");
    click(editor.picYesNo(50));
    compose(QStringLiteral("\u2660\u2661\uFE0F\u2666\uFE0E\u2663"));
    EXPECT_EQ(editor.txtInformatie.Text(), "SHRK");
    EXPECT_EQ(shown(editor.txtInformatie).toStdString(), "SHRK");
    EXPECT_FALSE(QToolTip::isVisible());
    compose(QString(300, u'x'));
    EXPECT_EQ(editor.txtInformatie.Text().size(), 255U);
    EXPECT_EQ(QToolTip::text().toStdString(), "Er passen 255 tekens in deze tekst; hij is nu vol.");
}

}  // namespace
