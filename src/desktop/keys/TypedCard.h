#pragma once

#include <QChar>
#include <QString>
#include <optional>

namespace desktop::keys {

// A card that is typed as the letter of its suit and then that of its value: "HV" is the queen of hearts. The ten is
// "T" or "10".
class TypedCard {
public:
    struct Card {
        char suit;   // S, H, R or K
        char value;  // A, H, V, B, T or 9 to 2

        friend bool operator==(const Card&, const Card&) = default;
    };

    // Takes the next character; `milliseconds` tells the time. The card if it is whole now. What cannot follow on a
    // half-typed card, or comes too late for it, ends it and may begin another one.
    std::optional<Card> take(QChar character, qint64 milliseconds);

private:
    QString typed_;
    qint64 since_ = 0;
};

}  // namespace desktop::keys
