#pragma once

#include <QHBoxLayout>
#include <QSplitter>
#include <QWidget>
#include <string>

#include "deals_desktop/DealList.h"
#include "deals_desktop/DealPane.h"
#include "deals_desktop/Messages.h"
#include "deals_desktop/ProgressLine.h"
#include "deals_desktop/Solver.h"
#include "deals_desktop/Work.h"

namespace deals_desktop {

// What both pages of the window have: a row of buttons, a list with the chosen deal beside it, messages, and the work
// that goes on beside the window.
class Page : public QWidget {
public:
    // `program_folder` is Windows-1252.
    Page(std::string program_folder, const QString& list_name, const QString& name_title);

    // Best play is worked out as soon as boards are there, or no longer.
    void solve(bool wanted);

    DealModel& model() { return model_; }
    DealList& list() { return list_; }
    DealPane& pane() { return pane_; }
    Messages& messages() { return messages_; }
    bool busy() const { return work_.running(); }
    bool solving() const { return solver_.done() < solver_.all(); }

    // When best play is no longer wanted because its work was stopped.
    std::function<void()> SolvingStopped;

protected:
    QHBoxLayout& buttons() { return *buttons_; }
    const std::string& program_folder() const { return program_folder_; }
    // Below the deal.
    void add_below_pane(QWidget& widget) { beside_->layout()->addWidget(&widget); }
    void add_entries(std::vector<Entry> entries);
    void replace_board(int entry, SharedBoard read, const exchange::Additions& additions);
    void take_own_board(int entry, const exchange::Board& board);
    void clear();
    // When the user comes to a line, or what it shows has changed.
    virtual void entry_shown(const Entry* entry);

    Work& work() { return work_; }

private:
    void show_chosen();
    void take_solved(const std::vector<Solver::Solved>& solved);
    void show_solving();
    void ask_for(int first, int end);
    void board_changed(int entry);

    const std::string program_folder_;
    DealModel model_;
    DealList list_;
    DealPane pane_;
    Messages messages_;
    ProgressLine working_, solving_;
    QHBoxLayout* buttons_;
    QWidget* beside_;
    bool wants_best_ = true;
    Work work_;
    Solver solver_;
};

}  // namespace deals_desktop
