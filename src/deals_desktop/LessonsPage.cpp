#include "deals_desktop/LessonsPage.h"

#include <QDate>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <stdexcept>

#include "deals/Export.h"
#include "deals/Telling.h"
#include "deals_desktop/FileNames.h"
#include "deals_desktop/LessonReading.h"
#include "deals_desktop/RestoreDialog.h"
#include "deals_desktop/TellingReport.h"
#include "deals_desktop/Words.h"
#include "exchange/LessonReader.h"
#include "page/Page.h"
#include "paper/Paper.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Paths.h"

namespace deals_desktop {

namespace {

// What lessons can be written as.
struct Format {
    const char* name;
    const char* ending;
};
constexpr Format kFormats[] = {{"PBN", ".pbn"}, {"LIN", ".lin"}, {"Webpagina", ".html"}, {"Papier", ".pdf"}};

QString filter_of(const Format& format) {
    return QStringLiteral("%1 (*%2)").arg(QLatin1String(format.name), QLatin1String(format.ending));
}

QString all_filters() {
    QStringList filters;
    for (const Format& format : kFormats)
        filters.append(filter_of(format));
    return filters.join(QStringLiteral(";;"));
}

// With the ending of the filter where the user gave none of ours.
QString with_known_ending(const QString& file, const QString& filter) {
    QString chosen;
    for (const Format& format : kFormats) {
        if (file.endsWith(QLatin1String(format.ending), Qt::CaseInsensitive)) return file;
        if (filter == filter_of(format)) chosen = QLatin1String(format.ending);
    }
    return file + chosen;
}

// The lessons that a sheet can show; the others are told.
std::vector<exchange::Lesson> printable(const std::vector<std::string>& folders, deals::Report& report) {
    std::vector<exchange::Lesson> lessons;
    for (const std::string& folder : folders) {
        report.step(lessons.size(), 2 * folders.size());
        try {
            exchange::Lesson lesson = exchange::read_lesson(folder);
            if (const std::string why = page::refusal(lesson); !why.empty())
                throw std::runtime_error(platform::from_utf8(why));
            lessons.push_back(std::move(lesson));
        } catch (const std::exception& failure) {
            report.refused(platform::to_utf8(platform::last_part(folder)) + ": " + deals::english(failure));
        }
    }
    return lessons;
}

deals::Progress progress_of(Work::Course& course) {
    return [&course](std::size_t done, std::size_t all) { course.step(done, all); };
}

// How the sheets are made: half of the work, the other being the reading.
paper::Options paper_options(bool mark_costly, std::size_t lessons, deals::Report& report) {
    return {.mark_costly = mark_costly,
            .between = [lessons, &report](std::size_t done) { report.step(lessons + done, 2 * lessons); }};
}

// A file is replaced whole; what else a printer was given is taken back as far as it can be.
void print_lessons(const std::vector<exchange::Lesson>& lessons, QPrinter& printer, const paper::Options& options) {
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        const std::string path = platform::name_text(path_of(printer.outputFileName()));
        return platform::replace_file(path, paper::pdf(lessons, options, printer.pageLayout().pageSize()));
    }
    printer.setFullPage(true);
    try {
        paper::print(lessons, printer, options);
    } catch (const std::exception&) {
        printer.abort();
        throw;
    }
    if (printer.printerState() == QPrinter::Error) throw std::runtime_error("the printer failed");
}

}  // namespace

