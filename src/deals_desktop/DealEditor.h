#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <functional>

#include "deals_desktop/BiddingBox.h"
#include "deals_desktop/HandEditor.h"
#include "deals_desktop/PlayEditor.h"
#include "exchange/Board.h"

namespace deals_desktop {

// A deal that is typed in or mended. What the rules do not allow is told beside it, and keeps the deal from being
// taken.
class DealEditor final : public QDialog {
public:
    // Begins with that board; an empty one for a new deal.
    DealEditor(QWidget* parent, exchange::Board board);

    std::function<void(const exchange::Board& board)> Taken;

private:
    void make_fields();
    void fill_fields();
    // Looks at all that was typed, and fills the last hand in.
    void look();
    // Whether the hands are a whole deal.
    bool look_at_hands();
    bool look_at_bidding();
    bool look_at_play();
    void show_leads();
    // Of the bidding, once it is over; without one, that of the board.
    std::optional<exchange::Contract> contract() const;
    // What was typed, or the lead alone.
    std::optional<exchange::Play> play() const;
    void accept() override;

    const exchange::Board board_;  // as it was
    std::optional<exchange::Deal> deal_;
    std::optional<exchange::Card> chosen_lead_;  // where no play is typed
    std::array<HandEditor, exchange::kSeatCount> hands_;
    BiddingBox bidding_;
    QLabel bidding_problem_;
    QLineEdit number_;
    QComboBox lead_;
    QPlainTextEdit question_, answer_;
    PlayEditor play_;
    QPushButton take_;
};

}  // namespace deals_desktop
