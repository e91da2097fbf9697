// The second page: the lessons there are, and files that they are written to.
#include <QDialog>
#include <QPrinter>
#include <QRadioButton>
#include <QTreeWidget>

#include "deals_desktop/TestWindow.h"
#include "exchange/DealFiles.h"
#include "exchange/RandomBoard.h"

namespace {

using deals_desktop::DealModel;

class LessonsPage : public TestWindow {
protected:
    // A lesson by itself, from a random board.
    void make_lesson(const std::string& name, unsigned seed) {
        test::Random random(seed);
        exchange::Board board = test::random_board(random);
        board.texts.push_back({{exchange::Place::Kind::Card, 3}, "tekst", 0});
        for (const exchange::DealFile& file : exchange::lesson_files(board, board.notes))
            put("program/aftavrin/" + name + "/" + name + file.suffix, file.bytes);
    }
    void go_there() {
        keys(*window, Qt::Key_L, Qt::AltModifier);
        wait();
    }
    void wait() {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !window->lessons().busy(); }, kPatience));
    }
    std::string names() {
        std::string all;
        for (int row = 0; row < window->lessons().model().rowCount(); ++row)
            all += window->lessons().model().index(row, 0).data().toString().toStdString() + " ";
        return all;
    }
    std::string remark(int row) {
        return window->lessons().model().index(row, DealModel::Remark).data().toString().toStdString();
    }
    std::string told() { return messages_of(window->lessons()); }
};

TEST_F(LessonsPage, TellsWhichLessonsThereAreAndWhatIsWrongWithThem) {
    make_lesson("QVT_Spel 001", 1);
    make_lesson("QVT_Spel 002", 2);
    put("program/aftavrin/QVT_Spel 002/QVT_Spel 002 Contract.txt", "Zuid nul");
    std::filesystem::create_directories(folder / "program/aftavrin/leeg");
    go_there();
    EXPECT_EQ(names(), "QVT_Spel 001 QVT_Spel 002 ");
    EXPECT_EQ(remark(0), "");
    EXPECT_EQ(remark(1).substr(0, 23), "dit is geen contract: Z");
    EXPECT_NE(told().find("leeg: Bestand niet gevonden"), std::string::npos) << told();
}

TEST_F(LessonsPage, ReadingAnewKeepsWhatIsTickedChosenAndWorkedOut) {
    make_lesson("QVT_Spel 002", 1);
    make_lesson("QVT_Spel 003", 2);
    go_there();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->lessons().solving(); }, kPatience));
    keys(window->lessons().list(), Qt::Key_End);
    keys(window->lessons().list(), Qt::Key_Space);
    make_lesson("QVT_Spel 001", 3);
    keys(*window, Qt::Key_F5);
    wait();
    EXPECT_EQ(names(), "QVT_Spel 001 QVT_Spel 002 QVT_Spel 003 ");
    EXPECT_EQ(window->lessons().model().ticked(), std::vector{2});
    EXPECT_EQ(window->lessons().list().currentIndex().row(), 2);
    EXPECT_TRUE(window->lessons().model().entries()[2].best);
}

TEST_F(LessonsPage, WritesWhatIsTickedIntoAFileThatReadsBack) {
    for (unsigned number = 1; number <= 3; ++number)
        make_lesson("QVT_Spel 00" + std::to_string(number), number);
    go_there();
    keys(window->lessons().list(), Qt::Key_Home);
    keys(window->lessons().list(), Qt::Key_Down, Qt::ShiftModifier);
    keys(window->lessons().list(), Qt::Key_Space);
    window->lessons().export_to(QString::fromStdString(in("lessen.pbn")));
    window->lessons().export_to(QString::fromStdString(in("les.lin")));
    window->lessons().export_to(QString::fromStdString(in("nergens/les.lin")));
    wait();
    EXPECT_NE(told().find("Geschreven: QVT_Spel 001\nGeschreven: QVT_Spel 002\n2 lessen in lessen.pbn geschreven.\n"),
              std::string::npos)
        << told();
    EXPECT_NE(told().find("Exporteren naar les.lin: Map niet gevonden"), std::string::npos) << told();
    keys(*window, Qt::Key_S, Qt::AltModifier);
    deals().open({QString::fromStdString(in("lessen.pbn")), QString::fromStdString(in("les.lin"))});
    wait_for_work();
    EXPECT_EQ(deals().model().rowCount(), 4) << messages();
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(cell(row, DealModel::Cards) + " " + cell(row, DealModel::Remark), "52 ");
}

