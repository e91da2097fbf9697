#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <functional>

#include "deals_desktop/BiddingBox.h"
#include "deals_desktop/ContractBox.h"
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
    QWidget* make_rows();
    QLayout* make_buttons();
    void fit();
    void fill_fields();
    // The user has changed something.
    void change();
    // Looks at all that was typed.
    void look();
    // Whether the hands are a whole deal. The last one fills itself, and goes on doing so until the user types in it.
    bool look_at_hands();
    bool look_at_bidding();
    bool look_at_contract();
    bool look_at_play();
    void show_leads();
    // Of the bidding, once it is over; without one, as it was chosen.
    std::optional<exchange::Contract> contract() const;
    // What was typed, or the lead alone.
    std::optional<exchange::Play> play() const;
    exchange::Board typed() const;
    void accept() override;
    // Asks where something would be lost.
    void reject() override;

    const exchange::Board board_;  // as it was
    bool changed_ = false;
    std::optional<exchange::Deal> deal_;
    std::optional<exchange::Seat> filled_;               // whose hand filled itself
    std::optional<exchange::Contract> chosen_contract_;  // where no bidding is typed
    std::optional<exchange::Card> chosen_lead_;          // where no play is typed
    QScrollArea fields_;                                 // goes behind what stands in it
    std::array<HandEditor, exchange::kSeatCount> hands_;
    BiddingBox bidding_;
    QLabel bidding_problem_;
    QLineEdit number_;
    ContractBox contract_;
    QComboBox lead_;
    QPlainTextEdit question_, answer_;
    PlayEditor play_;
    QPushButton take_;
};

}  // namespace deals_desktop
