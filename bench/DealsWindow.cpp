#include "DealsWindow.h"

#include <stdlib.h>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <filesystem>
#include <fstream>

#include "Deals.h"
#include "deals_desktop/Window.h"

namespace fs = std::filesystem;

namespace bench {

namespace {

constexpr int kBoards = 10000;
constexpr int kRounds = 7;
constexpr double kStep = 16;  // milliseconds: a picture of a display

// What the action changes is painted when this returns.
double painted(deals_desktop::DealList& list, const std::function<void()>& action) {
    return time_of([&] {
        action();
        list.viewport()->repaint();
    });
}

void measure_opening(Report& report, const fs::path& folder, const QString& file) {
    std::vector<double> times;
    for (int round = 0; round < kRounds; ++round) {
        times.push_back(time_of([&] {
            deals_desktop::Window window(folder.string());
            window.show();
            window.deals().solve(false);
            window.deals().open({file});
            while (window.deals().busy())
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            window.repaint();
        }));
    }
    report.add_median("window opened with 10,000 boards", times, "ms", 1000);
}

// The times of the column that takes longest.
std::vector<double> worst_sort(deals_desktop::DealList& list) {
    std::vector<double> worst;
    for (int column = 0; column < deals_desktop::DealModel::ColumnCount; ++column) {
        std::vector<double> times;
        for (int round = 0; round < kRounds; ++round) {
            const Qt::SortOrder order = round % 2 == 0 ? Qt::DescendingOrder : Qt::AscendingOrder;
            times.push_back(painted(list, [&] { list.sortByColumn(column, order); }));
        }
        if (worst.empty() || median(times) > median(worst)) worst = times;
    }
    return worst;
}

// While best play is worked out on all cores.
void measure_steps(Report& report, const fs::path& folder, const QString& file) {
    deals_desktop::Window window(folder.string());
    window.show();
    window.deals().open({file});
    while (window.deals().busy())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    deals_desktop::DealList& list = window.deals().list();
    std::vector<double> scrolls, moves;
    for (int page = 0; page < 100; ++page) {
        scrolls.push_back(painted(list, [&] {
            list.verticalScrollBar()->triggerAction(page < 50 ? QAbstractSlider::SliderPageStepAdd
                                                              : QAbstractSlider::SliderSingleStepSub);
        }));
        moves.push_back(painted(list, [&] { QTest::keyClick(&list, Qt::Key_Down); }));
    }
    report.add_times("scrolling through 10,000 boards", scrolls, kStep, kStep);
    report.add_times("the next of 10,000 boards shown", moves, kStep, kStep);
    report.add_median("sorting 10,000 boards by the worst column", worst_sort(list), "ms", kStep);
    window.deals().solve(false);
}

}  // namespace

void measure_deals_window(Report& report) {
    std::string name = (fs::temp_directory_path() / "zandolin-bench-XXXXXX").string();
    const fs::path folder = mkdtemp(name.data());
    const fs::path file = folder / "boards.pbn";
    std::ofstream(file, std::ios::binary) << games(kBoards);
    measure_opening(report, folder, QString::fromStdString(file.string()));
    measure_steps(report, folder, QString::fromStdString(file.string()));
    fs::remove_all(folder);
}

}  // namespace bench
