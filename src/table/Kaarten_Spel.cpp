// The cards as they are played.
#include "platform/Files.h"
#include "services/Bas_Aftavrin.h"
#include "table/KaartenTafel.h"
#include "table/frmTavrin02.h"

namespace table {

namespace Kaarten {

namespace {

// Code of the opening lead; 0 for a value word or suit digit that is unknown.
int code_van_uitkomst(const std::string& kaart) {
    const int rang = cards::rang_van_uitkomst(base::trimmed(base::lower_case(base::middle(kaart, 2))));
    if (rang == 0 || kaart[0] < '0' || kaart[0] > '3') return 0;
    return cards::code_van(rang, static_cast<cards::Kleur>(kaart[0] - '0'));
}

int plaats_van_woord(const services::Scherm& scherm, const std::string& woord) {
    for (const int plaats : cards::kPlaatsen) {
        if (base::lower_case(base::trimmed(woord)) ==
            base::lower_case(scherm.LeesResString(cards::bericht_van_plaats(plaats)))) {
            return plaats;
        }
    }
    return 0;
}

// Hides the card of that code; true if the hand shows it open.
bool verberg_kaart(forms::ControlArray<forms::PictureBox>& hand, int code) {
    for (int p = 1; p <= cards::kKaartenPerHand; ++p) {
        if (hand(p).Tag != std::to_string(code)) continue;
        hand(p).Visible = false;
        return true;
    }
    return false;
}

// A closed hand loses cards from its end, without telling which.
void verberg_laatste_kaart(forms::ControlArray<forms::PictureBox>& hand) {
    for (int p = cards::kKaartenPerHand; p >= 1; --p) {
        if (!hand(p).Visible) continue;
        hand(p).Visible = false;
        return;
    }
}

const base::Pieces& speelrij(frmTavrin02& tafel) {
    tafel.gedeeld.delen = base::split(tafel.lijsten.lstAfTavrin.List(tafel.gedeeld.slagRij), "|");
    return tafel.gedeeld.delen;
}

}  // namespace

void PlaatdeUitkomst(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - PlaatdeUitkomst", [&] {
        services::Gedeeld& gedeeld = tafel.gedeeld;
        const std::string pad = cards::Kaarten::bestand(gedeeld, " uitkomst.txt");
        if (cards::Kaarten::aanwezig(pad)) gedeeld.regel = cards::Kaarten::eerste_regel(pad);
        gedeeld.delen = base::split(gedeeld.regel, " - ");
        const int code = code_van_uitkomst(gedeeld.delen[1]);
        const int uitkomer = plaats_van_woord(tafel, gedeeld.delen[0]);
        auto& hand = tafel.picKaart(uitkomer);

        tafel.leg_kaart(uitkomer, code);
        gedeeld.dummyWind = tafel.LeesResString(cards::bericht_van_plaats(cards::volgende_plaats(uitkomer)));
        gedeeld.leiderWind = tafel.LeesResString(cards::bericht_van_plaats(cards::vorige_plaats(uitkomer)));
        gedeeld.aanDeBeurt = uitkomer;
        verberg_kaart(hand, code);
        ToonGespeeldeKaart(tafel);
        gedeeld.kaartTeller = 1;
        gedeeld.kaartenInSlag += 1;
        // Not wrapped, and the first tick moves the turn on once more: only West's lead plays trick 1 in order.
        gedeeld.aanDeBeurt += 1;
        PlaatsInformatie(tafel);
    });
}

void PlaatsKaart(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - PlaatsKaart", [&] {
        services::Gedeeld& gedeeld = tafel.gedeeld;
        if (gedeeld.slagRij >= cards::kSlagen) {
            for (const int plaats : cards::kPlaatsen)
                tafel.picPlay(plaats).Visible = false;
            NoordZijnKaarten(tafel);
            OostZijnKaarten(tafel);
            ZuidZijnKaarten(tafel);
            WestZijnKaarten(tafel);
            return;
        }
        const base::Pieces& delen = speelrij(tafel);
        const std::size_t plek = delen[0].find(std::to_string(gedeeld.aanDeBeurt));
        if (plek == std::string::npos) throw base::Fout(base::FoutNummer::InvalidCall, delen[0]);
        const int code = base::numeric_value(delen[delen[0][plek] - '0']);
        auto& hand = tafel.picKaart(gedeeld.aanDeBeurt);

        tafel.leg_kaart(gedeeld.aanDeBeurt, code);
        gedeeld.kaartenInSlag += 1;
        if (!verberg_kaart(hand, code)) verberg_laatste_kaart(hand);
        ToonGespeeldeKaart(tafel);
        PlaatsInformatie(tafel);
    });
}

void ToonGespeeldeKaart(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - ToonGespeeldeKaart", [&] {
        const services::Gedeeld& gedeeld = tafel.gedeeld;
        const int slag = gedeeld.slagRij + 1;
        const int nummer = cards::nummer_van(speelrij(tafel)[gedeeld.aanDeBeurt]);
        const cards::Kleur kleur = cards::kleur_van(nummer);

        forms::PictureBox& symbool = tafel.picGespeeld(gedeeld.aanDeBeurt)(slag);
        forms::Label& woord = tafel.lblGespeeld(gedeeld.aanDeBeurt)(slag);
        symbool.Picture = tafel.picSym(static_cast<int>(kleur) + 1).Picture();
        woord.ForeColor = cards::gegevens(kleur).tekstkleur;
        woord.Caption = tafel.lijsten.lstKaarten.List(nummer);
        symbool.BorderStyle = 0;
        symbool.Visible = true;
        woord.Visible = true;
        tafel.lblSlag(slag).Visible = true;
    });
}

}  // namespace Kaarten

}  // namespace table
