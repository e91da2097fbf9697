#include "deals/Safekeeping.h"

#include <algorithm>
#include <set>
#include <stdexcept>

#include "base/Fout.h"
#include "base/Text.h"
#include "deals/BoardFile.h"
#include "deals/Export.h"
#include "deals/LessonFolder.h"
#include "deals/NewDeals.h"
#include "deals/Telling.h"
#include "exchange/Shelf.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/NewFolders.h"
#include "platform/Paths.h"

namespace deals {

namespace {

constexpr std::size_t kCopies = 30;
constexpr const char* kBeforeReplacing = "lessen voor terugzetten";

class Silence : public Report {
public:
    void note(const std::string&) override {}
    void made(const std::string&) override {}
    void refused(const std::string&) override {}
    void step(std::size_t done, std::size_t all) override {
        if (progress) progress(done, all);
    }
    Progress progress{};
};
// The names of those that were written.
class Written final : public Silence {
public:
    void made(const std::string& name) override { names.insert(name); }
    std::set<std::string> names;
};

std::string copy_in(const std::string& folder, const std::string& name) { return platform::join_path(folder, name); }

// Names of the copies, which sort by their days.
std::vector<std::string> copies_in(const std::string& folder) {
    std::vector<std::string> copies;
    for (const std::string& name : platform::files_of(folder, "*.pbn")) {
        if (!name.starts_with(kBeforeReplacing) && name.starts_with("lessen ")) copies.push_back(name);
    }
    return copies;
}

void drop_old(const std::string& folder) {
    const std::vector<std::string> copies = copies_in(folder);
    for (std::size_t i = 0; i + kCopies < copies.size(); ++i)
        platform::delete_file(copy_in(folder, copies[i]));
}

std::string lesson_root(const std::string& program_folder) { return platform::join_path(program_folder, "aftavrin"); }

bool same_files(std::vector<exchange::DealFile> one, std::vector<exchange::DealFile> other) {
    for (auto* const files : {&one, &other})
        std::ranges::sort(*files, {}, &exchange::DealFile::suffix);
    return std::ranges::equal(one, other, [](const auto& left, const auto& right) {
        return left.suffix == right.suffix && left.bytes == right.bytes;
    });
}

const std::string* text_at(const exchange::Board& board, const exchange::Place& place) {
    const auto found = std::ranges::find(board.texts, place, &exchange::PlacedText::place);
    return found == board.texts.end() ? nullptr : &found->text;
}

Difference difference_between(const exchange::Lesson& saved, const exchange::Lesson& now) {
    Difference difference{.name = saved.name, .files = saved.files};
    const exchange::Board& before = saved.board;
    const exchange::Board& board = now.board;
    difference.play = before.deal != board.deal || before.auction != board.auction ||
                      before.contract != board.contract || before.play != board.play;
    for (const exchange::PlacedText& text : before.texts) {
        const std::string* const there = text_at(board, text.place);
        if (!there) {
            ++difference.texts_lost;
        } else if (*there != text.text) {
            ++difference.texts_other;
        }
    }
    return difference;
}

// The lesson of that name as it is now; without files where there is none.
exchange::Lesson lesson_now(const std::string& name, const std::string& program_folder) {
    const std::string folder = platform::join_path(lesson_root(program_folder), name);
    try {
        return exchange::read_lesson(platform::path_text(platform::find_case_blind(folder)));
    } catch (const base::Fout& failure) {
        if (failure.nummer() == static_cast<int>(base::FoutNummer::FileNotFound)) return {};
        throw;
    }
}

// For a lesson whose name tells no number: one with its very files, or else one of the same hands; without files where
// there is none.
exchange::Lesson one_like(const exchange::Lesson& saved, const std::string& program_folder) {
    exchange::Lesson of_same_hands;
    for (const std::string& folder : lesson_folders(program_folder)) {
        if (exchange::number_of_lesson(platform::last_part(folder)) > 0) continue;
        exchange::Lesson lesson = lesson_now(platform::last_part(folder), program_folder);
        if (same_files(lesson.files, saved.files)) return lesson;
        if (saved.board.deal && lesson.board.deal == saved.board.deal) of_same_hands = std::move(lesson);
    }
    return of_same_hands;
}

// A lesson that is gone comes back whole.
void make_again(const Difference& lesson, const std::string& program_folder) {
    const std::string root = lesson_root(program_folder);
    platform::make_folders(root);
    std::vector<platform::NewFile> files;
    for (const exchange::DealFile& file : lesson.files)
        files.push_back({lesson.name + file.suffix, file.bytes});
    platform::NewFolders folders;
    folders.add(root, lesson.name, files);
    folders.finish();
}

// Each file at once; a file that the saved lesson does not have goes last.
void replace(const Difference& lesson, const std::string& program_folder) {
    const std::string& name = lesson.name;
    const std::string root = lesson_root(program_folder);
    const std::string folder = platform::path_text(platform::find_case_blind(platform::join_path(root, name)));
    const auto path_of = [&](const std::string& suffix) { return platform::join_path(folder, name + suffix); };
    platform::refuse_links(root, folder);
    for (const exchange::DealFile& file : lesson.files)
        platform::replace_file(path_of(file.suffix), file.bytes);
    for (const exchange::DealFile& file : lesson_now(name, program_folder).files) {
        if (std::ranges::find(lesson.files, file.suffix, &exchange::DealFile::suffix) == lesson.files.end())
            platform::delete_file(path_of(file.suffix));
    }
}

}  // namespace

std::size_t save_all(const std::string& program_folder, const std::string& file, Report& report) {
    ExportOptions options{.to = file, .program_folder = program_folder};
    for (const std::string& folder : lesson_folders(program_folder))
        options.lessons.push_back(platform::name_bytes(folder));
    return export_lessons(options, report);
}

std::string copies_folder(const std::string& program_folder) { return platform::join_path(program_folder, "bewaard"); }

bool keep_copy(const std::string& program_folder, const std::string& day, const Progress& progress) {
    const std::string folder = copies_folder(program_folder);
    const std::string name = "lessen " + day + ".pbn";
    if (lesson_folders(program_folder).empty()) return false;
    platform::make_folders(folder);
    const std::vector<std::string> before = copies_in(folder);
    if (std::ranges::find(before, name) != before.end()) return false;
    Silence silence;
    silence.progress = progress;
    if (save_all(program_folder, platform::name_bytes(copy_in(folder, name)), silence) == 0) return false;
    const bool same = !before.empty() &&
                      platform::read_file(copy_in(folder, before.back())) == platform::read_file(copy_in(folder, name));
    if (same) platform::delete_file(copy_in(folder, name));
    drop_old(folder);
    return !same;
}

std::vector<Difference> differences(const std::string& file, const std::string& program_folder,
                                    const Progress& progress) {
    std::vector<Difference> found;
    bool any = false;
    const auto compare = [&](exchange::Board& board) {
        auto files = exchange::lesson_files(board, board.notes);
        if (files.empty()) return;
        any = true;
        const int number = base::numeric_value(board.board);
        const std::string name = number > 0 ? exchange::lesson_name(number) : std::string();
        const exchange::Lesson saved = exchange::lesson_of(name, std::move(files));
        const exchange::Lesson now = name.empty() ? one_like(saved, program_folder) : lesson_now(name, program_folder);
        if (now.files.empty()) {
            found.push_back({.name = name, .gone = true, .files = saved.files});
        } else if (!same_files(saved.files, now.files)) {
            found.push_back(difference_between(saved, now));
            found.back().name = now.name;  // which the file does not tell where it has no number
        }
    };
    read_boards(file, compare, {}, progress);
    if (!any) throw std::runtime_error("no lessons are in this file");
    return found;
}

namespace {

// Makes a copy of all lessons under a name of its own; gives those that it holds.
std::set<std::string> keep_before_replacing(const std::string& program_folder, Report& report) {
    const std::string folder = copies_folder(program_folder);
    platform::make_folders(folder);
    std::string name;
    const std::vector<std::string> there = platform::files_of(folder, "*.pbn");
    for (int number = 1; name.empty() || std::ranges::count(there, name) > 0; ++number)
        name = kBeforeReplacing + (" " + std::to_string(number)) + ".pbn";
    Written written;
    written.progress = [&](std::size_t done, std::size_t all) { report.step(done, all); };
    save_all(program_folder, platform::name_bytes(copy_in(folder, name)), written);
    return written.names;
}

}  // namespace

void bring_back(const std::vector<Difference>& lessons, const std::string& program_folder, BringBack how,
                Report& report) {
    NewDeals deals(program_folder, report);
    std::set<std::string> kept;
    if (how == BringBack::InPlace) kept = keep_before_replacing(program_folder, report);
    std::size_t done = 0;
    for (const Difference& lesson : lessons) {
        report.step(done++, lessons.size());
        if (how == BringBack::Beside || lesson.name.empty()) {
            deals.add(NewDeals::Kind::Lesson, lesson.files, lesson.name + ": ");
            continue;
        }
        if (!lesson.gone && !kept.contains(lesson.name)) {
            report.refused(lesson.name + ": it could not be copied first");
            continue;
        }
        try {
            (lesson.gone ? make_again : replace)(lesson, program_folder);
            report.made(lesson.name);
        } catch (const base::Fout& failure) {
            report.refused(lesson.name + ": " + english(failure));
        }
    }
    deals.finish();
}

}  // namespace deals
