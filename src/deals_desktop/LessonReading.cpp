#include "deals_desktop/LessonReading.h"

#include <functional>

#include "deals/LessonFolder.h"
#include "deals_desktop/Reasons.h"
#include "exchange/LessonReader.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"

namespace deals_desktop {

namespace {

Entry entry_of(const std::string& folder) {
    exchange::Lesson lesson = exchange::read_lesson(folder);
    Entry entry{.path = platform::name_bytes(folder), .name = QString::fromStdString(lesson.name)};
    for (const exchange::DealFile& file : lesson.files)
        entry.state = entry.state * 31 + std::hash<std::string>()(file.suffix + file.bytes);
    entry.read = std::make_shared<const exchange::Board>(std::move(lesson.board));
    set_board(entry, entry.read);
    entry.problems = std::move(lesson.problems);
    return entry;
}

}  // namespace

void read_lessons(const std::string& program_folder, Work::Course& course, const ReadingTo& to) {
    const std::vector<std::string> folders = deals::lesson_folders(program_folder);
    std::vector<Entry> entries;
    std::vector<Messages::Told> told;
    for (const std::string& folder : folders) {
        if (course.stopped()) break;
        course.tell(static_cast<int>(entries.size()), static_cast<int>(folders.size()));
        try {
            entries.push_back(entry_of(folder));
        } catch (const std::exception& failure) {
            told.push_back({{},
                            QString::fromStdString(platform::to_utf8(platform::last_part(folder))) +
                                QStringLiteral(": ") + dutch(failure)});
        }
    }
    course.in_window([to, entries = std::move(entries), told = std::move(told)]() mutable {
        to.told(std::move(told));
        to.entries(std::move(entries));
    });
}

}  // namespace deals_desktop
