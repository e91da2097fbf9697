// The cards as they are played.
#include "platform/Files.h"
#include "services/Bas_Aftavrin.h"
#include "table/KaartenTafel.h"
#include "table/frmTavrin02.h"

namespace Kaarten {

namespace {

// Code of the opening lead; 0 for a value word or suit digit that is unknown.
int code_van_uitkomst(const std::string& kaart) {
    const int rang = kaart::rang_van_uitkomst(trimmed(lower_case(middle(kaart, 2))));
    if (rang == 0 || kaart[0] < '0' || kaart[0] > '3') return 0;
    return kaart::code_van(rang, static_cast<kaart::Kleur>(kaart[0] - '0'));
}

int plaats_van_woord(const Scherm& scherm, const std::string& woord) {
    for (const int plaats : kaart::kPlaatsen) {
        if (lower_case(trimmed(woord)) == lower_case(scherm.LeesResString(kaart::bericht_van_plaats(plaats)))) {
            return plaats;
        }
    }
    return 0;
}

// Hides the card of that code; true if the hand shows it open.
bool verberg_kaart(forms::ControlArray<forms::PictureBox>& hand, int code) {
    for (int p = 1; p <= kaart::kKaartenPerHand; ++p) {
        if (hand(p).Tag != std::to_string(code)) continue;
        hand(p).Visible = false;
        return true;
    }
    return false;
}

// A closed hand loses cards from its end, without telling which.
void verberg_laatste_kaart(forms::ControlArray<forms::PictureBox>& hand) {
    for (int p = kaart::kKaartenPerHand; p >= 1; --p) {
        if (!hand(p).Visible) continue;
        hand(p).Visible = false;
        return;
    }
}

const Pieces& speelrij(frmTavrin02& tafel) {
    tafel.gedeeld.delen = split(tafel.lijsten.lstAfTavrin.List(tafel.gedeeld.slagRij), "|");
    return tafel.gedeeld.delen;
}

}  // namespace

void PlaatdeUitkomst(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - PlaatdeUitkomst", [&] {
        Gedeeld& gedeeld = tafel.gedeeld;
        const std::string pad = bestand(gedeeld, " uitkomst.txt");
        if (aanwezig(pad)) gedeeld.regel = eerste_regel(pad);
        gedeeld.delen = split(gedeeld.regel, " - ");
        const int code = code_van_uitkomst(gedeeld.delen[1]);
        const int uitkomer = plaats_van_woord(tafel, gedeeld.delen[0]);
        auto& hand = tafel.picKaart(uitkomer);

        frmTavrin02::toon_kaart(tafel.picPlay(uitkomer), code);
        gedeeld.dummyWind = tafel.LeesResString(kaart::bericht_van_plaats(kaart::volgende_plaats(uitkomer)));
        gedeeld.leiderWind = tafel.LeesResString(kaart::bericht_van_plaats(kaart::vorige_plaats(uitkomer)));
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
        Gedeeld& gedeeld = tafel.gedeeld;
        if (gedeeld.slagRij >= kaart::kSlagen) {
            for (const int plaats : kaart::kPlaatsen)
                tafel.picPlay(plaats).Visible = false;
            NoordZijnKaarten(tafel);
            OostZijnKaarten(tafel);
            ZuidZijnKaarten(tafel);
            WestZijnKaarten(tafel);
            return;
        }
        const Pieces& delen = speelrij(tafel);
        const std::size_t plek = delen[0].find(std::to_string(gedeeld.aanDeBeurt));
        if (plek == std::string::npos) throw Fout(FoutNummer::InvalidCall, delen[0]);
        const int code = numeric_value(delen[delen[0][plek] - '0']);
        auto& hand = tafel.picKaart(gedeeld.aanDeBeurt);

        frmTavrin02::toon_kaart(tafel.picPlay(gedeeld.aanDeBeurt), code);
        gedeeld.kaartenInSlag += 1;
        if (!verberg_kaart(hand, code)) verberg_laatste_kaart(hand);
        ToonGespeeldeKaart(tafel);
        PlaatsInformatie(tafel);
    });
}

void ToonGespeeldeKaart(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - ToonGespeeldeKaart", [&] {
        const Gedeeld& gedeeld = tafel.gedeeld;
        const int slag = gedeeld.slagRij + 1;
        const int nummer = kaart::nummer_van(speelrij(tafel)[gedeeld.aanDeBeurt]);
        const kaart::Kleur kleur = kaart::kleur_van(nummer);

        forms::PictureBox& symbool = tafel.picGespeeld(gedeeld.aanDeBeurt)(slag);
        forms::Label& woord = tafel.lblGespeeld(gedeeld.aanDeBeurt)(slag);
        symbool.Picture = tafel.picSym(static_cast<int>(kleur) + 1).Picture();
        woord.ForeColor = kaart::gegevens(kleur).tekstkleur;
        woord.Caption = tafel.lijsten.lstKaarten.List(nummer);
        symbool.BorderStyle = 0;
        symbool.Visible = true;
        woord.Visible = true;
        tafel.lblSlag(slag).Visible = true;
    });
}

}  // namespace Kaarten
