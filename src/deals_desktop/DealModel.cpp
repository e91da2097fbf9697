#include "deals_desktop/DealModel.h"

#include <algorithm>
#include <compare>
#include <numeric>
#include <string_view>
#include <utility>

#include "deals_desktop/FileNames.h"
#include "deals_desktop/Notation.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

// What a column is sorted by: numbers before words. The text is the entry's own.
using SortKey = std::pair<int, std::string_view>;

int number_in(const std::string& text) {
    const std::size_t digit = text.find_first_of("0123456789");
    return digit == std::string::npos ? 0 : std::atoi(text.c_str() + digit);
}

// Whether the last column has nothing to say.
bool is_silent(const Entry& entry) {
    const bool whole = entry.board->contract && exchange::lead_of(*entry.board);
    return !entry.board->unfit && (whole || entry.board->passed_out || !entry.name.isEmpty());
}

SortKey key_of(const Entry& entry, int column) {
    const exchange::Board& board = *entry.board;
    switch (column) {
        case DealModel::Name:
            return entry.name.isEmpty() ? SortKey{number_in(board.board), board.board} : SortKey{0, entry.path};
        case DealModel::Contract:
            if (!board.contract) return {board.passed_out ? 0 : -1, {}};
            return {board.contract->bid.level * 100 + static_cast<int>(board.contract->bid.strain) * 10 +
                        static_cast<int>(board.contract->doubling),
                    {}};
        case DealModel::Declarer:
            return {board.contract ? index_of(board.contract->declarer) : -1, {}};
        case DealModel::Lead: {
            const auto lead = exchange::lead_of(board);
            return {lead ? index_of(lead->suit) * 100 - lead->rank : -1000, {}};
        }
        case DealModel::Cards:
            return {board.play ? static_cast<int>(board.play->cards.size()) : 0, {}};
        case DealModel::Texts:
            return {static_cast<int>(board.texts.size()), {}};
        case DealModel::Tricks:
            return {entry.made.value_or(-1), {}};
        case DealModel::Best:
            return {entry.best ? entry.best->tricks : -1, {}};
        default:
            if (!entry.problems.empty()) return {2, entry.problems.front()};
            if (board.error) return {2, board.error->text};
            return {is_silent(entry) ? 0 : 1, board.unfit ? std::string_view(board.unfit->text) : std::string_view()};
    }
}

// Of no file, and no lesson.
bool is_own(const Entry& entry) { return entry.path.empty() && entry.name.isEmpty(); }

QString number(const std::optional<int>& value) { return value ? QString::number(*value) : QString(); }

}  // namespace

QString DealModel::name_of(int entry) const {
    const Entry& told = entries_[static_cast<std::size_t>(entry)];
    if (!told.name.isEmpty()) return told.name;
    const std::string& board = told.board->board;
    return board.empty() ? words::kDealWithoutBoard.arg(told.number) : words::kDeal.arg(QString::fromStdString(board));
}

Entry DealModel::common_at(const QModelIndex& head) const {
    const exchange::Board& first = *entries_[static_cast<std::size_t>(group_at(head).front())].board;
    exchange::Board board;
    board.board = first.board;
    board.dealer = first.dealer;
    board.vulnerable = first.vulnerable;
    board.deal = first.deal;
    Entry common{.path = entries_[static_cast<std::size_t>(group_at(head).front())].path};
    common.read = common.board = std::make_shared<const exchange::Board>(std::move(board));
    return common;
}

const DealModel::Group& DealModel::group_at(const QModelIndex& index) const {
    const std::size_t group =
        index.internalId() == 0 ? shown_[static_cast<std::size_t>(index.row())] : index.internalId() - 1;
    return groups_[group];
}

int DealModel::entry_at(const QModelIndex& index) const {
    if (!index.isValid() || is_head(index)) return -1;
    return group_at(index)[index.internalId() == 0 ? 0 : static_cast<std::size_t>(index.row())];
}

QModelIndex DealModel::index_of(int entry) const {
    const std::size_t number = group_of_[static_cast<std::size_t>(entry)];
    const Group& group = groups_[number];
    if (group.size() == 1) return createIndex(row_of_[number], 0, quintptr(0));
    const auto place = std::ranges::find(group, entry) - group.begin();
    return createIndex(static_cast<int>(place), 0, static_cast<quintptr>(number + 1));
}

QModelIndex DealModel::index(int row, int column, const QModelIndex& parent) const {
    if (row < 0 || row >= rowCount(parent) || column < 0 || column >= ColumnCount) return {};
    return createIndex(row, column,
                       parent.isValid() ? quintptr(shown_[static_cast<std::size_t>(parent.row())] + 1) : quintptr(0));
}

