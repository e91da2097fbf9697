// The places of the hands, closed and open, and of the information beside them.

#include <algorithm>

#include "platform/Files.h"
#include "services/Bas_Aftavrin.h"
#include "table/KaartenTafel.h"
#include "table/frmTavrin02.h"

namespace table {

namespace Kaarten {

namespace {

using resources::Bericht;

constexpr double kNaamHoogte = 420;  // of a seat's name on the table

// Column of position p in the four rows of a closed side hand, of 4, 3, 3 and 3 cards.
int kolom_van(int p) { return p <= 4 ? p : (p - 5) % 3 + 1; }
bool begint_rij(int p) { return p == 5 || p == 8 || p == 11; }

void zet_kaart(forms::PictureBox& kaart, double left, double top) {
    kaart.Move(left, top);
    kaart.ZOrder();
}

void leg_rij(frmTavrin02& tafel, int plaats, double links, double boven) {
    for (int p = 1; p <= cards::kKaartenPerHand; ++p) {
        forms::PictureBox& kaart = tafel.picKaart(plaats)(p);
        zet_kaart(kaart, p * tafel.gedeeld.kaartStap + links, boven);
        kaart.Visible = true;
    }
}

void leg_blok(frmTavrin02& tafel, int plaats, double links, double boven) {
    for (int p = 1; p <= cards::kKaartenPerHand; ++p) {
        if (begint_rij(p)) boven += tafel.gedeeld.rijStap;
        forms::PictureBox& kaart = tafel.picKaart(plaats)(p);
        zet_kaart(kaart, kolom_van(p) * tafel.gedeeld.kaartStap + links, boven);
        kaart.Visible = true;
    }
}

void keer_kaart(frmTavrin02& tafel, int plaats, int positie, const std::string& code) {
    forms::PictureBox& kaart = tafel.picKaart(plaats)(positie);
    frmTavrin02::toon_kaart(kaart, base::numeric_value(code));
    kaart.Tag = std::to_string(base::numeric_value(code));
}

// Runs through a seat's cards as an open hand shows them: by suit, the highest card of each first.
template <class Action>
void voor_elke_kaart(frmTavrin02& tafel, int plaats, Action action) {
    int positie = 0;
    for (const cards::Kleur kleur : cards::kToonVolgorde) {
        const forms::ListBox& lijst = tafel.lijsten.lstKleur(kleur)(plaats);
        for (int i = lijst.ListCount() - 1; i >= 0; --i)
            action(++positie, lijst.List(i));
    }
}

void open_hand(frmTavrin02& tafel, int plaats) {
    voor_elke_kaart(tafel, plaats,
                    [&](int positie, const std::string& code) { keer_kaart(tafel, plaats, positie, code); });
}

void maak_zichtbaar(frmTavrin02& tafel, int plaats) {
    for (int p = 1; p <= cards::kKaartenPerHand; ++p)
        tafel.picKaart(plaats)(p).Visible = true;
}

// Places the four suit rows of a side hand. False as soon as a card of a row would pass the limit.
bool leg_kleuren(frmTavrin02& tafel, int plaats, double links, double boven, double grens) {
    const double stap = tafel.gedeeld.kaartStap;
    int positie = 0;
    for (const cards::Kleur kleur : cards::kToonVolgorde) {
        const forms::ListBox& lijst = tafel.lijsten.lstKleur(kleur)(plaats);
        int kolom = 0;
        for (int i = lijst.ListCount() - 1; i >= 0; --i) {
            keer_kaart(tafel, plaats, ++positie, lijst.List(i));
            zet_kaart(tafel.picKaart(plaats)(positie), ++kolom * stap + links, boven);
        }
        // The column that counts is that of the row's last card.
        if (kolom * stap + links + tafel.picKaart(plaats)(1).Width + 128 > grens) return false;
        boven += tafel.gedeeld.rijStap;
    }
    return true;
}

void zet_rechts_naast(forms::Control& control, const forms::Control& links, double afstand, double top) {
    control.Move(links.right() + afstand, top);
}

// The places of the cards played, in the middle between the four hands. Both divisions are those of whole twips.
void zet_gespeelde_plekken(frmTavrin02& tafel) {
    auto& picPlay = tafel.picPlay;
    const double west = tafel.picKaart(cards::kWest)(4).right();
    const double oost = tafel.picKaart(cards::kOost)(1).Left;
    const double x = west + forms::half(oost - west - picPlay(cards::kNoord).Width);
    picPlay(cards::kNoord).Move(x, tafel.picKaart(cards::kNoord)(1).bottom() + 128);
    picPlay(cards::kZuid).Move(x, tafel.picKaart(cards::kZuid)(1).Top - picPlay(cards::kNoord).Height - 128);
    const double y =
        forms::half(picPlay(cards::kNoord).Top + picPlay(cards::kZuid).Top + picPlay(cards::kZuid).Height) -
        forms::half(picPlay(cards::kZuid).Height);
    picPlay(cards::kWest).Move(west + 128, y);
    picPlay(cards::kOost).Move(oost - picPlay(cards::kNoord).Width - 128, y);
    for (const int plaats : cards::kPlaatsen)
        picPlay(plaats).Visible = true;
}

void toon_nummer(frmTavrin02& tafel) {
    services::Gedeeld& gedeeld = tafel.gedeeld;
    gedeeld.delen = base::split(gedeeld.spelNaam, " ");
    if (gedeeld.delen.last() == 0) {
        // A name without a blank gets the word before it; the file names are built with the changed name from here on.
        gedeeld.spelNaam = tafel.LeesResString(Bericht::Spel) + " " + gedeeld.spelNaam;
        gedeeld.delen = base::split(gedeeld.spelNaam, " ");
    }
    tafel.lblNummer.Caption = std::to_string(base::numeric_value(gedeeld.delen[1]));
}

void toon_contract(frmTavrin02& tafel) {
    services::Gedeeld& gedeeld = tafel.gedeeld;
    const std::string pad = cards::Kaarten::bestand(gedeeld, " contract.txt");
    if (!cards::Kaarten::aanwezig(pad)) return;
    gedeeld.regel = cards::Kaarten::eerste_regel(pad);
    gedeeld.delen = base::split(gedeeld.regel, " ");
    tafel.lblContractWie.Caption = gedeeld.delen[0] + ": " + gedeeld.delen[1];
    const std::string soort = gedeeld.delen[2];
    for (const cards::Kleur kleur : cards::kKleuren) {
        if (!base::equal_ignoring_case(soort, cards::gegevens(kleur).naam)) continue;
        frmTavrin02::toon_symbool(tafel.picContract, cards::gegevens(kleur).plaatje);
        gedeeld.troefLetter = tafel.LeesResString(cards::gegevens(kleur).letter);
    }
    if (base::equal_ignoring_case(soort, "sa")) {
        frmTavrin02::toon_symbool(tafel.picContract, resources::plaatje::kSansAtout);
        gedeeld.troefLetter.clear();
    }
    tafel.lblInfo(0).Move(tafel.lblSpel.right() - tafel.lblInfo(0).Width, tafel.lblNummer.bottom() + 256);
    zet_rechts_naast(tafel.lblContractWie, tafel.lblInfo(0), 32, tafel.lblInfo(0).Top - 16);
    zet_rechts_naast(tafel.picContract, tafel.lblContractWie, 32, tafel.lblContractWie.Top + 16);
    tafel.picContract.Visible = true;
}

void toon_uitkomst(frmTavrin02& tafel) {
    services::Gedeeld& gedeeld = tafel.gedeeld;
    const std::string pad = cards::Kaarten::bestand(gedeeld, " uitkomst.txt");
    if (!cards::Kaarten::aanwezig(pad)) return;
    gedeeld.regel = cards::Kaarten::eerste_regel(pad);
    gedeeld.delen = base::split(gedeeld.regel, " - ");
    const std::string& kaart = gedeeld.delen[1];
    if (!kaart.empty() && kaart[0] >= '0' && kaart[0] <= '3') {
        const auto kleur = static_cast<cards::Kleur>(kaart[0] - '0');
        frmTavrin02::toon_symbool(tafel.picUitkomst, cards::gegevens(kleur).plaatje);
    }
    tafel.lblInfo(1).Move(tafel.lblInfo(0).right() - tafel.lblInfo(1).Width, tafel.lblInfo(0).bottom() + 128);
    zet_rechts_naast(tafel.lblUitkomstWind, tafel.lblInfo(1), 32, tafel.lblInfo(1).Top - 16);
    tafel.lblUitkomstWind.Caption = gedeeld.delen[0] + " - ";
    zet_rechts_naast(tafel.picUitkomst, tafel.lblUitkomstWind, 3, tafel.lblUitkomstWind.Top + 16);
    tafel.lblUitkomstKaart.Caption = base::trimmed(base::middle(kaart, 2));
    zet_rechts_naast(tafel.lblUitkomstKaart, tafel.picUitkomst, 32, tafel.lblUitkomstWind.Top);
    tafel.picUitkomst.Visible = true;
    tafel.lblUitkomstKaart.Visible = true;
}

}  // namespace

void NoordStartPositie(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - NoordStartPositie",
                  [&] { leg_rij(tafel, cards::kNoord, tafel.gedeeld.noordLinks, tafel.gedeeld.noordBoven); });
}

void ZuidStartPositie(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - ZuidStartPositie",
                  [&] { leg_rij(tafel, cards::kZuid, tafel.gedeeld.zuidLinks, tafel.gedeeld.zuidBoven); });
}

