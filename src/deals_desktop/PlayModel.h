#pragma once

#include <QAbstractTableModel>
#include <QPalette>
#include <map>
#include <vector>

#include "deals_desktop/Entry.h"

namespace deals_desktop {

// The play of a board, a line a trick: the cards of the seats, who wins it, and how many tricks best play gives the
// declarer from there. A card that gave tricks away has a mark and a colour of its own.
class PlayModel final : public QAbstractTableModel {
public:
    enum Column { Trick, North, East, South, West, Winner, Best, ColumnCount };

    void show(const SharedBoard& board, const std::optional<exchange::BestPlay>& best, const QPalette& palette);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const exchange::CostlyCard* costly_at(int number) const;
    QVariant card_data(int row, exchange::Seat seat, int role) const;
    QString spoken_of(const exchange::Card& card, exchange::Seat seat, bool leads, int number, int role) const;
    // Of the declarer, behind that trick.
    int best_behind(int row) const;

    SharedBoard board_{};
    std::vector<exchange::Trick> tricks_;
    std::optional<exchange::BestPlay> best_;
    QPalette palette_;
};

}  // namespace deals_desktop
