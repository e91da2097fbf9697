#include "cards/Lijsten.h"

#include <string>

#include "cards/PerPlaats.h"

namespace cards {

namespace {

HandLijsten::PerHand per_hand(forms::Container& screen, const std::string& name) {
    HandLijsten::PerHand lists(screen, name, kPlaatsen.front(), kPlaatsen.back(), [](int) { return forms::Rect{}; });
    lists.each([](forms::ListBox& list) {
        list.Visible = false;
        list.Sorted = true;
    });
    return lists;
}

}  // namespace

PerKleur<forms::ListBox> sorted_lists_by_suit(forms::Container& screen, const std::string& prefix) {
    return PerKleur<forms::ListBox>([&](Kleur kleur) {
        return forms::ListBox(screen, prefix + gegevens(kleur).naam, forms::ListBox::Order::Sorted);
    });
}

HandLijsten::HandLijsten(forms::Container& screen)
    : lstAfTavrin(screen, "lstAfTavrin"),
      lstHand(per_hand(screen, "lstHand")),
      lstKleur([&](Kleur kleur) { return per_hand(screen, std::string("lst") + gegevens(kleur).naam); }),
      lstKaarten(screen, "lstKaarten") {}

void HandLijsten::vul_kaarten() {
    lstKaarten.AddItem("");
    for (std::size_t suit = 0; suit < kKleuren.size(); ++suit) {
        for (const std::string& word : waarde_woorden())
            lstKaarten.AddItem(word);
    }
}

}  // namespace cards
