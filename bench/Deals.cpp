#include "Deals.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QBuffer>
#include <QPdfWriter>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <thread>

#include "deals/BoardFile.h"
#include "deals/Verdict.h"
#include "exchange/LessonReader.h"
#include "exchange/PbnWriter.h"
#include "exchange/RandomBoard.h"
#include "page/Page.h"
#include "paper/Paper.h"

namespace fs = std::filesystem;

namespace bench {

namespace {

constexpr double kMegabyte = 1024.0 * 1024;

struct Run {
    double milliseconds;
    double processor;  // milliseconds of all cores together
    double megabytes;  // at most
};

// A program, to its end; what it tells goes nowhere.
Run run(std::vector<std::string> words) {
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
        execvp(arguments[0], arguments.data());
        _exit(1);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const auto milliseconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return {milliseconds_since(start), milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime),
            static_cast<double>(usage.ru_maxrss) / 1024};
}

void measure_reading(Report& report, const std::string& program, const fs::path& folder) {
    constexpr int kBoards = 10000;
    constexpr double kBoardsInSecond = 20000;
    constexpr double kMegabytesInSecond = 50;
    const std::string text = games(kBoards);
    const std::string file = folder / "boards.pbn";
    std::ofstream(file, std::ios::binary) << text;
    std::vector<double> times;
    for (int round = 0; round < 7; ++round)
        times.push_back(time_of([&] { deals::read_boards(file, [](exchange::Board&) {}); }));
    const double megabytes = static_cast<double>(text.size()) / kMegabyte;
    report.add_median("reading 10,000 boards of PBN", times, "ms",
                      std::max(kBoards / kBoardsInSecond, megabytes / kMegabytesInSecond) * 1e3);

    const std::string large = folder / "large.pbn";
    std::ofstream stream(large, std::ios::binary);
    for (double written = 0; written < 100; written += megabytes)
        stream << text;
    stream.close();
    report.add_median("memory of list on 100 MB", {run({program, "list", large}).megabytes}, "MB", 100);
    fs::remove(large);
}

// As many as there are numbers; the same files are then copied.
void measure_import(Report& report, const std::string& program, const fs::path& folder) {
    constexpr int kDeals = 999;
    const std::string file = folder / "deals.pbn";
    std::ofstream(file, std::ios::binary) << games(kDeals);
    std::vector<double> ratios, ratios_to_the_disk;
    for (int round = 0; round < 5; ++round) {
        const fs::path to = folder / ("program" + std::to_string(round));
        fs::create_directories(to);
        const double time = run({program, "import", file, "--as", "deals", "--program", to}).milliseconds;
        const fs::path copied = folder / ("copy" + std::to_string(round));
        const double bare = run({"cp", "-r", to / "RVLX/Spellen", copied}).milliseconds;
        ratios.push_back(time / bare);
        ratios_to_the_disk.push_back(time / (bare + run({"sync", "-f", copied}).milliseconds));
    }
    report.add_median("import of 999 deals against cp -r", ratios, "ratio", 1.5);
    report.add_median("import of 999 deals against cp -r and sync -f", ratios_to_the_disk, "ratio", 1.5);
}

void measure_checking(Report& report, const std::string& program, const fs::path& folder) {
    std::vector<double> times;
    const auto check = [&](deals::Verdict verdict) { times.push_back(time_of([&] { deals::look_into(verdict); })); };
    for (const auto& lesson : fs::directory_iterator(SAMPLES_DIR "/aftavrin"))
        check(deals::verdict_of("", exchange::read_lesson(lesson.path()).board));
    report.add_median("check of a sample lesson", times, "ms", 1000);
    times.clear();
    test::Random random(2);
    for (int i = 0; i < 50; ++i)
        check(deals::verdict_of("", test::random_board(random)));
    report.add_median("check of a play at random", times, "ms", 1000);

    const std::string file = folder / "many.pbn";
    std::ofstream(file, std::ios::binary) << games(300);
    const Run many = run({program, "check", file});
    report.add_median("check of 300 deals: cores against those at work",
                      {std::thread::hardware_concurrency() * many.milliseconds / many.processor}, "ratio", 1.15);
}

void measure_going_out(Report& report) {
    constexpr double kPageAim = 50;
    constexpr double kPaperAim = 300;
    std::vector<double> pages, papers;
    for (int round = 0; round < 3; ++round) {
        for (const auto& folder : fs::directory_iterator(SAMPLES_DIR "/aftavrin")) {
            const std::vector lessons{exchange::read_lesson(folder.path())};
            pages.push_back(time_of([&] { page::html(lessons); }));
            papers.push_back(time_of([&] {
                QBuffer bytes;
                bytes.open(QBuffer::WriteOnly);
                QPdfWriter writer(&bytes);
                paper::print(lessons, writer, {});
            }));
        }
    }
    report.add_median("web page of a sample lesson", pages, "ms", kPageAim);
    report.add_median("sheets of a sample lesson", papers, "ms", kPaperAim);
}

// Of the pages of all samples, where there is a browser.
void measure_first_picture([[maybe_unused]] Report& report, [[maybe_unused]] const fs::path& folder) {
#ifdef FIRST_PICTURE
    constexpr double kAim = 300;
    std::string command = FIRST_PICTURE " 3";
    for (const auto& lesson : fs::directory_iterator(SAMPLES_DIR "/aftavrin")) {
        const fs::path page = folder / ("page" + std::to_string(command.size()) + ".html");
        std::ofstream(page, std::ios::binary) << page::html({exchange::read_lesson(lesson.path())});
        command += " " + page.string();
    }
    std::FILE* const told = popen(command.c_str(), "r");
    std::vector<double> times;
    for (double time = 0; std::fscanf(told, "%lf", &time) == 1;)
        times.push_back(time);
    if (pclose(told) != 0 || times.empty()) return void(std::fputs("no browser could be measured\n", stderr));
    report.add_median("first picture of the page in a browser", times, "ms", kAim);
#else
    std::fputs("there is no browser here: its first picture is not measured\n", stderr);
#endif
}

}  // namespace

std::string games(int count) {
    test::Random random(1);
    std::string text = exchange::pbn_head();
    for (int number = 1; number <= count; ++number) {
        exchange::Board board = test::random_board(random);
        board.board = std::to_string(number);
        text += exchange::pbn_game(board) + "\r\n";
    }
    return text;
}

void measure_deals(Report& report, const std::string& programs) {
    std::string name = (fs::temp_directory_path() / "zandolin-bench-XXXXXX").string();
    const fs::path folder = mkdtemp(name.data());
    const std::string program = programs + "/zandolin_deals";
    measure_reading(report, program, folder);
    measure_import(report, program, folder);
    measure_checking(report, program, folder);
    measure_going_out(report);
    measure_first_picture(report, folder);
    fs::remove_all(folder);
}

}  // namespace bench
