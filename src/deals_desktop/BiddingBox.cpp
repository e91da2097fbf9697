#include "deals_desktop/BiddingBox.h"

#include <QGridLayout>

#include "deals_desktop/Notation.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

constexpr int kLevels = 7;
constexpr int kStrains = 5;

}  // namespace

BiddingBox::BiddingBox() : back_(words::kTakeBack) {
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    for (const exchange::Seat seat : exchange::kSeats)
        dealer_.addItem(dutch_word(seat));
    auto* const dealer = new QLabel(words::kDealerKey);
    dealer->setBuddy(&dealer_);
    grid->addWidget(dealer, 0, 0, 1, 2);
    grid->addWidget(&dealer_, 0, 2, 1, 3);
    for (int level = 1; level <= kLevels; ++level) {
        for (int strain = 0; strain < kStrains; ++strain)
            add_key(exchange::Call::of({level, static_cast<exchange::Strain>(strain)}), level, strain);
    }
    add_key(exchange::Call::pass(), kLevels + 1, 0);
    add_key(exchange::Call::doubled(), kLevels + 1, 1);
    add_key(exchange::Call::redoubled(), kLevels + 1, 2);
    grid->addWidget(&back_, kLevels + 1, 3, 1, 2);
    calls_.setTextFormat(Qt::RichText);
    calls_.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    calls_.setMinimumWidth(calls_.fontMetrics().averageCharWidth() * 24);
    grid->addWidget(&calls_, 0, kStrains, kLevels + 2, 1);
    grid->setColumnStretch(kStrains, 1);
    connect(&dealer_, &QComboBox::activated, this, [this](int seat) {
        change({static_cast<exchange::Seat>(seat), auction_.calls});
    });
    connect(&back_, &QPushButton::clicked, this, [this] {
        exchange::Auction shorter = auction_;
        shorter.calls.pop_back();
        change(shorter);
    });
    show_auction();
}

void BiddingBox::add_key(const exchange::Call& call, int row, int column) {
    Key key{call, std::make_unique<QPushButton>(dutch_text(call))};
    key.button->setAccessibleName(spoken(call));
    key.button->setMaximumWidth(key.button->fontMetrics().averageCharWidth() * 8);
    connect(key.button.get(), &QPushButton::clicked, this, [this, call] {
        exchange::Auction longer = auction_;
        longer.calls.push_back(call);
        change(longer);
    });
    static_cast<QGridLayout*>(layout())->addWidget(key.button.get(), row, column);
    keys_.push_back(std::move(key));
}

void BiddingBox::set_auction(const exchange::Auction& auction) {
    auction_ = auction;
    show_auction();
}

void BiddingBox::change(const exchange::Auction& auction) {
    set_auction(auction);
    Changed();
}

void BiddingBox::show_auction() {
    dealer_.setCurrentIndex(index_of(auction_.dealer));
    back_.setEnabled(!auction_.calls.empty());
    for (const Key& key : keys_) {
        exchange::Auction longer = auction_;
        longer.calls.push_back(key.call);
        key.button->setEnabled(longer.problem().empty());
    }
    calls_.setText(rich_bidding(auction_, palette()));
    calls_.setAccessibleName(spoken_bidding(auction_));
}

}  // namespace deals_desktop
