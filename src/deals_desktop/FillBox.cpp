#include "deals_desktop/FillBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "deals_desktop/Notation.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

QHBoxLayout* row_in(QWidget& widget) {
    auto* const row = new QHBoxLayout(&widget);
    row->setContentsMargins(0, 0, 0, 0);
    return row;
}

void add(QHBoxLayout& row, const QString& label, QWidget& box) {
    auto* const name = new QLabel(label);
    name->setBuddy(&box);
    row.addWidget(name);
    row.addWidget(&box);
    row.addStretch();
}

}  // namespace

FillBox::FillBox() : QGroupBox(words::kFill), fill_(words::kFillIn) {
    contract_row_ = new QWidget;
    add(*row_in(*contract_row_), words::kFillContract, contract_);
    lead_row_ = new QWidget;
    add(*row_in(*lead_row_), words::kFillLead, lead_);
    auto* const all = new QHBoxLayout(this);
    auto* const rows = new QVBoxLayout;
    rows->addWidget(contract_row_);
    rows->addWidget(lead_row_);
    all->addLayout(rows, 1);
    all->addWidget(&fill_);
    contract_.Changed = [this] { show_leads(); };
    connect(&fill_, &QPushButton::clicked, this, [this] { fill(); });
    hide();
}

void FillBox::show_entry(const Entry* entry) {
    if (entry && entry->board == board_) return;
    board_ = entry ? entry->board : nullptr;
    asks_contract_ = entry && lacks_contract(*entry);
    asks_lead_ = entry && lacks_lead(*entry);
    contract_row_->setVisible(asks_contract_);
    lead_row_->setVisible(asks_lead_);
    setVisible(asks_contract_ || asks_lead_);
    if (asks_contract_) contract_.set_contract(board_->contract);
    show_leads();
}

std::optional<exchange::Contract> FillBox::contract() const {
    return asks_contract_ ? contract_.contract() : board_->contract;
}

// They are those of the hand on the declarer's left.
void FillBox::show_leads() {
    lead_.clear();
    const bool whole = board_ && contract();
    fill_.setEnabled(whole);
    if (!asks_lead_ || !whole) return;
    const auto known = exchange::lead_of(*board_);
    for (const exchange::Card& card : board_->deal->of(contract()->leader()).cards()) {
        lead_.addItem(dutch_text(card), QString::fromStdString(exchange::text_of(card)));
        lead_.setItemData(lead_.count() - 1, spoken(card), Qt::AccessibleTextRole);
        if (card == known) lead_.setCurrentIndex(lead_.count() - 1);
    }
}

void FillBox::fill() {
    exchange::Additions additions;
    if (asks_contract_) additions.contract = contract();
    if (asks_lead_) additions.lead = exchange::card_of(lead_.currentData().toString().toStdString());
    Filled(additions);
}

}  // namespace deals_desktop
