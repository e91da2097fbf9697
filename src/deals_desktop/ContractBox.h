#pragma once

#include <QComboBox>
#include <QLabel>
#include <QWidget>
#include <functional>
#include <optional>

#include "exchange/Auction.h"

namespace deals_desktop {

// A row in which a contract and its declarer are chosen.
class ContractBox final : public QWidget {
public:
    ContractBox();

    // None as long as not all of it is chosen.
    std::optional<exchange::Contract> contract() const;
    void set_contract(const std::optional<exchange::Contract>& contract);
    // What of a contract that was begun has still to be chosen; empty where nothing is, or all of it.
    QString problem() const;

    // When the user has changed it.
    std::function<void()> Changed;

private:
    QComboBox level_, strain_, doubling_, declarer_;
    QLabel problem_;
};

}  // namespace deals_desktop