LessonsPage::LessonsPage(const std::string& program_folder)
    : Page(program_folder, words::kLessons, words::kLessonTitle),
      refresh_(words::kRefresh),
      save_(words::kSaveAll),
      restore_(words::kRestore),
      print_(words::kPrint),
      export_(words::kExport),
      mark_costly_(words::kMarkCostly) {
    mark_costly_.setToolTip(words::kMarkCostlyTip);
    buttons().addWidget(&refresh_);
    buttons().addStretch();
    buttons().addWidget(&save_);
    buttons().addWidget(&restore_);
    buttons().addWidget(&mark_costly_);
    buttons().addWidget(&print_);
    buttons().addWidget(&export_);
    connect(&refresh_, &QPushButton::clicked, this, [this] { refresh(); });
    connect(&save_, &QPushButton::clicked, this, [this] { save_all(); });
    connect(&restore_, &QPushButton::clicked, this, [this] { restore(); });
    connect(&print_, &QPushButton::clicked, this, [this] { print(); });
    connect(&export_, &QPushButton::clicked, this, [this] { export_to_file(); });
}

void LessonsPage::refresh() {
    auto known = std::make_shared<Known>();
    std::string chosen;
    const int current = model().entry_at(list().currentIndex());
    if (current >= 0) chosen = model().entries()[static_cast<std::size_t>(current)].path;
    auto first = std::make_shared<bool>(true);
    work().start(
        words::kReading,
        [this, known, first, folder = program_folder()](Work::Course& course) {
            read_lessons(folder, course,
                         {[this, known, first](std::vector<Entry> entries) {
                              if (std::exchange(*first, false)) {
                                  for (const Entry& entry : model().entries())
                                      known->emplace(entry.path, entry);
                                  clear();
                              }
                              take(std::move(entries), *known);
                          },
                          [this](std::vector<Messages::Told> told) { messages().add(std::move(told)); }});
        },
        [this, chosen] {
            for (std::size_t entry = 0; entry < model().entries().size(); ++entry) {
                if (model().entries()[entry].path == chosen) list().choose(static_cast<int>(entry));
            }
        });
}

void LessonsPage::take(std::vector<Entry> entries, const Known& known) {
    for (Entry& entry : entries) {
        const auto before = known.find(entry.path);
        if (before == known.end()) continue;
        entry.ticked = before->second.ticked;
        if (before->second.state == entry.state) entry.best = before->second.best;
    }
    add_entries(std::move(entries));
}

void LessonsPage::export_to_file() {
    if (list().wanted().empty()) return messages().add(words::kNothingTicked);
    const QString file = ask_where_to_write(this, words::kExportTitle, {}, all_filters(), with_known_ending);
    if (!file.isEmpty()) export_to(file);
}

void LessonsPage::export_to(const QString& file) {
    const auto report = std::make_shared<TellingReport>(messages(), words::kWritten);
    deals::ExportOptions options{.lessons = wanted_folders(), .to = path_of(file), .program_folder = program_folder()};
    options.mark_costly = mark_costly_.isChecked() && file.endsWith(words::kPdf, Qt::CaseInsensitive);
    options.paper = [report, costly = options.mark_costly](const std::vector<exchange::Lesson>& lessons) {
        return paper::pdf(lessons, paper_options(costly, lessons.size(), *report));
    };
    const QString name = QFileInfo(file).fileName();
    work().start(
        words::kExporting.arg(name),
        [this, report, options, name](Work::Course& course) {
            std::size_t written = 0;
            {
                const TellingReport::Scope telling(*report, course);
                written = deals::export_lessons(options, *report);
            }
            tell_written(written, name, course);
        },
        [] {});
}

std::vector<std::string> LessonsPage::wanted_folders() {
    std::vector<std::string> folders;
    for (const int entry : list().wanted())
        folders.push_back(model().entries()[static_cast<std::size_t>(entry)].path);
    return folders;
}

void LessonsPage::print() {
    if (list().wanted().empty()) return messages().add(words::kNothingTicked);
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setPageSize(QPageSize(QPageSize::A4));
    QPrintDialog dialog(printer.get(), this);
    dialog.setWindowTitle(words::kPrintTitle);
    if (dialog.exec() == QDialog::Accepted) print_on(printer);
}

