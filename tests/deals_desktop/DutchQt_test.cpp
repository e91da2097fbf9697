// The boxes that Qt brings along, as a user sees them.
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QTranslator>
#include <set>

#include "deals_desktop/TestWindow.h"

namespace {

// Asked before all others: it gives nothing, and remembers what Qt looks for.
class Asked final : public QTranslator {
public:
    QString translate(const char* context, const char* text, const char*, int) const override {
        if (context[0] == 'Q') asked.insert({context, text});
        return {};
    }
    bool isEmpty() const override { return false; }
    mutable std::set<std::pair<std::string, std::string>> asked;
};

class DutchQt : public TestWindow {
protected:
    DutchQt() { QCoreApplication::installTranslator(&recorder); }
    ~DutchQt() override { QCoreApplication::removeTranslator(&recorder); }

    // The words that were asked for and stayed as they are.
    std::string english() {
        static const std::set<std::string> same{
            "OK", "&OK", "Help", "Printer", "Computer", "%1 bytes", "A4", "...", "QT_LAYOUT_DIRECTION"};
        const auto asked = recorder.asked;
        std::string all;
        for (const auto& [context, text] : asked) {
            const bool key = context == "QShortcut" || text.starts_with("Alt+") || text.find("%n") != std::string::npos;
            if (!key && !same.contains(text) &&
                QCoreApplication::translate(context.c_str(), text.c_str()).toStdString() == text)
                all += context + ": " + text + "\n";
        }
        return all;
    }
    Asked recorder;
};

TEST_F(DutchQt, TheChoiceOfAFileIsInDutch) {
    for (const auto mode : {QFileDialog::AcceptOpen, QFileDialog::AcceptSave}) {
        QFileDialog dialog(&*window, QString(), QString::fromStdString(in("program")));
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setAcceptMode(mode);
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
        std::string labels;
        for (const QLabel* const label : dialog.findChildren<QLabel*>())
            labels += label->text().toStdString() + "|";
        EXPECT_NE(labels.find("Bestands&naam:"), std::string::npos) << labels;
        std::string buttons;
        for (const QPushButton* const button : dialog.findChildren<QPushButton*>())
            buttons += button->text().toStdString() + "|";
        EXPECT_NE(buttons.find("Annuleren"), std::string::npos) << buttons;
        EXPECT_NE(buttons.find(mode == QFileDialog::AcceptOpen ? "Openen" : "Bewaren"), std::string::npos) << buttons;
    }
    EXPECT_EQ(english(), "");
}

TEST_F(DutchQt, QuestionsAndTheMenuOfAFieldAreInDutch) {
    QMessageBox box(QMessageBox::Question, QString(), QString(), QMessageBox::Yes | QMessageBox::No, &*window);
    box.show();
    EXPECT_EQ(box.button(QMessageBox::Yes)->text().remove(QLatin1Char('&')), QStringLiteral("Ja"));
    EXPECT_EQ(box.button(QMessageBox::No)->text().remove(QLatin1Char('&')), QStringLiteral("Nee"));
    QLineEdit field(QStringLiteral("tekst"));
    const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
    EXPECT_EQ(menu->actions().last()->text().section(QLatin1Char('\t'), 0, 0), QStringLiteral("Alles kiezen"));
    EXPECT_EQ(english(), "");
}

TEST_F(DutchQt, ThePrintingIsInDutch) {
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    QPrintDialog dialog(&printer, &*window);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    std::string buttons;
    for (const QPushButton* const button : dialog.findChildren<QPushButton*>())
        buttons += button->text().toStdString() + "|";
    EXPECT_NE(buttons.find("Eigenschappen|OK|Annuleren"), std::string::npos) << buttons;
    EXPECT_EQ(english(), "");
}

}  // namespace