void OostStartPositie(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - OostStartPositie",
                  [&] { leg_blok(tafel, cards::kOost, tafel.gedeeld.oostLinks, tafel.gedeeld.oostBoven); });
}

void WestStartPositie(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - WestStartPositie",
                  [&] { leg_blok(tafel, cards::kWest, tafel.gedeeld.westLinks, tafel.gedeeld.westBoven); });
}

// The seats' names stand on the felt, in the four corners that the places of the cards played leave free: each beside
// its own place, one after the other round the table; Oost's goes out of the way of a hand that lies further left.
void schrijf_plaatsnamen(frmTavrin02& tafel) {
    const forms::PictureBox& noord = tafel.picPlay(cards::kNoord);
    const forms::PictureBox& oost = tafel.picPlay(cards::kOost);
    const forms::PictureBox& zuid = tafel.picPlay(cards::kZuid);
    const forms::PictureBox& west = tafel.picPlay(cards::kWest);
    const double breedte = noord.Width;
    double oost_links = oost.Left + breedte;
    tafel.picKaart(cards::kOost).each([&](const forms::PictureBox& kaart) {
        oost_links = std::min(oost_links, kaart.Left());
    });
    const auto naam = [&](int plaats, double left, double top) {
        return forms::PictureBox::Inscription{tafel.LeesResString(cards::bericht_van_plaats(plaats)),
                                              {left, top, breedte, kNaamHoogte}};
    };
    tafel.picBack.inscribe({naam(cards::kNoord, noord.right(), noord.Top),
                            naam(cards::kOost, oost_links - breedte, oost.bottom()),
                            naam(cards::kZuid, zuid.Left - breedte, zuid.bottom() - kNaamHoogte),
                            naam(cards::kWest, west.Left, west.Top - kNaamHoogte)});
}