TEST_F(LessonsPage, PrintsWhatIsTickedAndTellsWhereThePrinterFails) {
    make_lesson("QVT_Spel 001", 1);
    make_lesson("QVT_Spel 002", 2);
    make_lesson("QVT_Spel 003", 3);
    put("program/aftavrin/QVT_Spel 002/QVT_Spel 002 Contract.txt", "Zuid nul");
    go_there();
    std::filesystem::remove_all(folder / "program/aftavrin/QVT_Spel 003");
    keys(window->lessons().list(), Qt::Key_A, Qt::ControlModifier);
    const auto print_to = [&](const std::string& file) {
        const auto printer = std::make_shared<QPrinter>();
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(QString::fromStdString(in(file)));
        window->lessons().print_on(printer);
        wait();
    };
    print_to("bladen.pdf");
    EXPECT_NE(told().find("Afgedrukt: QVT_Spel 001"), std::string::npos) << told();
    EXPECT_NE(told().find("Geweigerd: QVT_Spel 002: "), std::string::npos) << told();
    EXPECT_NE(told().find("Geweigerd: QVT_Spel 003: bestand niet gevonden"), std::string::npos) << told();
    EXPECT_GT(std::filesystem::file_size(in("bladen.pdf")), 10000U);
    print_to("weg/bladen.pdf");
    EXPECT_NE(told().find("Afdrukken: Map niet gevonden"), std::string::npos) << told();
    EXPECT_FALSE(std::filesystem::exists(in("weg")));
}

// Each of the ways out, on a folder that cannot be written and on a disk that is full.
TEST_F(LessonsPage, WhatCannotBeWrittenIsToldAndLosesNothing) {
    for (unsigned number = 1; number <= 2; ++number)
        make_lesson("QVT_Spel 00" + std::to_string(number), number);
    go_there();
    keys(window->lessons().list(), Qt::Key_A, Qt::ControlModifier);
    const std::string before = "van vroeger";
    const std::vector<std::string> files{"uit.pbn", "uit.lin", "uit.html", "uit.pdf", "alles.pbn", "bladen.pdf"};
    std::size_t told_before = 0;
    const auto write_all = [&](const std::string& folder) {
        told_before = told().size();
        const auto file = [&](std::size_t number) { return QString::fromStdString(in(folder + files[number])); };
        for (const std::size_t number : {0, 1, 2, 3})
            window->lessons().export_to(file(number));
        window->lessons().save_all_in(file(4));
        const auto printer = std::make_shared<QPrinter>();
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(file(5));
        window->lessons().print_on(printer);
        wait();
    };
    const auto expect_told = [&](const std::string& why) {
        const std::string all = told().substr(told_before);
        for (const std::string name : {"uit.pbn", "uit.lin", "uit.html", "uit.pdf"})
            EXPECT_NE(all.find("Exporteren naar " + name + ": " + why), std::string::npos) << name << "\n" << all;
        EXPECT_NE(all.find("Bewaren in alles.pbn: " + why), std::string::npos) << all;
        EXPECT_NE(all.find("Afdrukken: " + why), std::string::npos) << all;
    };
    for (const std::string& file : files)
        put("uit/" + file, before);
    {
        const NoSpace no_space;
        write_all("uit/");
    }
    expect_told("De schijf is vol");
    for (const std::string& file : files)
        EXPECT_EQ(bytes_of("uit/" + file), before) << file;
    EXPECT_EQ(TemporaryFolder::names("uit").size(), files.size()) << "nothing half is left";

    put("map", "no folder");  // nobody keeps root out of one
    write_all("map/");
    expect_told("");
    EXPECT_EQ(bytes_of("map"), "no folder");
}

