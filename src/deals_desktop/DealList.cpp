#include "deals_desktop/DealList.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace deals_desktop {

namespace {

// Widths of columns, in letters.
constexpr int kLetters[DealModel::ColumnCount] = {20, 8, 5, 8, 7, 7, 8, 4, 20};

}  // namespace

DealList::DealList(DealModel& model, const QString& accessible_name) : model_(model) {
    setModel(&model);
    setAccessibleName(accessible_name);
    setUniformRowHeights(true);  // or each line would be measured
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    header()->setSortIndicatorClearable(true);
    setSortingEnabled(true);
    letter_ = fontMetrics().averageCharWidth();
    for (int column = 0; column < DealModel::ColumnCount; ++column)
        header()->resizeSection(column, (kLetters[column] + 2) * letter_);
}

// Columns keep the widths that the user gave them, in letters.
void DealList::changeEvent(QEvent* event) {
    QTreeView::changeEvent(event);
    if (event->type() != QEvent::FontChange || letter_ == 0) return;
    const int letter = fontMetrics().averageCharWidth();
    for (int column = 0; column < DealModel::ColumnCount; ++column)
        header()->resizeSection(column, header()->sectionSize(column) * letter / letter_);
    letter_ = letter;
}

std::vector<int> DealList::chosen_entries() const { return model_.entries_of(selectionModel()->selectedRows()); }

std::vector<int> DealList::wanted() const {
    auto ticked = model_.ticked();
    return ticked.empty() ? chosen_entries() : ticked;
}

void DealList::tick_chosen() {
    const std::vector<int> chosen = chosen_entries();
    if (!chosen.empty()) model_.tick(chosen, !model_.entries()[static_cast<std::size_t>(chosen.front())].ticked);
}

void DealList::choose(int entry) {
    const QModelIndex line = model_.index_of(entry);
    setCurrentIndex(line);
    scrollTo(line);
}

void DealList::sort_by(int column) {
    const bool again = header()->sortIndicatorSection() == column;
    const bool down = again && header()->sortIndicatorOrder() == Qt::DescendingOrder;
    sortByColumn(down ? -1 : column, again && !down ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void DealList::currentChanged(const QModelIndex& now, const QModelIndex& before) {
    QTreeView::currentChanged(now, before);
    if (Chosen) Chosen(model_.entry_at(now));
}

void DealList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier) return tick_chosen();
    QTreeView::keyPressEvent(event);
}

}  // namespace deals_desktop
