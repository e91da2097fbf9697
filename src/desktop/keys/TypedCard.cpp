#include "desktop/keys/TypedCard.h"

#include <utility>

namespace desktop::keys {

namespace {

constexpr qint64 kPatience = 2000;  // milliseconds between two characters of a card
const QLatin1StringView kSuits("SHRK");
const QLatin1StringView kValues("AHVBT98765432");

}  // namespace

std::optional<TypedCard::Card> TypedCard::take(QChar character, qint64 milliseconds) {
    const QChar letter = character.toUpper();
    const bool late = milliseconds - std::exchange(since_, milliseconds) > kPatience;
    const QString before = late ? QString() : typed_;
    typed_.clear();
    if (before.size() == 1 && letter == u'1') {
        typed_ = before + letter;
        return {};
    }
    if (before.size() == 2 && letter == u'0') return Card{before[0].toLatin1(), 'T'};
    if (before.size() == 1 && kValues.contains(letter)) return Card{before[0].toLatin1(), letter.toLatin1()};
    if (kSuits.contains(letter)) typed_ = letter;
    return {};
}

}  // namespace desktop::keys