void LessonsPage::print_on(const std::shared_ptr<QPrinter>& printer) {
    const auto report = std::make_shared<TellingReport>(messages(), words::kPrinted);
    work().start(
        words::kPrinting,
        [report, printer, mark_costly = mark_costly_.isChecked(), folders = wanted_folders()](Work::Course& course) {
            const TellingReport::Scope telling(*report, course);
            const std::vector<exchange::Lesson> lessons = printable(folders, *report);
            if (lessons.empty()) return;
            print_lessons(lessons, *printer, paper_options(mark_costly, lessons.size(), *report));
            for (const exchange::Lesson& lesson : lessons)
                report->made(lesson.name);
        },
        [] {});
}

void LessonsPage::tell_written(std::size_t lessons, const QString& name, Work::Course& course) {
    if (lessons == 0) return;
    const QString count = lessons == 1 ? words::kOneLesson : words::kManyLessons.arg(lessons);
    course.in_window([this, count, name] { messages().add(words::kExported.arg(count, name)); });
}

void LessonsPage::save_all() {
    const QString file = ask_where_to_write(this, words::kSaveTitle, words::kSaveName, words::kSaveFilter, as_pbn);
    if (!file.isEmpty()) save_all_in(file);
}

void LessonsPage::save_all_in(const QString& file) {
    const QString name = QFileInfo(file).fileName();
    const auto report = std::make_shared<TellingReport>(messages(), words::kWritten);
    work().start(
        words::kSaving.arg(name),
        [this, report, name, path = path_of(file), folder = program_folder()](Work::Course& course) {
            std::size_t written = 0;
            {
                const TellingReport::Scope telling(*report, course);
                written = deals::save_all(folder, path, *report);
            }
            tell_written(written, name, course);
        },
        [] {});
}

void LessonsPage::restore() {
    const QString copies = file_of(platform::name_bytes(deals::copies_folder(program_folder())));
    const QString file = QFileDialog::getOpenFileName(this, words::kRestoreTitle, copies, words::kSaveFilter);
    if (!file.isEmpty()) restore_from(file);
}

void LessonsPage::restore_from(const QString& file) {
    const QString name = QFileInfo(file).fileName();
    work().start(
        words::kComparing.arg(name),
        [this, name, path = path_of(file), folder = program_folder()](Work::Course& course) {
            auto found = deals::differences(path, folder, [&course](std::size_t bytes, std::size_t all) {
                course.step(bytes * 100 / std::max<std::size_t>(all, 1), 100);
            });
            course.in_window([this, name, found = std::move(found)] {
                if (found.empty()) return messages().add(words::kNothingDiffers.arg(name));
                ask_what_to_restore(name, found);
            });
        },
        [] {});
}

void LessonsPage::ask_what_to_restore(const QString& name, const std::vector<deals::Difference>& found) {
    auto* const dialog = new RestoreDialog(this, name, found);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->Wanted = [this](const auto& chosen, deals::BringBack how) { bring_back(chosen, how); };
    dialog->open();
}

void LessonsPage::bring_back(const std::vector<deals::Difference>& lessons, deals::BringBack how) {
    const auto report = std::make_shared<TellingReport>(messages(), words::kBroughtBack);
    work().start(
        words::kRestoring,
        [report, lessons, how, folder = program_folder()](Work::Course& course) {
            const TellingReport::Scope telling(*report, course);
            deals::bring_back(lessons, folder, how, *report);
        },
        [this] { refresh(); });
}

void LessonsPage::keep_copy() {
    work().start(
        words::kKeeping,
        [this, folder = program_folder(),
         day = QDate::currentDate().toString(Qt::ISODate).toStdString()](Work::Course& course) {
            if (!deals::keep_copy(folder, day, progress_of(course))) return;
            const QString copies = name_of(platform::name_bytes(deals::copies_folder(folder)));
            course.in_window([this, copies] { messages().add(words::kKept.arg(copies)); });
        },
        [] {});
}

}  // namespace deals_desktop
