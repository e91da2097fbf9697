#include "prepare/KaartLabels.h"

#include "services/Bas_Aftavrin.h"

namespace prepare {

namespace {

constexpr forms::Rect kEersteCel{420, 300, 315, 300};
constexpr double kSymbool = 210;
constexpr double kSymboolLinks = 135;
constexpr cards::PerPlaats<forms::Rect> kKaders{
    {5580, 120, 4725, 1665}, {7980, 1890, 4695, 1665}, {5580, 3660, 4695, 1665}, {2970, 1890, 4695, 1665}};

}  // namespace

KaartLabels::KaartLabels(forms::Container& screen)
    : fra([&](int plaats) {
          return forms::Frame(screen, std::string("fra") + cards::kPlaatsNaam(plaats), kKaders(plaats));
      }),
      pic([&](int plaats) {
          return cards::PerKleur<forms::PictureBox>([&](cards::Kleur kleur) {
              const double top = kEersteCel.top + kEersteCel.height * static_cast<int>(kleur);
              return forms::PictureBox(
                  fra(plaats), std::string("pic") + cards::gegevens(kleur).naam[0] + cards::kPlaatsLetter(plaats),
                  {kSymboolLinks, top + (kEersteCel.height - kSymbool) / 2, kSymbool, kSymbool});
          });
      }),
      lbl([&](int plaats) {
          return cards::PerKleur<Rij>([&](cards::Kleur kleur) {
              return Rij(fra(plaats), std::string("lbl") + cards::gegevens(kleur).naam + cards::kPlaatsNaam(plaats),
                         {{0, kEersteCel}});
          });
      }) {
    for (const int plaats : cards::kPlaatsen) {
        for (const cards::Kleur kleur : cards::kKleuren) {
            forms::PictureBox& symbool = pic(plaats)(kleur);
            symbool.Picture = services::Bas_Aftavrin::LaadPlaatje(cards::gegevens(kleur).plaatje);
            symbool.Opaque = false;
            forms::Label& model = rij(plaats, kleur)(0);
            model.Opaque = true;
            model.FontSize = 11.25;
            model.Alignment = forms::Alignment::Centre;
            model.FontBold = true;  // red alone is too light on its grounds
            model.ForeColor = cards::gegevens(kleur).tekstkleur;
        }
    }
}

void KaartLabels::maak_rijen() {
    elke_rij([](Rij& rij) {
        for (int i = 1; i <= kHoogste; ++i)
            rij.Load(i);
    });
    for (const int plaats : cards::kPlaatsen) {
        rij(plaats, cards::Kleur::Schoppen)(0).Move(kEersteCel.left, kEersteCel.top);
        for (std::size_t suit = 1; suit < cards::kKleuren.size(); ++suit) {
            const forms::Label& above = rij(plaats, cards::kKleuren[suit - 1])(0);
            rij(plaats, cards::kKleuren[suit])(0).Move(above.Left, above.bottom());
        }
    }
    elke_rij([](Rij& rij) {
        for (int i = 1; i <= kHoogste; ++i) {
            rij(i).Move(rij(i - 1).right(), rij(0).Top);
            rij(i).Visible = false;
        }
    });
}

}  // namespace prepare
