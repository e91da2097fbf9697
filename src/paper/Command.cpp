#include <QGuiApplication>
#include <algorithm>
#include <iostream>
#include <stdexcept>
#include <string>

#include "page/Page.h"
#include "paper/Paper.h"
#include "platform/CodePage.h"
#include "platform/Console.h"
#include "platform/Files.h"
#include "platform/Paths.h"

namespace paper {

namespace {

constexpr std::string_view kCostly = "--costly";

exchange::Lesson lesson_in(const std::string& folder) {
    exchange::Lesson lesson = exchange::read_lesson(platform::path_text(platform::path_of(folder)));
    if (const std::string why = page::refusal(lesson); !why.empty())
        throw std::runtime_error(platform::from_utf8(lesson.name + ": " + why));
    return lesson;
}

}  // namespace

int run(int argc, char** argv) try {
    qputenv("QT_QPA_PLATFORM", QT_PLATFORM_OF_PAPER);
    const QGuiApplication application(argc, argv);
    std::vector<std::string> words = platform::command_line(argc, argv);
    words.erase(words.begin());
    const Options options{.mark_costly = std::erase(words, kCostly) > 0};
    if (words.size() < 3) {
        std::cerr << "usage: zandolin_deals_desktop paper FILE.pdf LESSON-FOLDER... [--costly]\n";
        return 2;
    }
    std::vector<exchange::Lesson> lessons;
    for (std::size_t i = 2; i < words.size(); ++i)
        lessons.push_back(lesson_in(words[i]));
    platform::replace_file(platform::path_text(platform::path_of(words[1])), pdf(lessons, options));
    return 0;
} catch (const std::exception& failure) {
    std::cerr << "error: " << platform::to_utf8(failure.what()) << "\n";
    return 2;
}

}  // namespace paper
