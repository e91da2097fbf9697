#include "deals_desktop/FillBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "deals_desktop/Notation.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

constexpr int kLevels = 7;

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
}

}  // namespace

FillBox::FillBox() : QGroupBox(words::kFill), fill_(words::kFillIn) {
    for (int level = 1; level <= kLevels; ++level)
        level_.addItem(QString::number(level));
    for (int strain = 0; strain <= static_cast<int>(exchange::Strain::NoTrump); ++strain)
        strain_.addItem(dutch_text(static_cast<exchange::Strain>(strain)));
    for (const QString& doubling : words::kDoublings)
        doubling_.addItem(doubling);
    for (const exchange::Seat seat : exchange::kSeats)
        declarer_.addItem(dutch_word(seat));
    strain_.setAccessibleName(words::kStrainSpoken);
    doubling_.setAccessibleName(words::kDoublingSpoken);

    contract_row_ = new QWidget;
    auto* const contract = row_in(*contract_row_);
    add(*contract, words::kFillContract, level_);
    contract->addWidget(&strain_);
    contract->addWidget(&doubling_);
    add(*contract, words::kFillBy, declarer_);
    contract->addStretch();
    lead_row_ = new QWidget;
    auto* const lead = row_in(*lead_row_);
    add(*lead, words::kFillLead, lead_);
    lead->addStretch();

    auto* const all = new QHBoxLayout(this);
    auto* const rows = new QVBoxLayout;
    rows->addWidget(contract_row_);
    rows->addWidget(lead_row_);
    all->addLayout(rows, 1);
    all->addWidget(&fill_);
    connect(&declarer_, &QComboBox::currentIndexChanged, this, [this] { show_leads(); });
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
    if (asks_contract_ && board_->contract) {
        const exchange::Contract& contract = *board_->contract;
        level_.setCurrentIndex(contract.bid.level - 1);
        strain_.setCurrentIndex(static_cast<int>(contract.bid.strain));
        doubling_.setCurrentIndex(static_cast<int>(contract.doubling));
        declarer_.setCurrentIndex(index_of(contract.declarer));
    }
    show_leads();
}

std::optional<exchange::Contract> FillBox::contract() const {
    if (!asks_contract_) return board_->contract;
    return exchange::Contract{{level_.currentIndex() + 1, static_cast<exchange::Strain>(strain_.currentIndex())},
                              static_cast<exchange::Doubling>(doubling_.currentIndex()),
                              static_cast<exchange::Seat>(declarer_.currentIndex())};
}

void FillBox::show_leads() {
    lead_.clear();
    if (!asks_lead_) return;
    const auto known = exchange::lead_of(*board_);
    for (const exchange::Card& card : board_->deal->of(contract()->leader()).cards()) {
        lead_.addItem(dutch_text(card), QString::fromStdString(exchange::text_of(card)));
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
