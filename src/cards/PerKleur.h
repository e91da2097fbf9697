#pragma once

#include <array>

#include "cards/Kaart.h"

namespace cards {

// One of a kind for each suit.
template <class T>
class PerKleur {
public:
    // What a function makes for the suits in the order of the card numbers.
    template <class Maak>
    explicit PerKleur(Maak maak)
        : van_{maak(Kleur::Schoppen), maak(Kleur::Harten), maak(Kleur::Ruiten), maak(Kleur::Klaveren)} {}

    T& operator()(Kleur kleur) { return van_[static_cast<std::size_t>(kleur)]; }
    const T& operator()(Kleur kleur) const { return van_[static_cast<std::size_t>(kleur)]; }

    auto begin() { return van_.begin(); }
    auto end() { return van_.end(); }

private:
    std::array<T, 4> van_;
};

}  // namespace cards
