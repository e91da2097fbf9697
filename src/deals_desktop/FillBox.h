#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <functional>

#include "deals_desktop/ContractBox.h"
#include "deals_desktop/Entry.h"

namespace deals_desktop {

// Asks for the contract and the opening lead of a board whose file does not tell them; gone where nothing lacks.
class FillBox final : public QGroupBox {
public:
    FillBox();

    void show_entry(const Entry* entry);
    std::function<void(const exchange::Additions& additions)> Filled;

private:
    std::optional<exchange::Contract> contract() const;
    void show_leads();
    void fill();

    SharedBoard board_{};
    bool asks_contract_ = false;
    bool asks_lead_ = false;
    ContractBox contract_;
    QComboBox lead_;
    QPushButton fill_;
    QWidget* contract_row_ = nullptr;
    QWidget* lead_row_ = nullptr;
};

}  // namespace deals_desktop
