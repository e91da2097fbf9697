#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <array>
#include <functional>
#include <optional>

#include "exchange/Cards.h"

namespace deals_desktop {

// A hand that is typed in, a field for each suit.
class HandEditor final : public QGroupBox {
public:
    explicit HandEditor(exchange::Seat seat);

    // None where a field cannot be read.
    std::optional<exchange::Hand> hand() const;
    void set_hand(const exchange::Hand& hand);
    bool is_empty() const;
    // What is wrong, below the fields; empty where nothing is. Fields that cannot be read are told first.
    void tell(const QString& problem);

    // When the user has changed a field.
    std::function<void()> Changed;

private:
    std::array<QLineEdit, 4> suits_;
    QLabel problem_;
};

}  // namespace deals_desktop