QModelIndex DealModel::parent(const QModelIndex& index) const {
    if (index.internalId() == 0) return {};
    return createIndex(row_of_[index.internalId() - 1], 0, quintptr(0));
}

int DealModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid()) return static_cast<int>(shown_.size());
    return parent.column() == 0 && is_head(parent) ? static_cast<int>(group_at(parent).size()) : 0;
}

int DealModel::columnCount(const QModelIndex&) const { return ColumnCount; }

// Lessons, what was typed in, and boards without a number stand alone.
std::size_t DealModel::group_for(const Entry& entry) {
    const exchange::Board& board = *entry.board;
    if (is_own(entry) || !entry.name.isEmpty() || board.board.empty() || !board.deal) return groups_.size();
    std::vector<std::size_t>& candidates = by_board_[{entry.path, board.board}];
    for (const std::size_t group : candidates) {
        if (entries_[static_cast<std::size_t>(groups_[group].front())].board->deal == board.deal) return group;
    }
    candidates.push_back(groups_.size());
    return groups_.size();
}

void DealModel::add(std::vector<Entry> entries) {
    const std::size_t groups_before = groups_.size();
    std::map<std::size_t, std::vector<int>> more_tables;
    for (Entry& entry : entries) {
        const std::size_t group = group_for(entry);
        const int number = static_cast<int>(entries_.size());
        if (group == groups_.size()) groups_.emplace_back();
        if (group < groups_before) {
            more_tables[group].push_back(number);
        } else {
            groups_[group].push_back(number);
        }
        entry.unsaved = is_own(entry);
        entries_.push_back(std::move(entry));
        group_of_.push_back(group);
        tables_.resize(groups_.size());
        table_of_.push_back(++tables_[group]);
    }
    if (groups_.size() > groups_before) {
        beginInsertRows({}, static_cast<int>(groups_before), static_cast<int>(groups_.size()) - 1);
        for (std::size_t group = groups_before; group < groups_.size(); ++group) {
            row_of_.push_back(static_cast<int>(shown_.size()));
            shown_.push_back(group);
        }
        endInsertRows();
    }
    for (const auto& [group, tables] : more_tables)
        insert_tables(group, tables);
    if (sort_column_ >= 0) sort(sort_column_, sort_order_);
}

// A line that stood alone becomes the head of its tables.
void DealModel::insert_tables(std::size_t group, const std::vector<int>& tables) {
    Group& all = groups_[group];
    const QModelIndex head = createIndex(row_of_[group], 0, quintptr(0));
    const int before = all.size() > 1 ? static_cast<int>(all.size()) : 0;
    beginInsertRows(head, before, static_cast<int>(all.size() + tables.size()) - 1);
    all.insert(all.end(), tables.begin(), tables.end());
    endInsertRows();
    emit dataChanged(head, head.siblingAtColumn(ColumnCount - 1));
}

void DealModel::clear() {
    beginResetModel();
    entries_.clear();
    group_of_.clear();
    groups_.clear();
    table_of_.clear();
    tables_.clear();
    shown_.clear();
    row_of_.clear();
    by_board_.clear();
    endResetModel();
    if (Ticked) Ticked();
}

void DealModel::entry_changed(int entry) {
    const QModelIndex line = index_of(entry);
    emit dataChanged(line, line.siblingAtColumn(ColumnCount - 1));
}

void DealModel::set_board(int entry, SharedBoard read, const exchange::Additions& additions) {
    Entry& changed = entries_[static_cast<std::size_t>(entry)];
    deals_desktop::set_board(changed, std::make_shared<const exchange::Board>(exchange::with(*read, additions)));
    changed.read = std::move(read);
    changed.additions = additions;
    changed.best.reset();
    changed.unsaved = is_own(changed);
    entry_changed(entry);
}

void DealModel::set_own_board(int entry, SharedBoard board) {
    leave_group(entry);
    entries_[static_cast<std::size_t>(entry)].path.clear();
    set_board(entry, std::move(board), {});
}

