// Taking the play back by a click in the grid.
#include "base/Zolang.h"
#include "cards/Kaarten.h"
#include "prepare/frmTavrin03.h"
#include "services/Bas_Aftavrin.h"

namespace prepare {

void frmTavrin03::msfgTavrin_Click() {
    Foutpad("frmTavrin03 - msfgTavrin - Click", [&] {
        const int rij = msfgTavrin.Row;
        msfgTavrin.Row = 1;
        msfgTavrin.Col = 1;
        if (msfgTavrin.Text().empty()) {
            cmdFocus.SetFocus();
            return;
        }
        msfgTavrin.Row = rij;
        const std::string vraag =
            base::replaced(LeesResString(Bericht::KaartenTerugplaatsen), "~", std::to_string(rij));
        if (programma.platform.message_box(platform::box_style::kQuestion, Caption(), vraag) == platform::Answer::No) {
            cmdFocus.SetFocus();
            return;
        }
        if (rij > 1) {
            terug_naar_slag(rij);
        } else if (lstAfTavrin.Tag == "") {
            terug_naar_uitkomst_van_rvlx();
        } else {
            terug_naar_uitkomst_van_pakket();
        }
    });
}

void frmTavrin03::terug_naar_slag(int rij) {
    msfgTavrin.Visible = false;  // many cells change; nobody needs to see each of them
    kleur_handen_tot(rij);
    wis_cellen_vanaf(rij);

    msfgTavrin.Row = rij - 1;
    int uitkomer = 0;
    for (int kolom = cards::kWest; kolom >= cards::kNoord; --kolom) {
        msfgTavrin.Col = kolom;
        if (msfgTavrin.CellBackColor() != kInHand) uitkomer = kolom;
    }
    // Without a leader the turn and the suit led stay as they were.
    if (uitkomer != 0) {
        GevraagdeKleur = base::left(msfgTavrin.cell(rij - 1, uitkomer).text, 1);
        int laatste = cards::vorige_plaats(uitkomer);
        msfgTavrin.Col = laatste;
        const base::Zolang herberekent(HerberekenSlag, true);
        VolgendeKaart(laatste, msfgTavrin.Text(), msfgTavrin.Row);
    }
    msfgTavrin.Visible = true;
    cmdFocus.SetFocus();
}

// The cards of the rows before this one become green, all others white.
void frmTavrin03::kleur_handen_tot(int rij_grens) {
    labels.elk_label([](forms::Label& label) { label.BackColor = kInHand; });
    for (const int kolom : cards::kPlaatsen) {
        for (int r = rij_grens - 1; r >= 1; --r) {
            const std::string& tekst = msfgTavrin.cell(r, kolom).text;
            const auto kleur = kleur_van_letter(base::left(tekst, 1));
            if (!kleur) continue;
            for (int i = 0; i <= kHoogste; ++i) {
                if (!(labels.rij(kolom, *kleur)(i).Caption == base::right(tekst, 1))) continue;
                labels.rij(kolom, *kleur)(i).BackColor = kGespeeld;
                break;
            }
        }
    }
}

void frmTavrin03::wis_cellen_vanaf(int rij_grens) {
    for (int r = msfgTavrin.Rows() - 1; r >= rij_grens; --r) {
        msfgTavrin.Row = r;
        for (const int kolom : cards::kPlaatsen) {
            msfgTavrin.Col = kolom;
            msfgTavrin.SetCellBackColor(kInHand);
            msfgTavrin.SetText("");
        }
    }
}

// Choosing the deal anew reloads it.
void frmTavrin03::terug_naar_uitkomst_van_rvlx() {
    const std::string spel = lstRVLX.Text();
    lstRVLX.ListIndex = -1;
    lstRVLX.ListIndex = services::Bas_Aftavrin::GetListBoxIndex(programma, lstRVLX, spel, true);
    lblSlagenTellerNZ.Caption = "0";
    lblSlagenTellerOW.Caption = "0";
    cmdFocus.SetFocus();
}

// GevraagdeKleur and uitkomstVast stay as they stood: here the lead may be taken back, unlike right after a load.
void frmTavrin03::terug_naar_uitkomst_van_pakket() {
    labels.elk_label([](forms::Label& label) { label.BackColor = kInHand; });
    wis_cellen_vanaf(1);
    const std::string pad = cards::Kaarten::bestand(gedeeld, " uitkomst.txt");
    if (cards::Kaarten::aanwezig(pad)) {
        gedeeld.regel = cards::Kaarten::eerste_regel(pad);
        gedeeld.delen = base::split(gedeeld.regel, " - ");
    }
    const std::string& uitkomst = gedeeld.delen[1];
    std::string kaart;
    if (!uitkomst.empty() && uitkomst[0] >= '0' && uitkomst[0] <= '3') {
        const auto kleur = static_cast<cards::Kleur>(uitkomst[0] - '0');
        kaart = LeesResString(cards::gegevens(kleur).letter) + " " + base::middle(uitkomst, 2);
    }
    int uitkomer = 0;
    for (const int plaats : cards::kPlaatsen) {
        if (gedeeld.delen[0] == LeesResString(cards::bericht_van_plaats(plaats))) uitkomer = plaats;
    }
    if (uitkomer != 0) {
        msfgTavrin.Row = 1;
        msfgTavrin.Col = uitkomer;
        msfgTavrin.SetText(kaart);
        msfgTavrin.SetCellBackColor(kInSlag);
        int speler = uitkomer;
        {
            const base::Zolang herberekent(HerberekenSlag, true);
            VolgendeKaart(speler, msfgTavrin.Text(), msfgTavrin.Row);
        }
        const auto kleur = kleur_van_letter(base::left(kaart, 1));
        for (int i = 0; kleur && i <= kHoogste; ++i) {
            if (!(labels.rij(uitkomer, *kleur)(i).Caption == base::right(kaart, 1))) continue;
            labels.rij(uitkomer, *kleur)(i).BackColor = kInSlag;
            break;
        }
    }
    lblSlagenTellerNZ.Caption = "0";
    lblSlagenTellerOW.Caption = "0";
    cmdFocus.SetFocus();
}

}  // namespace prepare
