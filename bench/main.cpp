// Measures the program in its real windows. Figures that depend on the machine are ratios against a bare baseline of
// the same run.
#include <dirent.h>
#include <sys/resource.h>

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QProcess>
#include <QWindow>
#include <iostream>

#include "Deals.h"
#include "DealsWindow.h"
#include "Measure.h"
#include "Stage.h"
#include "app/Start.h"
#include "desktop/FormWindow.h"
#include "desktop/Style.h"
#include "desktop/views/View.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"
#include "forms/User.h"
#include "forms/VScrollBar.h"

namespace fs = std::filesystem;
using namespace bench;

namespace {

const std::string kSamples = SAMPLES_DIR;

long peak_memory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

void set_up_look() {
    QApplication::setStyle(new desktop::Style);
    QApplication::setPalette(desktop::Style::colours());
    QApplication::setQuitOnLastWindowClosed(false);
}

// Names of the subfolders, as a bare scan gives them.
std::size_t scan(const fs::path& folder) {
    std::vector<std::string> names;
    DIR* open = opendir(folder.c_str());
    for (const dirent* entry = readdir(open); entry; entry = readdir(open)) {
        if (entry->d_type == DT_DIR) names.emplace_back(entry->d_name);
    }
    closedir(open);
    return names.size();
}

std::vector<double> times_of(int times, const std::function<double()>& measure) {
    std::vector<double> values;
    for (int i = 0; i < times; ++i)
        values.push_back(measure());
    return values;
}

double median_of(int times, const std::function<double()>& measure) { return median(times_of(times, measure)); }

void measure_table(Report& report) {
    Stage stage(make_program_folder(kSamples, {}));
    stage.let_cards_be_prepared();
    std::vector<double> opened;
    std::vector<double> ticks;
    for (int round = 0; round < 150; ++round) {
        stage.choose("frmTavrin01", "lstSpellen", "QVT_Spel 001");
        stage.paint();
        opened.push_back(stage.painted([&] { stage.click("frmTavrin01", "cmdTavrin"); }));
        const bool played = round % 8 == 0;
        if (played) stage.click("frmTavrin02", "cmdStart");
        auto& timer = stage.control<forms::Timer>("frmTavrin02", "timSpeelKaart");
        auto& verder = stage.form("frmTavrin02").control("cmdVerder");
        while (played && stage.programma.gedeeld.kaartTeller < 52) {
            if (verder.Visible()) {
                stage.click("frmTavrin02", "cmdVerder");
            } else {
                ticks.push_back(stage.painted([&] { forms::user::tick(timer); }));
            }
        }
        forms::user::key(stage.form("frmTavrin02"), forms::kKeyEscape);
        stage.paint();
    }
    report.add_times("table: click to painted", opened, 50, 25);
    report.add_times("table: tick to painted", ticks, 8, 8);
}

void measure_timer(Report& report) {
    Stage stage(make_program_folder(kSamples, {}));
    const fs::path texts = stage.folder() / "aftavrin/QVT_Spel 001/QVT_Spel 001 informatie.txt";
    fs::remove(texts);
    std::vector<double> off;
    for (int round = 0; round < 3; ++round) {
        stage.choose("frmTavrin01", "lstSpellen", "QVT_Spel 001");
        stage.click("frmTavrin01", "cmdTavrin");
        stage.programma.gedeeld.speelSnelheid = 100;
        auto& timer = stage.control<forms::Timer>("frmTavrin02", "timSpeelKaart");
        std::vector<Clock::time_point> moments;
        timer.Tick = [&moments, tick = timer.Tick] {
            moments.push_back(Clock::now());
            tick();
        };
        stage.click("frmTavrin02", "cmdStart");
        while (stage.programma.gedeeld.kaartTeller < 52)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        for (std::size_t i = 1; i < moments.size(); ++i) {
            const double gap = std::chrono::duration<double, std::milli>(moments[i] - moments[i - 1]).count();
            off.push_back(std::abs(gap - 100));
        }
        forms::user::key(stage.form("frmTavrin02"), forms::kKeyEscape);
    }
    report.add_99th("timer at 100 ms: how far off", off, 5);
}

// Milliseconds until the main screen's list is read and shown anew, on a folder with so many packages.
struct ListTimes {
    std::vector<double> shown;
    std::vector<double> against_scan;
};

ListTimes list_times(int packages, int rounds) {
    Stage stage(make_program_folder(kSamples, {.empty_packages = packages}));
    const double bare = median_of(rounds, [&] { return time_of([&] { scan(stage.folder() / "aftavrin"); }); });
    // A click on the sort box reads and shows the list anew.
    forms::Control& sort = stage.form("frmTavrin01").control("chkSorteer");
    ListTimes times;
    times.shown = times_of(rounds, [&] { return stage.painted([&] { forms::user::click(sort); }); });
    for (const double time : times.shown)
        times.against_scan.push_back(time / bare);
    return times;
}

void measure_lists(Report& report) {
    report.add_median("10,000 packages: list read and shown against a bare scan", list_times(10000, 9).against_scan,
                      "ratio", 3);
    const ListTimes few = list_times(1000, 9);
    const ListTimes many = list_times(100000, 5);
    report.add_median("100,000 packages: the same", many.against_scan, "ratio", 2);
    const double share = median(many.shown) / (100 * median(few.shown));
    report.add_median("a package of 100,000 against one of 1,000", {share}, "ratio", 1.2);
}

// Milliseconds until a bare window with two lists is on the screen: below that no screen can come.
double empty_window_time() {
    QWidget window;
    window.resize(1130, 600);
    for (int i = 0; i < 2; ++i)
        (new QListWidget(&window))->setGeometry(10, 20 + 290 * i, 160, 270);
    return time_of([&] {
        window.show();
        while (!window.windowHandle()->isExposed())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
        QCoreApplication::processEvents();
    });
}

void measure_opening(Report& report) {
    Stage stage(make_program_folder(kSamples, {.empty_packages = 10000, .empty_deals = 1000}));
    const double scans = median_of(9, [&] {
        return time_of([&] {
            scan(stage.folder() / "aftavrin");
            scan(stage.folder() / "RVLX/Spellen");
        });
    });
    const double window = median_of(9, empty_window_time);
    std::vector<double> times = times_of(9, [&] {
        const double time = stage.painted([&] { stage.click("frmTavrin01", "cmdNieuwSpel"); });
        forms::user::key(stage.form("frmTavrin03"), forms::kKeyEscape);
        stage.paint();
        return time;
    });
    const auto against = [&](double base) {
        std::vector<double> ratios;
        for (const double time : times)
            ratios.push_back(time / base);
        return ratios;
    };
    report.add_median("preparation screen with 10,000 packages and 1,000 deals against two scans", against(scans),
                      "ratio", 2.5);
    report.add_median("the same against two scans and an empty window", against(scans + window), "ratio", 1.3);
}

void measure_preparation(Report& report) {
    Stage stage(make_program_folder(kSamples, {}));
    stage.click("frmTavrin01", "cmdNieuwSpel");
    stage.paint();
    auto& deals = stage.control<forms::ListBox>("frmTavrin03", "lstRVLX");
    std::vector<double> loads;
    for (int round = 0; round < 100; ++round) {
        loads.push_back(stage.painted([&] { forms::user::select(deals, round % deals.ListCount()); }));
    }
    report.add_times("preparation: companion deal loaded to painted", loads, 50, 50);

    // Noord's highest diamond, played on the lead and taken back, again and again.
    stage.choose("frmTavrin03", "lstRVLX", "Spel 001");
    std::vector<double> clicks;
    for (int round = 0; round < 300; ++round) {
        clicks.push_back(stage.painted([&] { stage.click("frmTavrin03", "lblRuitenNoord", 0); }));
    }
    report.add_times("preparation: card click to painted", clicks, 8, 8);

    auto& question = stage.control<forms::TextBox>("frmTavrin03", "txtVraag");
    std::string paragraph;
    while (paragraph.size() < 10000)
        paragraph += "zes met troef, schoppenaas en drie in klaveren; ";
    forms::user::type_all(question, paragraph);
    stage.paint();
    QWidget& box = stage.host.front()->view(question)->widget();
    std::vector<double> letters = times_of(100, [&] {
        return stage.painted([&] {
            QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
            QApplication::sendEvent(&box, &key);
        });
    });
    report.add_times("preparation: letter in a paragraph of 10,000 to painted", letters, 33, 33);
}

void measure_editor(Report& report) {
    Stage stage(make_program_folder(kSamples, {}));
    stage.click("frmTavrin01", "cmdKaartenEditor");
    stage.paint();
    auto& deals = stage.control<forms::ListBox>("frmTavrin05", "lstSpellen");
    auto& tricks = stage.control<forms::VScrollBar>("frmTavrin05", "vscrSlag");
    auto& text = stage.control<forms::TextBox>("frmTavrin05", "txtInformatie");
    std::vector<double> chosen, steps, stores, overviews;
    for (int round = 0; round < 60; ++round) {
        chosen.push_back(stage.painted([&] { forms::user::select(deals, round % deals.ListCount()); }));
        steps.push_back(stage.painted([&] { forms::user::scroll(tricks, 12 - round % 12 - 1); }));
        forms::user::click(stage.form("frmTavrin05").control("picYesNo", round % 52));
        forms::user::type_all(text, "Een tekst van ronde " + std::to_string(round));
        stage.paint();
        stores.push_back(stage.painted([&] { stage.click("frmTavrin05", "cmdGebruiken"); }));
        if (round % 3 != 0) continue;
        overviews.push_back(stage.painted([&] { stage.click("frmTavrin05", "cmdToonSpel"); }));
        forms::user::key(stage.form("frmTavrin06"), forms::kKeyEscape);
        stage.paint();
    }
    report.add_times("editor: deal chosen to painted", chosen, 16, 16);
    report.add_times("editor: step of the scroll bar to painted", steps, 16, 16);
    report.add_times("editor: text stored to painted", stores, 16, 16);
    report.add_times("overview: click to painted", overviews, 50, 50);
}

// A child of this program that shows a window, tells when it is painted, and then how much memory it took at most.
int run_child(const QString& what, const QString& folder) {
    set_up_look();
    if (what == QStringLiteral("empty")) {
        QWidget window;
        window.resize(463, 339);
        QListWidget list(&window);
        list.setGeometry(250, 36, 195, 199);
        window.show();
        while (!window.windowHandle()->isExposed())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        std::cout << "painted\n" << peak_memory() << std::endl;
        return 0;
    }
    Stage stage(folder.toStdString());
    std::cout << "painted\n" << peak_memory() << std::endl;
    return 0;
}

struct ChildFigures {
    double start;
    double memory;
};

ChildFigures child(const QString& what) {
    QProcess process;
    const QString folder = QString::fromStdString(make_program_folder(kSamples, {}).string());
    ChildFigures figures{};
    const auto begin = Clock::now();
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--child"), what, folder});
    process.waitForReadyRead(20000);
    figures.start = milliseconds_since(begin);
    process.waitForFinished(20000);
    const QList<QByteArray> lines = process.readAllStandardOutput().split('\n');
    figures.memory = lines.size() > 1 ? lines[1].toDouble() : 0;
    fs::remove_all(folder.toStdString());
    return figures;
}

void measure_start(Report& report) {
    std::vector<double> starts, memories;
    child(QStringLiteral("empty"));
    child(QStringLiteral("main"));
    for (int round = 0; round < 11; ++round) {
        const ChildFigures empty = child(QStringLiteral("empty"));
        const ChildFigures main = child(QStringLiteral("main"));
        starts.push_back(main.start / empty.start);
        memories.push_back(main.memory / empty.memory);
    }
    report.add_median("start to painted main screen against an empty window with a list", starts, "ratio", 1.3);
    report.add_median("peak memory of it against the same", memories, "ratio", 1.25);
}

// What a user could do without the program: copy the folders, and wait until they are on the disk. Nothing is deleted
// between the rounds: a file system that has to look past deleted files is slower.
double copy_time(const fs::path& from, const fs::path& to) {
    const QString command = QStringLiteral("cp -r '%1' '%2' && sync -f '%2'");
    return time_of([&] {
        QProcess::execute(QStringLiteral("sh"),
                          {QStringLiteral("-c"),
                           command.arg(QString::fromStdString(from.string()), QString::fromStdString(to.string()))});
    });
}

// Puts an empty folder in the place of a full one.
void set_aside(const fs::path& folder, int round) {
    fs::rename(folder, folder.string() + std::to_string(round));
    fs::create_directory(folder);
}

// A platform with one stick, which is a folder.
class StickPlatform final : public platform::Platform {
public:
    StickPlatform(std::string folder, std::string stick) : folder_(std::move(folder)), stick_(std::move(stick)) {}
    std::string program_folder() const override { return folder_; }
    std::string special_folder(int) const override { return folder_; }
    bool another_instance_runs() override { return false; }
    platform::Answer message_box(int, const std::string&, const std::string&) override { return platform::Answer::Yes; }
    void set_clipboard(const std::string&) override {}
    void open(const std::string&, const std::string&, const std::string&) override {}
    void show_help(const std::string&) override {}
    bool connected() override { return false; }
    bool download(const std::string&, const std::string&) override { return false; }
    std::vector<std::string> drives() override { return {stick_}; }
    int drive_type(const std::string&) override { return 2; }
    std::string volume_label(const std::string&) override { return "STICK"; }
    void send_keys(const std::vector<platform::KeyRecord>&) override {}
    bool caps_lock() const override { return false; }

private:
    std::string folder_;
    std::string stick_;
};

// Select all and sort of the exchange's left list.
void measure_large_lists(Report& report, Stage& stage, services::Programma& programma) {
    forms::user::key(*programma.windows.find("frmTavrin07"), forms::kKeyEscape);
    for (int i = 0; i < 100000; ++i)
        fs::create_directory(stage.folder() / "aftavrin" / ("Spel " + std::to_string(i)));
    forms::user::click(programma.windows.find("frmTavrin01")->control("cmdImportExport"));
    const auto press = [&](const char* name) {
        return time_of([&] { forms::user::click(programma.windows.find("frmTavrin07")->control(name)); });
    };
    report.add_median("select all of 100,000", times_of(5, [&] { return press("chkSelecteerExporteer"); }), "ms", 200);
    report.add_median("sort 100,000", times_of(5, [&] { return press("chkSorteerExporteer"); }), "ms", 200);
}

void measure_exchange(Report& report, const fs::path& stick) {
    constexpr int kPackages = 1000;
    const fs::path on_stick = stick / "QVT_Spellen";
    fs::create_directories(on_stick);
    Stage stage(make_program_folder(kSamples, {.packages = kPackages}));
    StickPlatform platform(stage.folder().string(), stick.string());
    services::Programma programma(platform, stage.host);
    stage.host.attach(programma.windows);
    app::start(programma);
    const auto press = [&](const char* name) {
        forms::user::click(programma.windows.find("frmTavrin07")->control(name));
    };
    forms::user::click(programma.windows.find("frmTavrin01")->control("cmdImportExport"));
    const fs::path root = stage.folder() / "aftavrin";
    constexpr int kRounds = 3;
    std::vector<double> exports, imports;
    for (int round = 0; round < kRounds; ++round) {
        set_aside(on_stick, round);
        const double bare = copy_time(root, stick / ("bare" + std::to_string(round)));
        press("chkSelecteerExporteer");
        exports.push_back(time_of([&] { press("cmdExporteer"); }) / bare);
    }
    forms::user::key(*programma.windows.find("frmTavrin07"), forms::kKeyEscape);
    forms::user::click(programma.windows.find("frmTavrin01")->control("cmdImportExport"));
    for (int round = 0; round < kRounds; ++round) {
        set_aside(root, round);
        const double bare = copy_time(on_stick, stage.folder() / ("bare" + std::to_string(round)));
        press("chkSelecteerImporteer");
        imports.push_back(time_of([&] { press("cmdImporteer"); }) / bare);
    }
    report.add_median("export of 1,000 packages against cp -r and sync -f", exports, "ratio", 1.1);
    report.add_median("import of 1,000 packages against the same", imports, "ratio", 1.1);
    measure_large_lists(report, stage, programma);
    stage.host.close_all();
}

void measure_stick(Report& report) {
    const fs::path stick = fs::temp_directory_path() / "zandolin-bench-stick";
    fs::create_directories(stick);
    measure_exchange(report, stick);
    fs::remove_all(stick);
}

void measure_deal_files(Report& report) { measure_deals(report, QCoreApplication::applicationDirPath().toStdString()); }

// What is measured, by the name that the command line may give.
constexpr struct {
    const char* name;
    void (*measure)(Report& report);
} kSubjects[] = {
    {"start", measure_start},         {"table", measure_table},     {"timer", measure_timer},
    {"lists", measure_lists},         {"opening", measure_opening}, {"preparation", measure_preparation},
    {"editor", measure_editor},       {"exchange", measure_stick},  {"deals", measure_deal_files},
    {"window", measure_deals_window},
};

}  // namespace

// usage: zandolin_bench FILE [SUBJECT...]      without a subject all of them
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    if (words.size() == 4 && words[1] == QStringLiteral("--child")) return run_child(words[2], words[3]);
    if (words.size() < 2) {
        std::cerr << "usage: zandolin_bench FILE [SUBJECT...]\n";
        return 2;
    }
    set_up_look();
    Report report(words[1].toStdString());
    const QStringList chosen = words.mid(2);
    for (const auto& subject : kSubjects) {
        if (chosen.isEmpty() || chosen.contains(QLatin1String(subject.name))) subject.measure(report);
    }
    return 0;
}
