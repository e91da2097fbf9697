// The teacher's words: the question before the play, and the text of a card.
#include "platform/Files.h"
#include "services/Bas_Aftavrin.h"
#include "services/Knip_Tekst.h"
#include "table/KaartenTafel.h"
#include "table/frmTavrin02.h"

namespace table {

namespace Kaarten {

namespace {

constexpr double kInformatieHoogte = 2827;
constexpr int kSpareLines = 5;
constexpr double kLineHeightPerPoint = 15;  // twips

// The first record whose number at its head is that of the current card; -1 if there is none.
int record_van_kaart(const frmTavrin02& tafel) {
    for (int i = 0; i < tafel.lstInformatie.ListCount(); ++i) {
        if (base::numeric_value(tafel.lstInformatie.List(i)) == tafel.gedeeld.kaartTeller) return i;
    }
    return -1;
}

}  // namespace

void PlaatsInformatie(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - PlaatsInformatie", [&] {
        const int record = record_van_kaart(tafel);
        if (record < 0) return;
        tafel.txtKnipTekst.Text = "";
        tafel.lstKnipTekst.Clear();
        tafel.txtInformatie.Text = "";
        base::Pieces& delen = tafel.gedeeld.delen;
        delen = base::split(tafel.lstInformatie.List(record), "|");
        if (base::trimmed(delen[1]).empty()) return;

        tafel.timSpeelKaart.Enabled = false;
        tafel.txtKnipTekst.Text = base::replaced(delen[1], "~", "\r\n");
        tafel.lstKnipTekst.Clear();
        services::Knip_Tekst(tafel.txtKnipTekst, tafel.lstKnipTekst);
        tafel.txtInformatie.Text = services::met_regeleinden(tafel.lstKnipTekst);
        tafel.txtInformatie.Height = kInformatieHoogte;
        tafel.txtInformatie.Visible = true;
        tafel.cmdFocus.SetFocus();
        tafel.cmdStart.Visible = false;
        tafel.cmdVerder.Visible = true;
        tafel.cmdVerder.SetFocus();
    });
}

void LeesVraag(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - LeesVraag", [&] {
        forms::TextBox& vraag = tafel.txtVraag;
        tafel.txtInformatie.Visible = false;
        tafel.txtInformatie.BorderStyle = 0;
        vraag.BorderStyle = 0;
        tafel.txtInformatie.Text = "";
        vraag.Text = "";
        tafel.txtKnipTekst.Text = "";
        tafel.lstKnipTekst.Clear();
        vraag.Width = tafel.bieding.fraBieding.Width;
        vraag.Move(tafel.bieding.fraBieding.Left, tafel.picKaart(cards::kOost)(1).Top);
        vraag.Height = tafel.picKaart(cards::kZuid)(1).bottom() - vraag.Top;

        const std::string pad = cards::Kaarten::bestand(tafel.gedeeld, " vraag.txt");
        if (cards::Kaarten::aanwezig(pad)) {
            std::string& regel = tafel.gedeeld.regel;
            std::string tekst;
            for (platform::LineReader regels(pad); !regels.at_end();) {
                regel = regels.line();
                tekst += base::replaced(regel, "~", "\r\n") + "\r\n";
            }
            tafel.txtKnipTekst.Text = tekst;
        }
        services::Knip_Tekst(tafel.txtKnipTekst, tafel.lstKnipTekst);
        std::string tekst = services::met_regeleinden(tafel.lstKnipTekst);
        tekst.pop_back();  // the line feed alone goes; the carriage return stays
        vraag.Text = tekst;
        vraag.Height = (tafel.lstKnipTekst.ListCount() + kSpareLines) * vraag.FontSize * kLineHeightPerPoint;
        vraag.Visible = true;
    });
}

}  // namespace Kaarten

}  // namespace table
