#include "annotate/frmTavrin06.h"

#include "cards/Kaarten.h"
#include "services/Bas_Aftavrin.h"
#include "services/Kleuren.h"

namespace annotate {

namespace {

constexpr forms::Size kInner{7395, 6060};
constexpr double kKaartBreedte = 1005;
constexpr double kKaartHoogte = 1485;
constexpr double kStartLinks = 1000;
constexpr double kStap = 300;
constexpr double kNoordBoven = 120;
constexpr double kZuidBoven = 4265;
constexpr double kKleurenBoven = kNoordBoven + 1600;
constexpr double kWestLinks = 100;
constexpr double kOostOntwerp = 3500;  // left of East's first card before it is placed
constexpr double kMaxLetter = 11.5;    // points

}  // namespace

frmTavrin06::frmTavrin06(services::Programma& programma)
    : services::Scherm(programma, "frmTavrin06", kInner,
                       {.key_up = "frmTavrin06 - Form - KeyUp",
                        .terug = "frmTavrin06 - cmdTerug - Click",
                        .query_unload = "frmTavrin06 - Form - QueryUnload"}),
      picKaart([this](int plaats) {
          const double links = plaats == cards::kOost ? kOostOntwerp : 0;
          return forms::ControlArray<forms::PictureBox>(picBack, std::string("picKaart") + cards::kPlaatsNaam(plaats),
                                                        {{0, {links, 0, kKaartBreedte, kKaartHoogte}}});
      }) {
    picBack.BackColor = services::kleuren::kTafelgroen;
    picPlay.Visible = false;
    fraSlagen.Visible = false;
    for (auto& hand : picKaart) {
        hand.each([](forms::PictureBox& kaart) {
            kaart.Opaque = false;
            kaart.BorderStyle = 1;
            kaart.Visible = false;
        });
    }
    cmdTerug.Click = [this] { cmdTerug_Click(); };
}

void frmTavrin06::Form_Load() {
    Foutpad("frmTavrin06 - Form - Load", [&] {
        programma.maten.maxLetterGrootte = kMaxLetter;
        gedeeld.delen = base::split(gedeeld.spelNaam, " ");
        Caption = LeesResString(Bericht::Spel) + " " + std::to_string(base::numeric_value(gedeeld.delen[1]));
        picBack.Move(forms::half(Width - picBack.Width), forms::half(Height - picBack.Height));
        cmdTerug.Caption = "&" + LeesResString(Bericht::Terug);
        for (int i = 1; i <= cards::kKaartenPerKleur; ++i) {
            for (auto& hand : picKaart)
                hand.Load(i).ZOrder();
        }
        lijsten.vul_kaarten();
        cards::Kaarten::LeesKartenBestandIn(*this, lijsten);
        cards::Kaarten::VerdeelDeKaarten(*this, lijsten);
        leg_rij(cards::kNoord, kNoordBoven);
        leg_kleuren(cards::kOost, picKaart(cards::kOost)(0).right(), true);
        leg_rij(cards::kZuid, kZuidBoven);
        leg_kleuren(cards::kWest, kWestLinks, false);
        cmdTerug.ZOrder();
        centreer();
        services::Bas_Aftavrin::BewaarMaten(programma, *this);
    });
}

void frmTavrin06::leg_kaart(int plaats, int element, const std::string& code, double links, double boven) {
    forms::PictureBox& plek = picKaart(plaats)(element);
    plek.Picture = services::Bas_Aftavrin::LaadPlaatje(cards::nummer_van(code) + resources::plaatje::kKleineKaarten);
    plek.AccessibleName =
        LeesResString(cards::bericht_van_plaats(plaats)) + ": " + cards::titel(base::numeric_value(code));
    plek.Tag = code;
    plek.BorderStyle = 0;
    plek.Move(links, boven);
    plek.Visible = true;
}

// One row over all suits.
void frmTavrin06::leg_rij(int plaats, double boven) {
    int n = 0;
    for (const cards::Kleur kleur : cards::kToonVolgorde) {
        const forms::ListBox& lijst = lijsten.lstKleur(kleur)(plaats);
        for (int i = 0; i < lijst.ListCount(); ++i, ++n) {
            leg_kaart(plaats, n + 1, lijst.List(i), kStartLinks + n * kStap, boven);
        }
    }
}

// One row a suit. Within the frame's bound a row that would pass it moves to the left, and those after it too.
void frmTavrin06::leg_kleuren(int plaats, double links, bool binnen_kader) {
    double boven = kKleurenBoven;
    int element = 0;
    for (const cards::Kleur kleur : cards::kToonVolgorde) {
        const forms::ListBox& lijst = lijsten.lstKleur(kleur)(plaats);
        const double breedte = lijst.ListCount() * gedeeld.kaartStap + kKaartBreedte;
        while (binnen_kader && breedte + links > fraSlagen.Left - 128)
            links -= kStap;
        for (int i = 0; i < lijst.ListCount(); ++i) {
            leg_kaart(plaats, ++element, lijst.List(i), links + i * kStap, boven);
        }
        boven += kStap;
    }
}

void frmTavrin06::Form_Resize() { services::Bas_Aftavrin::PasMatenAan(programma, *this); }

void frmTavrin06::verlaat() {
    if (gedeeld.vorigScherm == 5) programma.schermen.toon("frmTavrin05");
}

}  // namespace annotate