// The work stands at its beginning when Stop is pressed, and ends at the next lesson.
TEST_F(LessonsPage, AllLongWorkStopsAndLeavesNoHalfFile) {
    for (unsigned number = 11; number <= 40; ++number)
        make_lesson("QVT_Spel 0" + std::to_string(number), number);
    go_there();
    keys(window->lessons().list(), Qt::Key_A, Qt::ControlModifier);
    put("oud.pbn", "van vroeger");
    window->lessons().save_all_in(QString::fromStdString(in("lessen.pbn")));
    wait();
    const auto path = [&](const char* name) { return QString::fromStdString(in(name)); };
    const struct {
        const char* name;
        std::function<void()> start;
    } kRows[] = {
        {"Exporteren naar a.html", [&] { window->lessons().export_to(path("a.html")); }},
        {"Exporteren naar a.pdf", [&] { window->lessons().export_to(path("a.pdf")); }},
        {"Bewaren in oud.pbn", [&] { window->lessons().save_all_in(path("oud.pbn")); }},
        {"Afdrukken",
         [&] {
             const auto printer = std::make_shared<QPrinter>();
             printer->setOutputFormat(QPrinter::PdfFormat);
             printer->setOutputFileName(path("b.pdf"));
             window->lessons().print_on(printer);
         }},
        {"Vergelijken met lessen.pbn",
         [&] {
             std::filesystem::remove_all(folder / "program/aftavrin/QVT_Spel 013");
             window->lessons().restore_from(path("lessen.pbn"));
         }},
        {"Kopie bewaren", [&] { window->lessons().keep_copy(); }},
    };
    for (const auto& row : kRows) {
        row.start();
        QTest::mouseClick(&find<QPushButton>(QStringLiteral("Stoppen")), Qt::LeftButton);
        wait();
        EXPECT_NE(told().find(std::string(row.name) + ": gestopt."), std::string::npos) << told();
    }
    EXPECT_EQ(bytes_of("oud.pbn"), "van vroeger");
    for (const char* const file : {"a.html", "a.pdf", "b.pdf"})
        EXPECT_FALSE(std::filesystem::exists(in(file))) << file;
    EXPECT_EQ(TemporaryFolder::names("program/bewaard").size(), 0U);
    EXPECT_EQ(window->findChild<QDialog*>(), nullptr) << "nothing was compared";
}

TEST_F(LessonsPage, ASavedFileBringsBackWhatIsTicked) {
    for (unsigned number = 1; number <= 3; ++number)
        make_lesson("QVT_Spel 00" + std::to_string(number), number);
    go_there();
    const QString file = QString::fromStdString(in("alles.pbn"));
    window->lessons().save_all_in(file);
    window->lessons().restore_from(file);
    wait();
    EXPECT_NE(told().find("3 lessen in alles.pbn geschreven.\nalles.pbn: alle lessen zijn er nog"), std::string::npos)
        << told();

    std::filesystem::remove_all(folder / "program/aftavrin/QVT_Spel 001");
    std::filesystem::remove_all(folder / "program/aftavrin/QVT_Spel 003");
    window->lessons().restore_from(file);
    wait();
    auto* const dialog = window->findChild<QDialog*>();
    ASSERT_TRUE(dialog && QTest::qWaitForWindowActive(dialog));
    auto& list = *dialog->findChild<QTreeWidget*>();
    ASSERT_EQ(list.topLevelItemCount(), 2);
    EXPECT_EQ(list.topLevelItem(1)->text(1).toStdString(), "is er niet meer");
    keys(list, Qt::Key_Down);
    keys(list, Qt::Key_Space);
    EXPECT_EQ(list.topLevelItem(1)->checkState(0), Qt::Checked);
    keys(*dialog->findChildren<QRadioButton*>().first(), Qt::Key_Down);
    keys(list, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    wait();
    EXPECT_NE(told().find("Teruggezet: QVT_Spel 003"), std::string::npos) << told();
    EXPECT_EQ(names(), "QVT_Spel 002 QVT_Spel 003 ") << "read anew";
}

}  // namespace
