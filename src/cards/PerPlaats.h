#pragma once

#include <array>
#include <string>
#include <utility>

#include "base/Fout.h"
#include "cards/Kaart.h"

namespace cards {

// One of a kind for each seat, 1 Noord to 4 West. Which failure another number is, its owner says: 9 for values, 340
// for arrays of controls or lists.
template <class T, base::FoutNummer kGeenPlaats = base::FoutNummer::SubscriptOutOfRange>
class PerPlaats {
public:
    constexpr PerPlaats(T noord, T oost, T zuid, T west)
        : van_{std::move(noord), std::move(oost), std::move(zuid), std::move(west)} {}
    // What a function makes for the seats 1 to 4, in this order.
    template <class Maak>
    explicit PerPlaats(Maak maak) : van_{maak(1), maak(2), maak(3), maak(4)} {}

    constexpr T& operator()(int plaats) { return van_[plek(plaats)]; }
    constexpr const T& operator()(int plaats) const { return van_[plek(plaats)]; }

    auto begin() { return van_.begin(); }
    auto end() { return van_.end(); }

private:
    static constexpr std::size_t plek(int plaats) {
        if (plaats < 1 || plaats > 4) throw base::Fout(kGeenPlaats, std::to_string(plaats));
        return static_cast<std::size_t>(plaats - 1);
    }

    std::array<T, 4> van_;
};

// What a seat is called in the names of controls.
inline constexpr PerPlaats<const char*> kPlaatsNaam{"Noord", "Oost", "Zuid", "West"};
inline constexpr PerPlaats<const char*> kPlaatsLetter{"N", "O", "Z", "W"};

}  // namespace cards
