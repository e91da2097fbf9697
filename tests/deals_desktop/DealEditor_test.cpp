// A deal is typed in and mended by keys.
#include "deals_desktop/DealEditor.h"

#include "deals_desktop/Notation.h"
#include "deals_desktop/TestWindow.h"

namespace {

using deals_desktop::DealModel;

TEST(TypedSuits, TakeDutchAndEnglishLettersAndNothingElse) {
    using exchange::Suit;
    const auto ranks = [](const char* text) {
        const auto hand = deals_desktop::typed_suit(Suit::Hearts, QString::fromUtf8(text));
        std::string all;
        for (const exchange::Card& card : hand ? hand->cards() : std::vector<exchange::Card>())
            all += exchange::letter_of_rank(card.rank);
        return hand ? all : "?";
    };
    constexpr struct {
        const char* typed;
        const char* ranks;
    } kRows[] = {{"AHVB10", "AKQJT"}, {"akqjt", "AKQJT"}, {"9 10 v", "QT9"}, {"", ""},    {"-", ""},
                 {"AA", "?"},         {"1", "?"},         {"A♥", "?"},       {"KH", "?"}, {"X", "?"}};
    for (const auto& row : kRows)
        EXPECT_EQ(ranks(row.typed), row.ranks) << row.typed;
}

TEST(TypedCards, HaveTheirSuitInDutchOrEnglishOrAsASymbol) {
    constexpr struct {
        const char* typed;
        const char* card;
    } kRows[] = {{"SH", "SK"},  {"hh", "HK"},  {"RV", "DQ"}, {"DQ", "DQ"}, {"KB", "CJ"}, {"CK", "CK"},
                 {"K10", "CT"}, {"s10", "ST"}, {"♦T", "DT"}, {"♠2", "S2"}, {"R", "?"},   {"R-", "?"},
                 {"A", "?"},    {"RA3", "?"},  {"R1", "?"},  {"XA", "?"},  {"AR", "?"}};
    for (const auto& row : kRows) {
        const auto card = deals_desktop::typed_card(QString::fromUtf8(row.typed));
        EXPECT_EQ(card ? exchange::text_of(*card) : "?", row.card) << row.typed;
        if (!card) continue;
        EXPECT_EQ(deals_desktop::typed_card(deals_desktop::letters_of(*card)), card) << row.typed;
    }
}

class DealEditor : public TestWindow {
protected:
    void begin(const QString& button) {
        QTest::mouseClick(&find<QPushButton>(button), Qt::LeftButton);
        for (auto* const each : window->findChildren<deals_desktop::DealEditor*>()) {
            if (each->isVisible()) editor = each;  // one that was closed may still go
        }
        ASSERT_TRUE(editor && QTest::qWaitForWindowActive(editor));
    }
    QLineEdit& field(const char* name) {
        for (QLineEdit* const each : editor->findChildren<QLineEdit*>()) {
            if (each->accessibleName() == QLatin1String(name)) return *each;
        }
        throw std::runtime_error(name);
    }
    void type(const char* name, const char* text) {
        field(name).selectAll();
        QTest::keyClicks(&field(name), QString::fromLatin1(text));
    }
    QPushButton& button(const QString& text) {
        for (QPushButton* const each : editor->findChildren<QPushButton*>()) {
            if (each->text().remove(QLatin1Char('&')) == text) return *each;
        }
        throw std::runtime_error(text.toStdString());
    }
    QComboBox& box(const char* name) {
        for (QComboBox* const each : editor->findChildren<QComboBox*>()) {
            if (each->accessibleName() == QLatin1String(name)) return *each;
        }
        throw std::runtime_error(name);
    }
    QComboBox& lead() { return *editor->findChildren<QComboBox*>().last(); }
    // What the row of the contract shows.
    std::string contract() {
        return (box("Hoogte van het contract").currentText() + box("Kleur van het contract").currentText() +
                box("Doublet").currentText() + QLatin1Char(' ') + box("Leider").currentText())
            .toStdString();
    }
    // Closes it without taking what was typed, and answers the question with that button.
    void leave(const QString& answer) {
        EXPECT_EQ(answered(answer, [&] { keys(*editor, Qt::Key_Escape); }), !answer.isEmpty());
    }
    void call(std::initializer_list<const char*> calls) {
        for (const char* const each : calls)
            QTest::mouseClick(&button(QString::fromUtf8(each)), Qt::LeftButton);
    }
    bool tells(const char* text) {
        for (const QLabel* const each : editor->findChildren<QLabel*>()) {
            if (each->text() == QString::fromUtf8(text)) return true;
        }
        return false;
    }
    // What stands beside the play.
    std::string told_of_play() { return play().parentWidget()->findChild<QLabel*>()->text().toStdString(); }
    QPlainTextEdit& play() {
        for (QPlainTextEdit* const each : editor->findChildren<QPlainTextEdit*>()) {
            if (each->accessibleName() == QStringLiteral("Spelverloop")) return *each;
        }
        throw std::runtime_error("no play");
    }
    void type_play(const std::string& text) {
        play().selectAll();
        QTest::keyClick(&play(), Qt::Key_Delete);
        for (const char letter : text) {
            if (letter == '\n') {
                QTest::keyClick(&play(), Qt::Key_Return);
            } else {
                QTest::keyClick(&play(), letter);
            }
        }
    }
    bool may_be_taken() { return button(QStringLiteral("Opnemen in de lijst")).isEnabled(); }
    void take() {
        QTest::mouseClick(&button(QStringLiteral("Opnemen in de lijst")), Qt::LeftButton);
        EXPECT_FALSE(editor->isVisible());
    }
    // Three hands; each has one suit.
    void type_hands() {
        type("Noord schoppen", "AHVB1098765432");
        type("Oost harten", "AKQJT98765432");
        type("Zuid ruiten", "AHVBT98765432");
    }

