#include "prepare/KaartLabels.h"

#include "base/Fout.h"
#include "services/Bas_Aftavrin.h"

namespace prepare {

namespace {

constexpr forms::Rect kEersteCel{420, 300, 315, 300};
constexpr double kSymbool = 210;
constexpr double kSymboolLinks = 135;
constexpr std::array kLetters{"S", "H", "R", "K"};
constexpr std::array kNamen{"Schoppen", "Harten", "Ruiten", "Klaveren"};

std::array<forms::PictureBox, 4> symbols(forms::Container& frame, const std::string& seat_letter) {
    const auto symbol = [&](std::size_t suit) {
        const double top = kEersteCel.top + kEersteCel.height * static_cast<double>(suit);
        return forms::PictureBox(frame, std::string("pic") + kLetters[suit] + seat_letter,
                                 {kSymboolLinks, top + (kEersteCel.height - kSymbool) / 2, kSymbool, kSymbool});
    };
    return {symbol(0), symbol(1), symbol(2), symbol(3)};
}

std::array<KaartLabels::Rij, 4> rows(forms::Container& frame, const std::string& seat) {
    const auto row = [&](std::size_t suit) {
        return KaartLabels::Rij(frame, std::string("lbl") + kNamen[suit] + seat, {{0, kEersteCel}});
    };
    return {row(0), row(1), row(2), row(3)};
}

}  // namespace

KaartLabels::KaartLabels(forms::Container& screen)
    : fraNoord(screen, "fraNoord", {5580, 120, 4725, 1665}),
      fraOost(screen, "fraOost", {7980, 1890, 4695, 1665}),
      fraZuid(screen, "fraZuid", {5580, 3660, 4695, 1665}),
      fraWest(screen, "fraWest", {2970, 1890, 4695, 1665}),
      pic{symbols(fraNoord, "N"), symbols(fraOost, "O"), symbols(fraZuid, "Z"), symbols(fraWest, "W")},
      lbl{rows(fraNoord, "Noord"), rows(fraOost, "Oost"), rows(fraZuid, "Zuid"), rows(fraWest, "West")} {
    for (int plaats = 1; plaats <= 4; ++plaats) {
        for (const kaart::Kleur kleur : kaart::kKleuren) {
            forms::PictureBox& symbool = pic[static_cast<std::size_t>(plaats - 1)][static_cast<std::size_t>(kleur)];
            symbool.Picture = Bas_Aftavrin::LaadPlaatje(kaart::gegevens(kleur).plaatje);
            symbool.Opaque = false;
            forms::Label& model = rij(plaats, kleur)(0);
            model.Opaque = true;
            model.FontSize = 11.25;
            model.Alignment = forms::Alignment::Centre;
            model.ForeColor = kaart::gegevens(kleur).tekstkleur;
        }
    }
}

forms::Frame& KaartLabels::frame(int plaats) {
    const std::array frames{&fraNoord, &fraOost, &fraZuid, &fraWest};
    return *frames.at(static_cast<std::size_t>(plaats - 1));
}

KaartLabels::Rij& KaartLabels::rij(int plaats, kaart::Kleur kleur) {
    if (plaats < 1 || plaats > 4) throw Fout(FoutNummer::SubscriptOutOfRange, std::to_string(plaats));
    return lbl[static_cast<std::size_t>(plaats - 1)][static_cast<std::size_t>(kleur)];
}

void KaartLabels::maak_rijen() {
    elke_rij([](Rij& rij) {
        for (int i = 1; i <= kHoogste; ++i) rij.Load(i);
    });
    for (int plaats = 1; plaats <= 4; ++plaats) {
        rij(plaats, kaart::Kleur::Schoppen)(0).Move(kEersteCel.left, kEersteCel.top);
        for (std::size_t suit = 1; suit < kaart::kKleuren.size(); ++suit) {
            const forms::Label& above = rij(plaats, kaart::kKleuren[suit - 1])(0);
            rij(plaats, kaart::kKleuren[suit])(0).Move(above.Left, above.bottom());
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
