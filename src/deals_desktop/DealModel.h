#pragma once

#include <QAbstractItemModel>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "deals_desktop/Entry.h"

namespace deals_desktop {

// The lines of a list. Boards with one number and one deal in a file, as they were played at several tables, stand
// below a line of their own. What a cell shows is worked out when it is asked for.
class DealModel final : public QAbstractItemModel {
public:
    // `name_title` stands above the first column.
    explicit DealModel(const QString& name_title) : name_title_(name_title) {}

    enum Column { Name, Contract, Declarer, Lead, Cards, Texts, Tricks, Best, Remark, ColumnCount };

    void add(std::vector<Entry> entries);
    void clear();

    const std::vector<Entry>& entries() const { return entries_; }
    // The number of the entry in `entries`; -1 for a line above several tables.
    int entry_at(const QModelIndex& index) const;
    QModelIndex index_of(int entry) const;
    // What the tables below such a line have in common: number, dealer, vulnerability and hands.
    Entry common_at(const QModelIndex& head) const;
    // What the line shows is called so, in messages too.
    QString name_of(int entry) const;

    void set_board(int entry, SharedBoard read, const exchange::Additions& additions);
    // The same of a board that the user made; it has no file any more, and no tables beside it.
    void set_own_board(int entry, SharedBoard board);
    // Nothing where the entry has another board by now.
    void set_best(int entry, const SharedBoard& board, std::optional<exchange::BestPlay> best);

    // Those that were typed in or mended, and stand in no file yet.
    std::vector<int> unsaved() const;
    // All that have one of these boards stand in a file now.
    void set_saved(const std::vector<SharedBoard>& boards);

    // Those that are ticked, in the order in which they were read.
    std::vector<int> ticked() const;
    void tick(const std::vector<int>& entries, bool ticked);
    void tick_all(bool ticked);
    // The entries of these lines and of the tables below them.
    std::vector<int> entries_of(const QModelIndexList& lines) const;
    // After a change of ticks.
    std::function<void()> Ticked;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    // Column -1 is the order in which they were read.
    void sort(int column, Qt::SortOrder order) override;

private:
    using Group = std::vector<int>;                   // entries, in the order shown
    using Key = std::pair<std::string, std::string>;  // file and board

    bool is_head(const QModelIndex& index) const { return index.internalId() == 0 && group_at(index).size() > 1; }
    const Group& group_at(const QModelIndex& index) const;
    std::size_t group_for(const Entry& entry);
    void leave_group(int entry);
    void number_rows();
    void insert_tables(std::size_t group, const std::vector<int>& tables);
    void entry_changed(int entry);
    void sort_groups();
    QString text(int entry, Column column, bool table) const;
    QString spoken_text(int entry, Column column, bool table) const;
    QVariant head_data(const Group& group, int column, int role) const;

    const QString name_title_;
    std::vector<Entry> entries_;
    std::vector<std::size_t> group_of_;  // by entry
    std::vector<int> table_of_;          // by entry: its number in the group, from 1, whoever left it since
    std::vector<Group> groups_;          // as they were read
    std::vector<int> tables_;            // by group: how many it has had
    std::vector<std::size_t> shown_;     // the groups, in the order shown
    std::vector<int> row_of_;            // by group
    std::map<Key, std::vector<std::size_t>> by_board_;
    int sort_column_ = -1;
    Qt::SortOrder sort_order_ = Qt::AscendingOrder;
};

}  // namespace deals_desktop