// Its deal is another by now: it stands alone, behind the group.
void DealModel::leave_group(int entry) {
    const std::size_t group = group_of_[static_cast<std::size_t>(entry)];
    if (groups_[group].size() == 1) {
        for (auto& [board, candidates] : by_board_)
            std::erase(candidates, group);
        return;
    }
    Group& all = groups_[group];
    const QModelIndex head = createIndex(row_of_[group], 0, quintptr(0));
    const auto place = static_cast<int>(std::ranges::find(all, entry) - all.begin());
    const bool two = all.size() == 2;  // the other one stands alone then
    beginRemoveRows(head, two ? 0 : place, two ? 1 : place);
    std::erase(all, entry);
    endRemoveRows();
    emit dataChanged(head, head.siblingAtColumn(ColumnCount - 1));
    const int row = row_of_[group] + 1;
    beginInsertRows({}, row, row);
    group_of_[static_cast<std::size_t>(entry)] = groups_.size();
    shown_.insert(shown_.begin() + row, groups_.size());
    groups_.push_back({entry});
    tables_.push_back(1);
    row_of_.push_back(row);
    number_rows();
    endInsertRows();
}

void DealModel::set_best(int entry, const SharedBoard& board, std::optional<exchange::BestPlay> best) {
    if (static_cast<std::size_t>(entry) >= entries_.size()) return;
    Entry& changed = entries_[static_cast<std::size_t>(entry)];
    if (changed.board != board) return;
    changed.best = std::move(best);
    entry_changed(entry);
}

std::vector<int> DealModel::unsaved() const {
    std::vector<int> all;
    for (std::size_t entry = 0; entry < entries_.size(); ++entry) {
        if (entries_[entry].unsaved) all.push_back(static_cast<int>(entry));
    }
    return all;
}

void DealModel::set_saved(const std::vector<SharedBoard>& boards) {
    for (Entry& entry : entries_) {
        if (entry.unsaved && std::ranges::find(boards, entry.board) != boards.end()) entry.unsaved = false;
    }
}

std::vector<int> DealModel::ticked() const {
    std::vector<int> all;
    for (std::size_t entry = 0; entry < entries_.size(); ++entry) {
        if (entries_[entry].ticked) all.push_back(static_cast<int>(entry));
    }
    return all;
}

void DealModel::tick(const std::vector<int>& entries, bool ticked) {
    for (const int entry : entries)
        entries_[static_cast<std::size_t>(entry)].ticked = ticked;
    // All lines that can be seen: cheaper than one by one, and heads change with their tables.
    for (const int entry : entries) {
        const QModelIndex parent = index_of(entry).parent();
        if (parent.isValid()) emit dataChanged(index(0, 0, parent), index(rowCount(parent) - 1, 0, parent));
    }
    if (!shown_.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
    if (Ticked) Ticked();
}

void DealModel::tick_all(bool ticked) {
    std::vector<int> all(entries_.size());
    std::iota(all.begin(), all.end(), 0);
    tick(all, ticked);
}

std::vector<int> DealModel::entries_of(const QModelIndexList& lines) const {
    std::vector<int> all;
    for (const QModelIndex& line : lines) {
        const int entry = entry_at(line);
        if (entry >= 0) {
            all.push_back(entry);
        } else {
            all.insert(all.end(), group_at(line).begin(), group_at(line).end());
        }
    }
    std::ranges::sort(all);
    const auto twice = std::ranges::unique(all);
    all.erase(twice.begin(), twice.end());
    return all;
}

QString DealModel::text(int entry, Column column, bool table) const {
    const Entry& shown = entries_[static_cast<std::size_t>(entry)];
    const exchange::Board& board = *shown.board;
    switch (column) {
        case Name: {
            if (table) return words::kTable.arg(table_of_[static_cast<std::size_t>(entry)]);
            if (!shown.name.isEmpty()) return shown.name;
            return board.board.empty() ? words::kDealWithoutBoard.arg(shown.number)
                                       : QString::fromStdString(board.board);
        }
        case Contract:
            if (board.contract) return dutch_text(*board.contract);
            return board.passed_out ? words::kPassedOut : QString();
        case Declarer:
            return board.contract ? dutch_letter(board.contract->declarer) : QString();
        case Lead: {
            const auto lead = exchange::lead_of(board);
            return lead ? dutch_text(*lead) : QString();
        }
        case Cards:
            return board.play ? QString::number(board.play->cards.size()) : QString();
        case Texts:
            return board.texts.empty() ? QString() : QString::number(board.texts.size());
        case Tricks:
            return number(shown.made);
        case Best:
            return shown.best ? QString::number(shown.best->tricks) : QString();
        default:
            return remark_of(shown);
    }
}

// The same in words where there are symbols.
QString DealModel::spoken_text(int entry, Column column, bool table) const {
    const exchange::Board& board = *entries_[static_cast<std::size_t>(entry)].board;
    if (column == Contract && board.contract) return spoken(*board.contract);
    if (column == Declarer && board.contract) return dutch_word(board.contract->declarer);
    const auto lead = exchange::lead_of(board);
    return column == Lead && lead ? spoken(*lead) : text(entry, column, table);
}

QVariant DealModel::head_data(const Group& group, int column, int role) const {
    const Entry& first = entries_[static_cast<std::size_t>(group.front())];
    if (column != Name) return {};
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
        return words::kTables.arg(QString::fromStdString(first.board->board)).arg(group.size());
    if (role != Qt::CheckStateRole) return {};
    const auto ticked =
        std::ranges::count_if(group, [&](int entry) { return entries_[static_cast<std::size_t>(entry)].ticked; });
    if (ticked == 0) return Qt::Unchecked;
    return static_cast<std::size_t>(ticked) == group.size() ? Qt::Checked : Qt::PartiallyChecked;
}

QVariant DealModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const auto column = static_cast<Column>(index.column());
    if (role == Qt::TextAlignmentRole && column >= Cards && column <= Best)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (is_head(index)) return head_data(group_at(index), column, role);
    const int entry = entry_at(index);
    const Entry& shown = entries_[static_cast<std::size_t>(entry)];
    switch (role) {
        case Qt::DisplayRole:
            return text(entry, column, index.internalId() != 0);
        case Qt::AccessibleTextRole:
            return spoken_text(entry, column, index.internalId() != 0);
        case Qt::CheckStateRole:
            return column == Name ? QVariant(shown.ticked ? Qt::Checked : Qt::Unchecked) : QVariant();
        case Qt::ToolTipRole:
            if (column == Name) return deals_desktop::name_of(shown.path);
            return column == Remark ? QVariant(remark_of(shown).toHtmlEscaped()) : QVariant();
        default:
            return {};
    }
}

