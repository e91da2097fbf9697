#include "deals_desktop/DealsPage.h"

#include <QFileDialog>
#include <QLabel>
#include <algorithm>

#include "deals_desktop/Asking.h"
#include "deals_desktop/BoardReading.h"
#include "deals_desktop/DealEditor.h"
#include "deals_desktop/FileNames.h"
#include "deals_desktop/TellingReport.h"
#include "deals_desktop/Words.h"
#include "exchange/PbnWriter.h"
#include "platform/CodePage.h"
#include "platform/Files.h"

namespace deals_desktop {

namespace {

constexpr std::pair<const QString*, deals::As> kKinds[] = {
    {&words::kAsBest, deals::As::Best}, {&words::kAsLessons, deals::As::Lessons}, {&words::kAsDeals, deals::As::Deals}};

}  // namespace

DealsPage::DealsPage(const std::string& program_folder)
    : Page(program_folder, words::kDeals, words::kDealTitle),
      open_(words::kOpen),
      new_(words::kNew),
      change_(words::kChange),
      import_(words::kImport),
      finish_(words::kFinish) {
    make_buttons();
    add_below_pane(fill_);
    fill_.Filled = [this](const exchange::Additions& additions) { fill(additions); };
}

void DealsPage::make_buttons() {
    for (const auto& [name, kind] : kKinds)
        as_.addItem(*name, static_cast<int>(kind));
    finish_.setToolTip(words::kFinishTip);
    auto* const as = new QLabel(words::kAs);
    as->setBuddy(&as_);
    buttons().addWidget(&open_);
    buttons().addWidget(&new_);
    buttons().addWidget(&change_);
    buttons().addStretch();
    buttons().addWidget(as);
    buttons().addWidget(&as_);
    buttons().addWidget(&finish_);
    buttons().addWidget(&import_);
    connect(&open_, &QPushButton::clicked, this, [this] { ask_for_files(); });
    connect(&new_, &QPushButton::clicked, this, [this] { make_new(); });
    connect(&change_, &QPushButton::clicked, this, [this] { change(); });
    connect(&import_, &QPushButton::clicked, this, [this] { import(); });
}

void DealsPage::ask_for_files() {
    open(QFileDialog::getOpenFileNames(this, words::kOpenTitle, {}, words::kOpenFilter));
}

void DealsPage::open(const QStringList& files) {
    if (files.isEmpty()) return;
    std::vector<std::string> paths;
    for (const QString& file : files)
        paths.push_back(path_of(file));
    work().start(
        words::kReading,
        [this, paths](Work::Course& course) {
            read_files(paths, course,
                       {[this](std::vector<Entry> entries) { add_entries(std::move(entries)); },
                        [this](std::vector<Messages::Told> told) { messages().add(std::move(told)); }});
        },
        [] {});
}

void DealsPage::clear_list() {
    if (!busy()) ask_about_typed(words::kClearAnyway, [this] { clear(); });
}

void DealsPage::ask_about_typed(const QString& anyway, std::function<void()> then) {
    const std::vector<int> typed = model().unsaved();
    if (typed.empty()) return then();
    const QString question =
        typed.size() == 1 ? words::kTypedGo.arg(words::kOneDeal) : words::kManyTypedGo.arg(typed.size());
    const QString answer = ask(this, question, {words::kKeepTyped, anyway, words::kStay});
    if (answer == anyway) return then();
    if (answer != words::kKeepTyped) return;
    const QString file = ask_where_to_write(this, words::kSaveTitle, {}, words::kSaveFilter, as_pbn);
    if (!file.isEmpty()) save(typed, file, std::move(then));
}

void DealsPage::make_new() {
    auto* const editor = new DealEditor(this, {});
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->Taken = [this](const exchange::Board& board) {
        Entry entry{.number = ++made_};
        entry.read = std::make_shared<const exchange::Board>(board);
        deals_desktop::set_board(entry, entry.read);
        add_entries({entry});
        list().choose(static_cast<int>(model().entries().size()) - 1);
    };
    editor->open();
}

void DealsPage::change() {
    const int number = model().entry_at(list().currentIndex());
    if (number < 0) return;
    auto* const editor = new DealEditor(this, *model().entries()[static_cast<std::size_t>(number)].board);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->Taken = [this, number](const exchange::Board& board) { take_own_board(number, board); };
    editor->open();
}

void DealsPage::save_to_file() {
    if (list().wanted().empty()) return messages().add(words::kNothingTicked);
    const QString file = ask_where_to_write(this, words::kSaveTitle, {}, words::kSaveFilter, as_pbn);
    if (!file.isEmpty()) save_to(file);
}

void DealsPage::save(const std::vector<int>& entries, const QString& file, std::function<void()> then) {
    std::vector<SharedBoard> boards;
    for (const int entry : entries)
        boards.push_back(model().entries()[static_cast<std::size_t>(entry)].board);
    const QString name = QFileInfo(file).fileName();
    const auto written = std::make_shared<bool>(false);
    work().start(
        words::kSaving.arg(name),
        [boards, written, path = platform::name_text(path_of(file))](Work::Course& course) {
            std::string text = exchange::pbn_head();
            for (std::size_t done = 0; done < boards.size(); ++done) {
                course.step(done, boards.size());
                text += exchange::pbn_game(*boards[done]) + "\r\n";
            }
            platform::replace_file(path, text);
            *written = true;
        },
        [this, boards, written, name, then = std::move(then)] {
            if (!*written) return;
            model().set_saved(boards);
            messages().add(boards.size() == 1 ? words::kOneDealWritten.arg(name)
                                              : words::kDealsWritten.arg(boards.size()).arg(name));
            then();
        });
}

void DealsPage::import() {
    const std::vector<int> wanted = list().wanted();
    if (wanted.empty()) return messages().add(words::kNothingTicked);
    std::vector<Entry> entries;
    for (const int entry : wanted)
        entries.push_back(model().entries()[static_cast<std::size_t>(entry)]);
    const deals::ImportChoices choices{.as = static_cast<deals::As>(as_.currentData().toInt()),
                                       .finish = finish_.isChecked()};
    const auto report = std::make_shared<TellingReport>(messages(), words::kMade);
    work().start(
        words::kImporting,
        [report, entries, choices, folder = program_folder()](Work::Course& course) {
            const TellingReport::Scope telling(*report, course);
            deals::NewDeals deals(folder, *report);
            deals::BoardImport import(deals, *report, choices);
            for (std::size_t done = 0; done < entries.size() && !course.stopped(); ++done) {
                course.tell(static_cast<int>(done), static_cast<int>(entries.size()));
                const Entry& entry = entries[done];
                const QString file = name_of(entry.path);
                import.add(*entry.read, entry.additions, file.toStdString(), entry.number);
            }
            deals.finish();
            course.step(entries.size(), entries.size());  // tells that it was stopped
        },
        [this, report, wanted, entries] {
            std::vector<SharedBoard> made;
            for (std::size_t i = 0; i < report->outcomes().size(); ++i) {
                if (report->outcomes()[i]) made.push_back(entries[i].board);
            }
            model().set_saved(made);
            take_outcomes(wanted, report->outcomes());
        });
}

// What was made is no longer ticked: the next import takes the rest.
void DealsPage::take_outcomes(const std::vector<int>& entries, const std::vector<bool>& outcomes) {
    std::vector<int> made;
    for (std::size_t i = 0; i < outcomes.size() && i < entries.size(); ++i) {
        if (outcomes[i]) made.push_back(entries[i]);
    }
    model().tick(made, false);
    messages().add(words::kImported.arg(made.size()).arg(outcomes.size() - made.size()));
}

// A contract tells the reader how the play goes, so that the board is read once more.
void DealsPage::fill(const exchange::Additions& additions) {
    const int number = model().entry_at(list().currentIndex());
    if (number < 0) return;
    const Entry entry = model().entries()[static_cast<std::size_t>(number)];
    if (!additions.contract || entry.path.empty()) return replace_board(number, entry.read, additions);
    work().start(
        words::kReading,
        [this, entry, additions, number](Work::Course& course) {
            SharedBoard read = read_again(entry, additions.contract);
            exchange::Additions lacking = additions;
            if (read && exchange::lead_of(*read)) lacking.lead.reset();  // the play was left out without the contract
            course.in_window([this, read, lacking, number, path = entry.path] {
                if (read) return replace_board(number, read, lacking);
                messages().add(words::kFileChanged.arg(file_of(path)));
            });
        },
        [] {});
}

void DealsPage::entry_shown(const Entry* entry) { fill_.show_entry(entry); }

}  // namespace deals_desktop
