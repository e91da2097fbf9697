#include "cards/Lijsten.h"

namespace {

forms::Rect nowhere(int) { return {}; }

}  // namespace

HandLijsten::HandLijsten(forms::Container& screen)
    : lstAfTavrin(screen, "lstAfTavrin"),
      lstHand(screen, "lstHand", 1, 4, nowhere),
      lstSchoppen(screen, "lstSchoppen", 1, 4, nowhere),
      lstHarten(screen, "lstHarten", 1, 4, nowhere),
      lstRuiten(screen, "lstRuiten", 1, 4, nowhere),
      lstKlaveren(screen, "lstKlaveren", 1, 4, nowhere),
      lstKaarten(screen, "lstKaarten") {
    for (auto* lists : {&lstHand, &lstSchoppen, &lstHarten, &lstRuiten, &lstKlaveren}) {
        lists->each([](forms::ListBox& list) {
            list.Visible = false;
            list.Sorted = true;
        });
    }
}

forms::ListBox& HandLijsten::suit(kaart::Kleur kleur, int plaats) {
    switch (kleur) {
        case kaart::Kleur::Schoppen: return lstSchoppen(plaats);
        case kaart::Kleur::Harten: return lstHarten(plaats);
        case kaart::Kleur::Ruiten: return lstRuiten(plaats);
        case kaart::Kleur::Klaveren: break;
    }
    return lstKlaveren(plaats);
}

void HandLijsten::vul_kaarten() {
    lstKaarten.AddItem("");
    for (std::size_t suit = 0; suit < kaart::kKleuren.size(); ++suit) {
        for (const std::string& word : kaart::waarde_woorden()) lstKaarten.AddItem(word);
    }
}
