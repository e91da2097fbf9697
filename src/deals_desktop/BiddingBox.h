#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "exchange/Auction.h"

namespace deals_desktop {

// The bidding, call by call: only those that the rules allow can be pressed.
class BiddingBox final : public QWidget {
public:
    BiddingBox();

    const exchange::Auction& auction() const { return auction_; }
    void set_auction(const exchange::Auction& auction);

    // When the user has changed it.
    std::function<void()> Changed;

private:
    struct Key {
        exchange::Call call{};
        std::unique_ptr<QPushButton> button{};
    };
    void add_key(const exchange::Call& call, int row, int column);
    void change(const exchange::Auction& auction);
    void show_auction();

    exchange::Auction auction_;
    QComboBox dealer_;
    QPushButton back_;
    QLabel calls_;
    std::vector<Key> keys_;
};

}  // namespace deals_desktop
