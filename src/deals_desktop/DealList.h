#pragma once

#include <QTreeView>

#include "deals_desktop/DealModel.h"

namespace deals_desktop {

// The list of deals: sorted by its columns, with boxes to tick. Space ticks all chosen lines.
class DealList final : public QTreeView {
public:
    DealList(DealModel& model, const QString& accessible_name);

    // Of the chosen lines.
    std::vector<int> chosen_entries() const;
    // What is ticked, or else chosen.
    std::vector<int> wanted() const;
    // As the first of them is not.
    void tick_chosen();
    void choose(int entry);
    // As a click on the column's head: up, then down, then the order in which they were read.
    void sort_by(int column);

    // The entry whose line the user comes to; -1 for none.
    std::function<void(int entry)> Chosen;

protected:
    void currentChanged(const QModelIndex& now, const QModelIndex& before) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    DealModel& model_;
    int letter_ = 0;  // for which the columns are wide enough
};

}  // namespace deals_desktop
