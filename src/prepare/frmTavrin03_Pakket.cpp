// Taking up a stored package again, with its whole play.
#include "base/Zolang.h"
#include "cards/Kaarten.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "prepare/frmTavrin03.h"
#include "services/Bas_Aftavrin.h"

namespace prepare {

void frmTavrin03::lstAfTavrin_Click() {
    if (lstAfTavrin.ListIndex == -1) return;
    bool opgenomen = false;
    Foutpad("frmTavrin03 - lstAftavrin - Click", [&] {
        MaakLabelSchoon();
        lstAfTavrin.Tag = "";
        txtVraag.Text = "";
        txtAntwoord.Text = "";
        txtKnipText.Text = "";
        lstKnipTekst.Clear();
        gedeeld.spelMap = programma.pakket(lstAfTavrin.Text());
        gedeeld.spelMapKopie = gedeeld.spelMap;
        gedeeld.spelNaam = lstAfTavrin.Text();
        lstAfTavrin.Tag = std::to_string(lstAfTavrin.ListIndex);
        LeesSpelIn();
        if (cards::Kaarten::aanwezig(platform::join_path(gedeeld.spelMap, lstAfTavrin.Text() + " aftavrin.txt"))) {
            const base::Zolang leest(LeesModus, true);
            lstVoorWissen.Clear();
            speel_rijen_na();
            sluit_laatste_slag();
            Kaarten::SlagenTeller(*this);
            tel_slag_voor(SlagWinnaar);
            cmdOpslaan.Enabled = true;
        } else {
            programma.platform.message_box(
                platform::box_style::kInformation, Caption(),
                lstAfTavrin.Text() + " " + base::replaced(LeesResString(Bericht::NietCompleet), "|", "\n"));
        }
        gedeeld.uitkomstVast = true;
        cmdFocus.SetFocus();
        opgenomen = true;
    });
    // The grid then holds half a play at most: it must not be saved over the package that it stands for.
    if (!opgenomen) cmdOpslaan.Enabled = false;
}

void frmTavrin03::speel_rijen_na() {
    const std::string map = platform::join_path(dirAftavrin.Path(), lstAfTavrin.Text());
    platform::LineReader regels(platform::join_path(map, lstAfTavrin.Text() + " aftavrin.txt"));
    for (int r = 1; !regels.at_end();) {
        gedeeld.regel = regels.line();
        lstVoorWissen.AddItem(gedeeld.regel);
        if (base::trimmed(gedeeld.regel).empty()) continue;
        gedeeld.delen = base::split(gedeeld.regel, "|");
        msfgTavrin.Row = r++;
        for (int i = 1; i <= gedeeld.delen.last(); ++i) {
            msfgTavrin.Col = i;
            msfgTavrin.SetText(cel_tekst(gedeeld.delen[i]));
            msfgTavrin.SetCellAlignment(forms::FlexGrid::CellAlignment::Centre);
        }
        // A first character that is no digit colours the heading column.
        msfgTavrin.Col = base::numeric_value(base::left(gedeeld.delen[0], 1));
        msfgTavrin.SetCellBackColor(kInSlag);
    }
    labels.elk_label([](forms::Label& label) {
        if (label.Visible) label.BackColor = kGespeeld;
    });
}

// No row after the last trick tells its winner: VolgendeKaart works it out.
void frmTavrin03::sluit_laatste_slag() {
    msfgTavrin.Row = msfgTavrin.Rows() - 1;
    const std::string vierde = base::left(base::middle(gedeeld.regel, 4), 1);
    int speler = base::numeric_value(vierde);
    if (!vierde.empty()) msfgTavrin.Col = speler;
    VolgendeKaart(speler, msfgTavrin.Text(), kHoogste);
}

std::string frmTavrin03::cel_tekst(const std::string& kaartcode) const {
    const int nummer = cards::nummer_van(kaartcode);
    return LeesResString(cards::gegevens(cards::kleur_van(nummer)).letter) + " " +
           cards::Kaarten::waarde_letter(*this, nummer);
}

}  // namespace prepare
