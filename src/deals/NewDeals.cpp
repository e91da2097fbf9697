#include "deals/NewDeals.h"

#include "base/Fout.h"
#include "deals/Telling.h"
#include "platform/Files.h"
#include "platform/Paths.h"

namespace deals {

namespace {

constexpr std::size_t kAtATime = 1000;

}  // namespace

NewDeals::NewDeals(const std::string& program_folder, Report& report)
    : report_(report),
      companion_(program_folder),
      lessons_(platform::join_path(program_folder, "aftavrin")),
      numbers_(companion_.deals(), lessons_) {
    companion_.leave_own_folder();
    platform::clear_leftovers(companion_.deals());
    platform::clear_leftovers(lessons_);
    tell_notes();
}

void NewDeals::tell_notes() {
    for (const std::string& note : companion_.notes())
        report_.note(note);
}

void NewDeals::prepare(Kind kind) {
    if (kind == Kind::Lesson) {
        platform::make_folders(lessons_);
    } else {
        companion_.prepare();
        tell_notes();
    }
}

void NewDeals::add(Kind kind, const std::vector<exchange::DealFile>& files, const std::string& where) {
    const int number = numbers_.next();
    if (number == 0) return refuse(where + "all numbers up to 999 are in use");
    const bool lesson = kind == Kind::Lesson;
    const std::string name = lesson ? exchange::lesson_name(number) : exchange::deal_name(number);
    std::vector<platform::NewFile> named;
    named.reserve(files.size());
    for (const exchange::DealFile& file : files)
        named.push_back({name + file.suffix, file.bytes});
    try {
        prepare(kind);
        folders_.add(lesson ? lessons_ : companion_.deals(), name, named);
    } catch (const base::Fout& failure) {
        numbers_.release(number);
        return refuse(where + english(failure));
    }
    lines_.push_back({name, number, where});
    if (lines_.size() >= kAtATime) finish();
}

void NewDeals::refuse(const std::string& text) {
    if (lines_.empty()) return tell_refusal(text);
    lines_.push_back({text});
    if (lines_.size() >= kAtATime) finish();
}

void NewDeals::tell_refusal(const std::string& text) {
    report_.refused(one_line(text));
    ++refused_;
}

void NewDeals::finish() {
    std::string failed;
    try {
        folders_.finish();
    } catch (const base::Fout& failure) {
        failed = english(failure);
    }
    std::size_t placed = folders_.placed();
    for (const Line& line : lines_) {
        if (line.number == 0) {
            tell_refusal(line.text);
        } else if (placed > 0) {
            --placed;
            ++made_;
            report_.made(line.text);
        } else {
            numbers_.release(line.number);
            tell_refusal(line.where + failed);
        }
    }
    lines_.clear();
}

}  // namespace deals
