#include "deals_desktop/Page.h"

#include <QVBoxLayout>

#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

bool can_be_solved(const Entry& entry) {
    const exchange::Board& board = *entry.board;
    return !entry.best && board.deal && board.contract && !board.error && !board.unfit;
}

}  // namespace

Page::Page(std::string program_folder, const QString& list_name, const QString& name_title)
    : program_folder_(std::move(program_folder)), model_(name_title), list_(model_, list_name) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    buttons_ = new QHBoxLayout;
    layout->addLayout(buttons_);

    beside_ = new QWidget;
    auto* const column = new QVBoxLayout(beside_);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(&pane_, 1);
    auto* const deals = new QSplitter(Qt::Horizontal);
    deals->addWidget(&list_);
    deals->addWidget(beside_);
    deals->setStretchFactor(0, 1);
    deals->setChildrenCollapsible(false);
    auto* const all = new QSplitter(Qt::Vertical);
    all->addWidget(deals);
    all->addWidget(&messages_);
    all->setStretchFactor(0, 1);
    messages_.setMinimumHeight(messages_.fontMetrics().height() * 2);
    all->setSizes({1, messages_.fontMetrics().height() * 4});
    layout->addWidget(all, 1);
    layout->addWidget(&working_);
    layout->addWidget(&solving_);

    list_.Chosen = [this](int entry) {
        if (entry >= 0) solver_.hurry(entry);
        show_chosen();
    };
    working_.Stopped = [this] { work_.stop(); };
    work_.Told = [this](const QString& name, int done, int of) { working_.tell(name, done, of); };
    work_.Ended = [this] { working_.hide(); };
    work_.Failed = [this](const QString& text) { messages_.add(text); };
    solving_.Stopped = [this] {
        solve(false);
        if (SolvingStopped) SolvingStopped();
    };
    solver_.Found = [this](const auto& solved) { take_solved(solved); };
}

void Page::solve(bool wanted) {
    if (wanted == wants_best_) return;
    wants_best_ = wanted;
    if (wanted) {
        ask_for(0, static_cast<int>(model_.entries().size()));
    } else {
        solver_.stop();
    }
    show_solving();
}

void Page::ask_for(int first, int end) {
    if (!wants_best_) return;
    std::vector<Solver::Job> jobs;
    for (int entry = first; entry < end; ++entry) {
        const Entry& asked = model_.entries()[static_cast<std::size_t>(entry)];
        if (can_be_solved(asked)) jobs.push_back({entry, asked.board});
    }
    solver_.add(jobs);
    show_solving();
}

void Page::add_entries(std::vector<Entry> entries) {
    const bool first = model_.entries().empty();
    const auto begin = static_cast<int>(model_.entries().size());
    model_.add(std::move(entries));
    const auto end = static_cast<int>(model_.entries().size());
    ask_for(begin, end);
    if (first && end > 0) list_.setCurrentIndex(model_.index(0, 0));
}

void Page::replace_board(int entry, SharedBoard read, const exchange::Additions& additions) {
    model_.set_board(entry, std::move(read), additions);
    board_changed(entry);
}

void Page::take_own_board(int entry, const exchange::Board& board) {
    model_.set_own_board(entry, std::make_shared<const exchange::Board>(board));
    list_.choose(entry);
    board_changed(entry);
}

void Page::board_changed(int entry) {
    ask_for(entry, entry + 1);
    show_chosen();
}

void Page::clear() {
    solver_.stop();
    model_.clear();
    show_chosen();
    show_solving();
}

void Page::show_chosen() {
    const QModelIndex line = list_.currentIndex();
    const int entry = model_.entry_at(line);
    if (entry < 0 && line.isValid()) {
        const Entry common = model_.common_at(line);
        pane_.show_entry(&common, line.siblingAtColumn(DealModel::Name).data().toString());
        return entry_shown(nullptr);
    }
    const Entry* const shown = entry < 0 ? nullptr : &model_.entries()[static_cast<std::size_t>(entry)];
    pane_.show_entry(shown, shown ? model_.name_of(entry) : QString());
    entry_shown(shown);
}

void Page::entry_shown(const Entry*) {}

void Page::take_solved(const std::vector<Solver::Solved>& solved) {
    const int chosen = model_.entry_at(list_.currentIndex());
    for (const Solver::Solved& each : solved) {
        model_.set_best(each.job.entry, each.job.board, each.best);
        if (each.job.entry == chosen) show_chosen();
    }
    show_solving();
}

void Page::show_solving() {
    if (solving()) {
        solving_.tell(words::kSolving, solver_.done(), solver_.all());
    } else {
        solving_.hide();
    }
}

}  // namespace deals_desktop
