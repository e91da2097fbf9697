#include "deals/Export.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <iterator>
#include <stdexcept>

#include "base/Text.h"
#include "deals/Arguments.h"
#include "deals/LessonFolder.h"
#include "deals/Telling.h"
#include "exchange/LessonReader.h"
#include "exchange/LinWriter.h"
#include "exchange/PbnWriter.h"
#include "page/Page.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Sibling.h"

namespace fs = std::filesystem;

namespace deals {

namespace {

using exchange::Lesson;

constexpr const char* kCostly = "--costly";

enum class Format { Pbn, Lin, Page, Paper };

struct Ending {
    const char* text;
    Format format;
};
constexpr Ending kEndings[] = {
    {".pbn", Format::Pbn}, {".lin", Format::Lin}, {".html", Format::Page}, {".pdf", Format::Paper}};

Format format_of(const std::string& file) {
    const std::string name = base::lower_case(file);
    const auto* const ending =
        std::ranges::find_if(kEndings, [&](const Ending& known) { return name.ends_with(known.text); });
    if (ending == std::end(kEndings)) throw WrongArguments("--to needs a file that ends in .pbn, .lin, .html or .pdf");
    return ending->format;
}

void tell(const Lesson& lesson, Format format, Report& report) {
    const char* const left_out =
        format == Format::Pbn ? "only this program will find the rest again" : "the rest is left out";
    for (const exchange::Remark& note : lesson.board.notes)
        report.note(lesson.name + ": " + note.text);
    for (const std::string& problem : lesson.problems)
        report.note(lesson.name + ": " + problem + "; " + left_out);
}

// A step is told of each lesson that is written, behind those of the reading.
std::string file_of(const std::vector<Lesson>& lessons, Format format, Report& report) {
    if (format == Format::Page)
        return page::html(lessons, [&](std::size_t done) { report.step(lessons.size() + done, 2 * lessons.size()); });
    if (format == Format::Lin) {
        std::vector<exchange::Board> boards;
        std::ranges::transform(lessons, std::back_inserter(boards), &Lesson::board);
        return exchange::lin_file(boards);
    }
    std::string text = exchange::pbn_head();
    for (std::size_t done = 0; done < lessons.size(); ++done) {
        report.step(lessons.size() + done, 2 * lessons.size());
        text += exchange::pbn_game(lessons[done]) + "\r\n";
    }
    return text;
}

// Why the lesson cannot go out in that form; empty if it can.
std::string refusal(const Lesson& lesson, Format format) {
    if (format == Format::Page || format == Format::Paper) return page::refusal(lesson);
    return lesson.board.deal || (format == Format::Pbn && lesson.has_play()) ? "" : "no whole deal";
}

struct Chosen {
    std::string folder;
    Lesson lesson;
};

Chosen chosen(const std::string& word, const std::string& program_folder, Format format) {
    const auto folder = lesson_folder(word, program_folder);
    if (!folder) throw std::runtime_error("no such lesson");
    Lesson lesson = exchange::read_lesson(*folder);
    if (const std::string why = refusal(lesson, format); !why.empty())
        throw std::runtime_error(platform::from_utf8(why));
    return {*folder, std::move(lesson)};
}

// Names of files are looked for without regard to case; another file must not be written over.
std::string path_of(const std::string& file) {
    const fs::path exact = fs::absolute(platform::path_of(file)).lexically_normal();
    std::string path = platform::path_text(exact);
    if (platform::find_case_blind(path) != exact)
        throw std::runtime_error("a file of that name in other letters is there");
    return path;
}

// Paper takes Qt, which the program beside this one has. It tells itself what went wrong.
void print(const std::string& path, const std::vector<std::string>& folders, bool mark_costly) {
    std::vector<std::string> words{"paper", platform::name_bytes(path)};
    std::ranges::transform(folders, std::back_inserter(words), platform::name_bytes);
    if (mark_costly) words.emplace_back(kCostly);
    if (platform::run_sibling("zandolin_deals_desktop", words) != 0)
        throw std::runtime_error("the paper could not be made");
}

}  // namespace

std::size_t export_lessons(const ExportOptions& options, Report& report) {
    const Format format = format_of(options.to);
    if (options.mark_costly && format != Format::Paper) throw WrongArguments("--costly needs a file that ends in .pdf");
    std::vector<Lesson> lessons;
    std::vector<std::string> folders;
    std::vector<std::function<void()>> told;
    for (const std::string& word : options.lessons) {
        report.step(told.size(), 2 * options.lessons.size());
        try {
            Chosen lesson = chosen(word, options.program_folder, format);
            folders.push_back(std::move(lesson.folder));
            lessons.push_back(std::move(lesson.lesson));
            told.emplace_back([&report, name = lessons.back().name] { report.made(name); });
        } catch (const std::exception& failure) {
            told.emplace_back([&report, text = word + ": " + english(failure)] { report.refused(text); });
        }
    }
    if (!lessons.empty()) {
        const std::string path = path_of(options.to);
        if (format == Format::Paper && options.paper) {
            platform::replace_file(path, options.paper(lessons));
        } else if (format == Format::Paper) {
            print(path, folders, options.mark_costly);
        } else {
            platform::replace_file(path, file_of(lessons, format, report));
        }
    }
    for (const Lesson& lesson : lessons)
        tell(lesson, format, report);
    for (const auto& tell_one : told)
        tell_one();
    return lessons.size();
}

int export_lessons(const std::vector<std::string>& words) {
    const Arguments arguments(words, {"--to", "--program"}, {kCostly});
    const auto to = arguments.value("--to");
    if (!to) throw WrongArguments("--to is missing");
    PrintedReport report;
    const std::size_t written =
        export_lessons({arguments.files(), *to, arguments.program_folder(), arguments.has(kCostly)}, report);
    if (written == 0) return kNothingDone;
    return written == arguments.files().size() ? kDone : kSomeRefused;
}

}  // namespace deals
