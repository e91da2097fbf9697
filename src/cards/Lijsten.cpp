#include "cards/Lijsten.h"

#include <string>

#include "cards/PerPlaats.h"

namespace {

HandLijsten::PerHand per_hand(forms::Container& screen, const std::string& name) {
    HandLijsten::PerHand lists(screen, name, kaart::kPlaatsen.front(), kaart::kPlaatsen.back(),
                               [](int) { return forms::Rect{}; });
    lists.each([](forms::ListBox& list) {
        list.Visible = false;
        list.Sorted = true;
    });
    return lists;
}

}  // namespace

kaart::PerKleur<forms::ListBox> sorted_lists_by_suit(forms::Container& screen, const std::string& prefix) {
    return kaart::PerKleur<forms::ListBox>([&](kaart::Kleur kleur) {
        return forms::ListBox(screen, prefix + kaart::gegevens(kleur).naam, forms::ListBox::Order::Sorted);
    });
}

HandLijsten::HandLijsten(forms::Container& screen)
    : lstAfTavrin(screen, "lstAfTavrin"),
      lstHand(per_hand(screen, "lstHand")),
      lstKleur([&](kaart::Kleur kleur) { return per_hand(screen, std::string("lst") + kaart::gegevens(kleur).naam); }),
      lstKaarten(screen, "lstKaarten") {}

void HandLijsten::vul_kaarten() {
    lstKaarten.AddItem("");
    for (std::size_t suit = 0; suit < kaart::kKleuren.size(); ++suit) {
        for (const std::string& word : kaart::waarde_woorden())
            lstKaarten.AddItem(word);
    }
}
