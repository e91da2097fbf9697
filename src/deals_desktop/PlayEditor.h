#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <functional>
#include <optional>
#include <vector>

#include "exchange/Play.h"

namespace deals_desktop {

// The play that is typed in, card after card from the opening lead on, or nothing.
class PlayEditor final : public QGroupBox {
public:
    PlayEditor();

    // Those in front of the first word that is no card.
    std::vector<exchange::Card> cards() const;
    // One trick a line.
    void set_cards(const std::vector<exchange::Card>& cards);
    bool is_empty() const;
    // Holds the cards against the rules and tells below how far they go, or what is wrong first; with it, of how many
    // texts the cards are gone. Whether nothing is wrong.
    bool look(const std::optional<exchange::Deal>& deal, const std::optional<exchange::Contract>& contract,
              std::ptrdiff_t texts_that_go);

    // When the user has changed it.
    std::function<void()> Changed;

private:
    // None where nothing is wrong.
    QString problem(const std::optional<exchange::Deal>& deal, const std::optional<exchange::Contract>& contract) const;

    QPlainTextEdit typed_;
    QLabel told_;
};

}  // namespace deals_desktop