    deals_desktop::DealEditor* editor = nullptr;
};

TEST_F(DealEditor, TakesADealWithItsBiddingAndLeadWhichThenIsImported) {
    begin(QStringLiteral("Nieuw spel..."));
    EXPECT_FALSE(may_be_taken());
    type_hands();
    EXPECT_EQ(field("West klaveren").text(), QStringLiteral("AHVB1098765432")) << "the fourth hand fills itself";
    EXPECT_TRUE(may_be_taken());
    call({"pas", "1♥"});
    EXPECT_FALSE(button(QStringLiteral("1♣")).isEnabled()) << "not above one heart";
    EXPECT_FALSE(button(QStringLiteral("XX")).isEnabled());
    EXPECT_FALSE(may_be_taken());
    EXPECT_TRUE(tells("De bieding is nog niet af."));
    call({"X", "Terug", "7♦", "pas", "pas", "pas"});
    EXPECT_TRUE(tells("7♦ door Zuid"));
    keys(*editor->findChildren<QComboBox*>().last(), Qt::Key_Down);
    QTest::keyClicks(editor->findChildren<QPlainTextEdit*>().at(1), QStringLiteral("Hoe speelt u?"));
    take();
    EXPECT_EQ(cell(0, DealModel::Contract) + cell(0, DealModel::Declarer) + cell(0, DealModel::Lead) +
                  cell(0, DealModel::Texts) + cell(0, DealModel::Remark),
              "7♦Z♣A1");
    QTest::mouseClick(&find<QPushButton>(QStringLiteral("Importeren")), Qt::LeftButton);
    wait_for_work();
    EXPECT_NE(messages().find("Gemaakt: Spel 001"), std::string::npos) << messages();
    deals().save_to(QString::fromStdString(in("nieuw.pbn")));
    wait_for_work();
    open("nieuw.pbn", bytes_of("nieuw.pbn"));
    EXPECT_EQ(cell(1, DealModel::Contract) + cell(1, DealModel::Lead), "7♦♣A") << messages();
}

// As a newspaper prints it: without bidding.
TEST_F(DealEditor, TakesAContractWithoutBidding) {
    begin(QStringLiteral("Nieuw spel..."));
    type_hands();
    EXPECT_EQ(contract(), "--- -");
    QTest::keyClicks(&box("Hoogte van het contract"), QStringLiteral("4"));
    EXPECT_TRUE(tells("Kies ook de kleur, de leider."));
    EXPECT_EQ(box("Hoogte van het contract").accessibleDescription(), QStringLiteral("Kies ook de kleur, de leider."));
    EXPECT_FALSE(may_be_taken());
    keys(box("Kleur van het contract"), Qt::Key_End);
    EXPECT_FALSE(lead().isEnabled());
    QTest::keyClicks(&box("Leider"), QStringLiteral("Z"));
    EXPECT_FALSE(tells("Kies ook de leider."));
    keys(lead(), Qt::Key_Down);
    EXPECT_TRUE(may_be_taken());
    take();
    EXPECT_EQ(cell(0, DealModel::Contract) + cell(0, DealModel::Declarer) + cell(0, DealModel::Lead) +
                  cell(0, DealModel::Remark),
              "4SAZ♣A");
    begin(QStringLiteral("Wijzigen..."));
    EXPECT_EQ(contract(), "4SA- Zuid");
    keys(box("Doublet"), Qt::Key_Down);
    QTest::keyClicks(&box("Leider"), QStringLiteral("N"));
    EXPECT_TRUE(lead().currentText() == QStringLiteral("-")) << "another hand leads";
    take();
    EXPECT_EQ(cell(0, DealModel::Contract) + cell(0, DealModel::Declarer) + cell(0, DealModel::Lead), "4SA XN");
}

TEST_F(DealEditor, TheContractFollowsFromTheBiddingWhereThereIsOne) {
    begin(QStringLiteral("Nieuw spel..."));
    type_hands();
    keys(box("Hoogte van het contract"), Qt::Key_Down);
    keys(box("Kleur van het contract"), Qt::Key_Down);
    keys(box("Leider"), Qt::Key_Down);
    EXPECT_EQ(contract(), "1Klaveren ♣- Noord");
    call({"pas", "1♥"});
    EXPECT_FALSE(box("Leider").isEnabled());
    EXPECT_EQ(contract(), "--- -") << "not over yet";
    call({"X", "pas", "pas", "pas"});
    EXPECT_EQ(contract(), "1Harten ♥X Oost");
    take();
    begin(QStringLiteral("Wijzigen..."));
    call({"Terug", "Terug", "Terug", "Terug", "Terug", "Terug"});
    EXPECT_TRUE(box("Leider").isEnabled());
    EXPECT_EQ(contract(), "1Harten ♥X Oost") << "it stays where the bidding goes";
    take();
    const exchange::Board& board = *deals().model().entries()[0].board;
    EXPECT_TRUE(board.contract && !board.auction);
}

TEST_F(DealEditor, TheLastHandGoesOnFillingItselfUntilItIsTypedIn) {
    begin(QStringLiteral("Nieuw spel..."));
    type_hands();
    type("Noord schoppen", "AHVB109876543");
    EXPECT_EQ(field("West klaveren").text(), QString()) << "Noord has twelve cards";
    type("Noord klaveren", "A");
    EXPECT_EQ((field("West schoppen").text() + field("West klaveren").text()).toStdString(), "2HVB1098765432");
    type("West schoppen", "");
    keys(field("West schoppen"), Qt::Key_Delete);
    EXPECT_TRUE(tells("12 van de 13 kaarten"));
    type("Noord klaveren", "H");
    EXPECT_TRUE(tells("♣H heeft West ook")) << "what was typed stays";
}

TEST_F(DealEditor, AsksBeforeWhatWasTypedGoes) {
    begin(QStringLiteral("Nieuw spel..."));
    leave({});
    EXPECT_FALSE(editor->isVisible());
    begin(QStringLiteral("Nieuw spel..."));
    type("Noord schoppen", "A");
    leave(QStringLiteral("Verder typen"));
    EXPECT_TRUE(editor->isVisible());
    leave(QStringLiteral("Sluiten"));
    EXPECT_FALSE(editor->isVisible());
    EXPECT_EQ(deals().model().rowCount(), 0);
}

TEST_F(DealEditor, TellsBesideTheHandWhatIsWrong) {
    begin(QStringLiteral("Nieuw spel..."));
    type_hands();
    type("Noord schoppen", "AHVB109876543X");
    EXPECT_TRUE(tells("♠: dit zijn geen kaarten: AHVB109876543X"));
    EXPECT_FALSE(may_be_taken());
    type("Noord schoppen", "AHVB109876543");
    EXPECT_TRUE(tells("12 van de 13 kaarten"));
    EXPECT_EQ(field("Noord harten").accessibleDescription(), QStringLiteral("12 van de 13 kaarten"));
    type("Noord harten", "A");
    EXPECT_TRUE(tells("♥A heeft Oost ook"));
    EXPECT_FALSE(may_be_taken());
}

// Three no trump by Zuid; two tricks and a claim.
const std::string kPlayed =
    "[Board \"1\"]\n[Deal \"N:AQ2.A32.5432.432 J543.KJ5.AJT.765 K76.Q764.KQ9.AKQ T98.T98.876.JT98\"]\n"
    "[Declarer \"S\"]\n[Contract \"3NT\"]\n[Result \"9\"]\n"
    "[Play \"W\"]\nCJ C2 C5 CA {one}\nS8 SA S3 SK {two}\n*\n";

TEST_F(DealEditor, TellsHowFarATypedPlayGoesOrWhatIsWrongFirst) {
    open("club.pbn", kPlayed);
    begin(QStringLiteral("Wijzigen..."));
    EXPECT_EQ(play().toPlainText(), QStringLiteral("KB K2 K5 KA\nSH S8 SA S3"));
    EXPECT_EQ(told_of_play(), "Slag 3: Noord is aan de beurt");
    const struct {
        const char* typed;
        const char* told;
        bool taken;
    } kRows[] = {
        {"kb, k2\nC5 ca", "Slag 2: Zuid is aan de beurt\nTeksten bij kaarten die vervallen: 1", true},
        {"CJ C2,C5", "Slag 1: Zuid is aan de beurt\nTeksten bij kaarten die vervallen: 2", true},
        {"KB K2 K5 KA SH S8 SA S3 H2", "Slag 3: Oost is aan de beurt", true},
        {"KA", "Slag 1, kaart 1 (♣A): West heeft die kaart niet", false},
        {"KB K2 S3", "Slag 1, kaart 3 (♠3): Oost bekent geen kleur", false},
        {"KB K2 K5 KA KB", "Slag 2, kaart 5 (♣B): Zuid heeft die kaart niet", false},
        {"KB K2 K5 KA SH X SA", "Slag 2, kaart 6: dit is geen kaart: X", false},
        {"KB KA X", "Slag 1, kaart 2 (♣A): Noord heeft die kaart niet", false},
        {"", "Teksten bij kaarten die vervallen: 2", true},
    };
    for (const auto& row : kRows) {
        type_play(row.typed);
        EXPECT_EQ(told_of_play(), row.told) << row.typed;
        EXPECT_EQ(may_be_taken(), row.taken) << row.typed;
    }
}

TEST_F(DealEditor, JudgesThePlayAnewWhenHandsOrContractChange) {
    begin(QStringLiteral("Nieuw spel..."));
    type_play("KA S2 H2 R2");
    EXPECT_EQ(told_of_play(), "Het spelverloop telt pas met vier handen en een contract.");
    type_hands();
    EXPECT_FALSE(may_be_taken());
    call({"pas", "pas", "7SA", "pas", "pas", "pas"});
    EXPECT_EQ(told_of_play(), "Slag 2: West is aan de beurt");
    call({"Terug", "Terug", "Terug", "Terug", "7♦"});
    EXPECT_EQ(told_of_play(), "Het spelverloop telt pas met vier handen en een contract.");
    call({"pas", "pas", "pas"});
    EXPECT_EQ(told_of_play(), "Slag 2: Zuid is aan de beurt") << "Zuid ruffed";
    EXPECT_TRUE(may_be_taken());
    type("Zuid ruiten", "AHVBT9876543");
    EXPECT_FALSE(may_be_taken());
    type("Zuid ruiten", "AHVBT98765432");
    EXPECT_TRUE(may_be_taken());
    std::string rest = "KA S2 H2 R2";
    for (const char rank : std::string("3456789TBVHA"))
        rest += std::string("\nR") + rank + " K" + (rank == 'A' ? '2' : rank) + " S" + rank + " H" + rank;
    type_play(rest);
    EXPECT_EQ(told_of_play(), "Volledig; slagen voor de leider: 13");
    take();
    EXPECT_EQ(cell(0, DealModel::Cards) + cell(0, DealModel::Lead) + cell(0, DealModel::Tricks), "52♣A13");
}

TEST_F(DealEditor, AMendedDealKeepsItsPlayAndWhatBelongsToIt) {
    const auto told = [&] {
        return cell(0, DealModel::Cards) + cell(0, DealModel::Lead) + " " + cell(0, DealModel::Texts) + " " +
               cell(0, DealModel::Tricks);
    };
    open("club.pbn", kPlayed);
    begin(QStringLiteral("Wijzigen..."));
    type("Zuid schoppen", "H72");
    type("Noord schoppen", "AV6");
    take();
    EXPECT_EQ(told(), "8♣B 2 9") << "the sixes and twos were not played";
    begin(QStringLiteral("Wijzigen..."));
    type_play("KB K2 K5 KA SH S8 SA S3 H2");
    take();
    EXPECT_EQ(told(), "9♣B 2 9") << "another card says nothing against the tricks of the claim";
    begin(QStringLiteral("Wijzigen..."));
    type("Zuid schoppen", "A72");
    type("Noord schoppen", "HV6");
    EXPECT_EQ(told_of_play(), "Slag 2, kaart 5 (♠H): Zuid heeft die kaart niet");
    EXPECT_FALSE(may_be_taken());
    type_play("KB K2 K5 KA");
    take();
    EXPECT_EQ(told(), "4♣B 1 ");
    begin(QStringLiteral("Wijzigen..."));
    type_play("");
    EXPECT_TRUE(editor->findChildren<QComboBox*>().last()->isEnabled());
    take();
    EXPECT_EQ(told(), "1♣B  ");
}

TEST_F(DealEditor, WhatWasTypedIsNotLostByQuittingOrEmptyingTheList) {
    const auto type_a_deal = [&] {
        begin(QStringLiteral("Nieuw spel..."));
        type_hands();
        take();
    };
    type_a_deal();
    EXPECT_TRUE(answered(QStringLiteral("Terug"), [&] { window->close(); }));
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(answered(QStringLiteral("Terug"), [&] { deals().clear_list(); }));
    EXPECT_EQ(deals().model().rowCount(), 1);
    deals().list().choose(0);
    deals().save_to(QString::fromStdString(in("weg/nergens.pbn")));
    wait_for_work();
    EXPECT_EQ(deals().model().unsaved(), std::vector{0}) << messages();
    deals().save_to(QString::fromStdString(in("krant.pbn")));
    wait_for_work();
    EXPECT_FALSE(answered(QStringLiteral("Terug"), [&] { deals().clear_list(); })) << "it stands in a file now";
    EXPECT_EQ(deals().model().rowCount(), 0);
    type_a_deal();
    EXPECT_TRUE(answered(QStringLiteral("Toch afsluiten"), [&] { window->close(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->isVisible(); }, kPatience));
}

}  // namespace