QVariant DealModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return section == Name ? name_title_ : words::kColumns[section];
    if (role == Qt::ToolTipRole) return words::kColumnTips[section];
    return {};
}

Qt::ItemFlags DealModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    return index.column() == Name ? flags | Qt::ItemIsUserCheckable : flags;
}

bool DealModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole) return false;
    tick(entries_of({index}), value.toInt() == Qt::Checked);
    return true;
}

void DealModel::sort(int column, Qt::SortOrder order) {
    sort_column_ = column;
    sort_order_ = order;
    // What the views hold on to goes with its lines.
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<std::pair<std::size_t, int>> kept;  // group, and entry; -1 for its head
    for (const QModelIndex& index : before) {
        const std::size_t group =
            index.internalId() == 0 ? shown_[static_cast<std::size_t>(index.row())] : index.internalId() - 1;
        kept.emplace_back(group, entry_at(index));
    }
    sort_groups();
    QModelIndexList now;
    for (qsizetype i = 0; i < before.size(); ++i) {
        const auto& [group, entry] = kept[static_cast<std::size_t>(i)];
        const QModelIndex line = entry < 0 ? createIndex(row_of_[group], 0, quintptr(0)) : index_of(entry);
        now.append(line.siblingAtColumn(before[i].column()));
    }
    changePersistentIndexList(before, now);
    emit layoutChanged({}, VerticalSortHint);
}

// A group goes by its first line; what is equal stays in the order in which it was read.
void DealModel::sort_groups() {
    struct Line {
        SortKey key;
        int entry;
        std::size_t group;
    };
    const auto line_of = [&](int entry, std::size_t group) {
        return Line{sort_column_ < 0 ? SortKey() : key_of(entries_[static_cast<std::size_t>(entry)], sort_column_),
                    entry, group};
    };
    const auto before = [&](const Line& one, const Line& other) {
        const auto compared = one.key <=> other.key;
        if (compared == 0) return one.entry < other.entry;
        return sort_order_ == Qt::AscendingOrder ? std::is_lt(compared) : std::is_gt(compared);
    };
    std::vector<Line> heads;
    heads.reserve(groups_.size());
    std::vector<Line> tables;
    for (std::size_t number = 0; number < groups_.size(); ++number) {
        Group& group = groups_[number];
        tables.clear();
        for (const int entry : group)
            tables.push_back(line_of(entry, number));
        std::ranges::sort(tables, before);
        std::ranges::transform(tables, group.begin(), &Line::entry);
        heads.push_back(tables.front());
    }
    std::ranges::sort(heads, before);
    std::ranges::transform(heads, shown_.begin(), &Line::group);
    number_rows();
}

void DealModel::number_rows() {
    for (std::size_t row = 0; row < shown_.size(); ++row)
        row_of_[shown_[row]] = static_cast<int>(row);
}

}  // namespace deals_desktop
