#pragma once

#include <QLabel>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>
#include <QWidget>
#include <array>

#include "deals_desktop/Entry.h"
#include "deals_desktop/PlayModel.h"

namespace deals_desktop {

// The chosen deal: the four hands as they sit, the bidding, the play and the texts.
class DealPane final : public QWidget {
public:
    DealPane();

    // `entry` is null where nothing is chosen. The name is what the entry is called.
    void show_entry(const Entry* entry, const QString& name);

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* make_table();
    void fit_to_font();
    void show_hands(const exchange::Board& board);
    void show_bidding(const exchange::Board& board);
    void show_texts(const exchange::Board& board);
    void show_play();
    void show_all();

    Entry shown_{};  // without a board where nothing is chosen
    QString name_;
    QLabel title_;
    QLabel middle_;
    QLabel best_;
    QLabel bidding_;
    std::array<QLabel, exchange::kSeatCount> hands_;
    QTabWidget tabs_;
    PlayModel play_model_;
    QTableView play_;
    QPlainTextEdit texts_;
};

}  // namespace deals_desktop