void OverigeStartPositie(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - OverigeStartPositie", [&] {
        tafel.gedeeld.troefLetter.clear();
        for (int p = 1; p <= cards::kKaartenPerHand; ++p) {
            for (const int plaats : cards::kPlaatsen) {
                tafel.picKaart(plaats)(p).Picture = services::Bas_Aftavrin::LaadPlaatje(tafel.gedeeld.kaartRugId);
                tafel.picKaart(plaats)(p).BorderStyle = 0;
            }
        }
        for (int plaats = 2; plaats <= 4; ++plaats)
            tafel.picPlay.Load(plaats);
        tafel.Refresh();
        zet_gespeelde_plekken(tafel);
        schrijf_plaatsnamen(tafel);

        forms::Label& noord_zuid = tafel.lblToonSlagen(0);
        forms::Label& oost_west = tafel.lblToonSlagen(1);
        noord_zuid.Move(300, 2040);
        oost_west.Move(noord_zuid.right() - oost_west.Width, noord_zuid.bottom() + 128);
        zet_rechts_naast(tafel.lblSlagenNZ, noord_zuid, 32, noord_zuid.Top);
        zet_rechts_naast(tafel.lblSlagenOW, noord_zuid, 32, oost_west.Top);
        tafel.lblSlagenNZ.Caption = "0";
        tafel.lblSlagenOW.Caption = "0";

        tafel.lblSpel.Move(150, tafel.picKaart(cards::kNoord)(1).Top + 180);
        zet_rechts_naast(tafel.lblNummer, tafel.lblSpel, 180, tafel.lblSpel.Top - 64);
        toon_nummer(tafel);
        toon_contract(tafel);
        toon_uitkomst(tafel);
    });
}

