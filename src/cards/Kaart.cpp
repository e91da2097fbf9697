#include "cards/Kaart.h"

#include <algorithm>
#include <limits>

#include "base/Text.h"
#include "services/Kleuren.h"

namespace cards {

namespace {

using resources::Bericht;
using services::kleuren::kRood;
using services::kleuren::kZwart;
namespace plaatje = resources::plaatje;

constexpr std::array<KleurGegevens, 4> kGegevens{{
    {Bericht::LetterSchoppen, Bericht::Schoppen, "Schoppen", plaatje::kSchoppen, kZwart},
    {Bericht::LetterHarten, Bericht::Harten, "Harten", plaatje::kHarten, kRood},
    {Bericht::LetterRuiten, Bericht::Ruiten, "Ruiten", plaatje::kRuiten, kRood},
    {Bericht::LetterKlaveren, Bericht::Klaveren, "Klaveren", plaatje::kKlaveren, kZwart},
}};

}  // namespace

const KleurGegevens& gegevens(Kleur kleur) { return kGegevens[static_cast<std::size_t>(kleur)]; }

int nummer_van(std::string_view kaartcode) {
    return std::max(base::numeric_value(kaartcode), std::numeric_limits<int>::min() + kCodeBasis) - kCodeBasis;
}

Kleur kleur_van(int kaartnummer) {
    if (kaartnummer < 14) return Kleur::Schoppen;
    if (kaartnummer < 27) return Kleur::Harten;
    return kaartnummer < 40 ? Kleur::Ruiten : Kleur::Klaveren;
}

const std::array<std::string, 13>& waarde_woorden() {
    static const std::array<std::string, 13> words{"2", "3",  "4",    "5",     "6",    "7",  "8",
                                                   "9", "10", "Boer", "Vrouw", "Heer", "Aas"};
    return words;
}

int rang_van_uitkomst(std::string_view woord) {
    static constexpr std::array<std::string_view, 13> kWoorden{"2", "3", "4",    "5",     "6",    "7",  "8",
                                                               "9", "t", "boer", "vrouw", "heer", "aas"};
    const auto found = std::ranges::find(kWoorden, woord);
    return found == kWoorden.end() ? 0 : static_cast<int>(found - kWoorden.begin()) + 2;
}

std::string titel(int kaartcode) {
    if (kaartcode <= kCodeBasis || kaartcode > kCodeBasis + kKaarten) return {};
    const int nummer = kaartcode - kCodeBasis;
    return std::string(gegevens(kleur_van(nummer)).naam) + " " +
           waarde_woorden()[static_cast<std::size_t>((nummer - 1) % kKaartenPerKleur)];
}

}  // namespace cards
