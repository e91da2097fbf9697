// The first page by mouse and keys: files are opened, deals looked at, ticked and imported.
#include <QAccessible>
#include <QClipboard>
#include <QDialog>
#include <QDropEvent>
#include <QMimeData>
#include <QScreen>
#include <QSignalSpy>

#include "deals_desktop/TestWindow.h"

namespace {

using deals_desktop::DealModel;

const std::string kHands = "[Deal \"N:AQ2.A32.5432.432 J543.KJ5.AJT.765 K76.Q764.KQ9.AKQ T98.T98.876.JT98\"]\n";
const std::string kContract = "[Declarer \"S\"]\n[Contract \"3NT\"]\n";
const std::string kPlay = "[Play \"W\"]\nCJ C2 C5 CA\nS8 SA S3 SK\n*\n";
const std::string kWhole = "[Board \"1\"]\n" + kHands + kContract + kPlay;
const std::string kBare = "[Board \"2\"]\n" + kHands + kPlay;
const std::string kWrong = "[Board \"3\"]\n[Deal \"N:AKQ... - - -\"]\n";

class DealsPage : public TestWindow {
protected:
    std::string label(const QString& name) {
        for (const QLabel* const each : deals().pane().findChildren<QLabel*>()) {
            if (each->isVisible() && each->accessibleName().startsWith(name))
                return each->accessibleName().toStdString();
        }
        return {};
    }
    void import() {
        QTest::mouseClick(&find<QPushButton>(QStringLiteral("Importeren")), Qt::LeftButton);
        wait_for_work();
    }
    std::vector<std::string> made() const {
        const std::filesystem::path spellen = folder / "program" / "RVLX" / "Spellen";
        return std::filesystem::exists(spellen) ? names("program/RVLX/Spellen") : std::vector<std::string>();
    }
};

TEST_F(DealsPage, ShowsTheBoardsOfAFileAndTheChosenDeal) {
    open("club.pbn", kWhole + "\n" + kBare + "\n" + kWrong);
    EXPECT_EQ(cell(0, DealModel::Name) + cell(0, DealModel::Contract) + cell(0, DealModel::Declarer) +
                  cell(0, DealModel::Lead) + " " + cell(0, DealModel::Cards),
              "13SAZ♣B 8");
    EXPECT_EQ(cell(1, DealModel::Remark), "geen contract; geen uitkomst");
    EXPECT_EQ(cell(2, DealModel::Remark), "meer dan één hand is onbekend");
    EXPECT_NE(messages().find("club.pbn: 3 spellen gelezen."), std::string::npos) << messages();
    EXPECT_EQ(label(QStringLiteral("Noord")), "Noord: schoppen A V 2, harten A 3 2, ruiten 5 4 3 2, klaveren 4 3 2");
    wait_for_best_play();
    EXPECT_EQ(cell(0, DealModel::Best), "11");
    keys(deals().list(), Qt::Key_End);
    EXPECT_EQ(label(QStringLiteral("Zuid")), "Zuid: onbekend");
}

TEST_F(DealsPage, TellsInDutchWhatCannotBeRead) {
    put("leeg.pbn", "");
    std::filesystem::create_directories(folder / "map.pbn");
    deals().open({QString::fromStdString(in("leeg.pbn")), QString::fromStdString(in("nergens.pbn")),
                  QString::fromStdString(in("map.pbn"))});
    open("goed.pbn", kWhole);
    EXPECT_NE(messages().find("leeg.pbn: er staan geen spellen in\n"), std::string::npos) << messages();
    EXPECT_NE(messages().find("nergens.pbn: Bestand niet gevonden"), std::string::npos) << messages();
    EXPECT_NE(messages().find("map.pbn: Geen toegang"), std::string::npos) << messages();
    EXPECT_EQ(deals().model().rowCount(), 1) << "the others come in";

    keys(deals().messages(), Qt::Key_C, Qt::ControlModifier);  // nothing is chosen
    deals().messages().setFocus();
    keys(deals().messages(), Qt::Key_A, Qt::ControlModifier);
    keys(deals().messages(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString() + "\n", messages());
}

TEST_F(DealsPage, ImportsWhatIsTickedByKeysAndUnticksWhatWasMade) {
    open("club.pbn", kWhole + "\n" + kBare + "\n" + kWhole);
    EXPECT_EQ(deals().model().rowCount(), 2) << "one board at two tables";
    keys(*window, Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    import();
    EXPECT_EQ(made(), (std::vector<std::string>{"Spel 001", "Spel 002"})) << messages();
    EXPECT_NE(messages().find("Geweigerd: club.pbn: spel 2, regel 10: geen contract"), std::string::npos) << messages();
    EXPECT_NE(messages().find("Gemaakt: 2. Geweigerd: 1."), std::string::npos) << messages();
    EXPECT_EQ(deals().model().ticked(), std::vector{1}) << "the refused one stays";

    keys(deals().list(), Qt::Key_Home);
    keys(deals().list(), Qt::Key_Down, Qt::ShiftModifier);
    keys(deals().list(), Qt::Key_Space);
    EXPECT_EQ(deals().model().ticked(), (std::vector{0, 1, 2}));
    keys(deals().list(), Qt::Key_Space);
    EXPECT_TRUE(deals().model().ticked().empty());
}

TEST_F(DealsPage, AContractThatIsFilledInBringsThePlayToo) {
    open("club.pbn", kBare);
    EXPECT_EQ(cell(0, DealModel::Cards), "");
    auto& combos = find<QPushButton>(QStringLiteral("Invullen"));
    const auto boxes = combos.parentWidget()->findChildren<QComboBox*>();
    EXPECT_FALSE(combos.isEnabled()) << "nothing is taken for granted";
    QTest::keyClicks(boxes[0], QStringLiteral("3"));
    QTest::keyClicks(boxes[1], QStringLiteral("SA"));
    QTest::keyClicks(boxes[3], QStringLiteral("Z"));
    QTest::mouseClick(&combos, Qt::LeftButton);
    wait_for_work();
    EXPECT_EQ(cell(0, DealModel::Contract) + cell(0, DealModel::Lead) + cell(0, DealModel::Cards), "3SA♣B8")
        << messages();
    import();
    EXPECT_EQ(made(), std::vector<std::string>{"Spel 001"}) << messages();
}

TEST_F(DealsPage, AFileThatHasChangedIsNotTakenForTheOneThatIsShown) {
    open("club.pbn", kBare);
    put("club.pbn", kWrong);
    const auto boxes = find<QPushButton>(QStringLiteral("Invullen")).parentWidget()->findChildren<QComboBox*>();
    for (const int box : {0, 1, 3})
        keys(*boxes[box], Qt::Key_Down);
    QTest::mouseClick(&find<QPushButton>(QStringLiteral("Invullen")), Qt::LeftButton);
    wait_for_work();
    EXPECT_NE(messages().find("club.pbn: het bestand is veranderd"), std::string::npos) << messages();
    EXPECT_EQ(cell(0, DealModel::Name), "2") << "what was read stays";
}

TEST_F(DealsPage, AFolderWithoutPermissionLosesNothing) {
    if (geteuid() == 0) put("program/RVLX", "in the way");  // nobody keeps root out
    std::filesystem::permissions(folder / "program",
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    open("club.pbn", kWhole);
    import();
    std::filesystem::permissions(folder / "program", std::filesystem::perms::owner_all);
    EXPECT_NE(messages().find("Geweigerd: club.pbn: spel 1"), std::string::npos) << messages();
    EXPECT_NE(messages().find("Gemaakt: 0. Geweigerd: 1."), std::string::npos) << messages();
    EXPECT_EQ(deals().model().rowCount(), 1);
}

TEST_F(DealsPage, TheLineAboveSeveralTablesShowsTheirHands) {
    open("club.pbn", kWhole + "\n" + kBare + "\n" + kWhole);
    EXPECT_EQ(cell(0, DealModel::Name), "1 (2 tafels)");
    EXPECT_EQ(label(QStringLiteral("Noord")), "Noord: schoppen A V 2, harten A 3 2, ruiten 5 4 3 2, klaveren 4 3 2");
    keys(*window, Qt::Key_F2);
    EXPECT_EQ(window->findChild<QDialog*>(), nullptr) << "it is no deal that could be mended";
}

TEST_F(DealsPage, ColumnsAreSortedByKeysToo) {
    open("club.pbn", kWhole + "\n" + kBare + "\n" + kWrong);
    const auto order = [&] { return cell(0, DealModel::Name) + cell(1, DealModel::Name) + cell(2, DealModel::Name); };
    constexpr const char* kOrders[] = {"231", "123", "123"};  // upward, downward, as the file has them
    for (const char* const expected : kOrders) {
        keys(*window, Qt::Key_2, Qt::ControlModifier);
        EXPECT_EQ(order(), expected);
    }
}

TEST_F(DealsPage, LettersGoByKeysAndStaySo) {
    const auto height = [&] {
        QCoreApplication::processEvents();  // letters are told to the widgets in their turn
        return deals().list().fontMetrics().height();
    };
    const auto column = [&] { return deals().list().columnWidth(DealModel::Contract); };
    const int usual = height();
    const int wide = column();
    for (int step = 0; step < 4; ++step)
        keys(*window, Qt::Key_Minus, Qt::ControlModifier);
    const int small = height();
    EXPECT_NEAR(small, usual * 0.6, 2);
    EXPECT_NEAR(column(), wide * 0.6, wide * 0.2);
    window.reset();
    window.emplace(in("program"));
    window->show();
    EXPECT_EQ(height(), small);
    for (int step = 0; step < 40; ++step) {
        keys(*window, Qt::Key_Plus, Qt::ControlModifier);
        QCoreApplication::processEvents();
    }
    EXPECT_GT(height(), small);
    EXPECT_LE(window->minimumSizeHint().width(), window->screen()->availableSize().width());
    keys(*window, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(height(), usual);
}

TEST_F(DealsPage, FilesThatAreDroppedAreOpened) {
    put("club.pbn", kWhole);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(in("club.pbn")))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&*window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&*window, &drop);
    wait_for_work();
    EXPECT_EQ(cell(0, DealModel::Name), "1");
}

}  // namespace