void NoordZijnKaarten(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - NoordZijnKaarten", [&] {
        open_hand(tafel, cards::kNoord);
        maak_zichtbaar(tafel, cards::kNoord);
    });
}

void ZuidZijnKaarten(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - ZuidZijnKaarten", [&] {
        open_hand(tafel, cards::kZuid);
        maak_zichtbaar(tafel, cards::kZuid);
        for (const cards::Kleur kleur : cards::kKleuren) {
            forms::ListBox& doel = tafel.lstZuid(kleur);
            const forms::ListBox& bron = tafel.lijsten.lstKleur(kleur)(cards::kZuid);
            doel.Clear();
            for (int i = bron.ListCount() - 1; i >= 0; --i)
                doel.AddItem(bron.List(i));
        }
    });
}

void OostZijnKaarten(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - OostZijnKaarten", [&] {
        // A row that would run into the box of played cards moves the whole hand one step to the left.
        double links = tafel.gedeeld.oostLinks;
        const double grens = tafel.fraSlagen.Left;
        while (!leg_kleuren(tafel, cards::kOost, links, tafel.gedeeld.oostBoven, grens))
            links -= tafel.gedeeld.kaartStap;
        maak_zichtbaar(tafel, cards::kOost);
    });
}

void WestZijnKaarten(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - WestZijnKaarten", [&] {
        constexpr double kGeenGrens = 1e9;
        leg_kleuren(tafel, cards::kWest, tafel.gedeeld.westLinks, tafel.gedeeld.westBoven, kGeenGrens);
        maak_zichtbaar(tafel, cards::kWest);
    });
}

void ToonKaartenDummy(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - ToonKaartenDummy", [&] {
        const std::string wind = base::trimmed(tafel.gedeeld.dummyWind);
        for (const int plaats : cards::kPlaatsen) {
            if (wind != tafel.LeesResString(cards::bericht_van_plaats(plaats))) continue;
            open_hand(tafel, plaats);
            // The closed hand of the opening leader shows twelve backs from now on.
            tafel.picKaart(cards::vorige_plaats(plaats))(cards::kKaartenPerHand).Visible = false;
        }
    });
}

void ToonKaartenLeider(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - ToonKaartenLeider", [&] {
        const std::string wind = base::trimmed(tafel.gedeeld.leiderWind);
        for (const int plaats : cards::kPlaatsen) {
            if (wind == tafel.LeesResString(cards::bericht_van_plaats(plaats))) open_hand(tafel, plaats);
        }
    });
}

}  // namespace Kaarten

}  // namespace table
