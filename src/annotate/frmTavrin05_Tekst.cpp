// The texts of the cards.
#include "annotate/frmTavrin05.h"
#include "base/Zolang.h"
#include "cards/Kaarten.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "services/Bas_Aftavrin.h"
#include "services/Knip_Tekst.h"

namespace annotate {

// Lines that are empty leave their marker as it is.
namespace {

// As much of a text as can be read in passing.
std::string begin_van(const std::string& tekst) {
    constexpr std::size_t kMost = 60;
    const std::string regel = base::replaced(tekst, "~", " ");
    return regel.size() <= kMost ? regel : base::left(regel, kMost) + "...";
}

}  // namespace

void frmTavrin05::ZetJaNeePic() {
    Foutpad("frmTavrin05 - General - ZetJaNeePic", [&] {
        for (int i = 0; i < lstInformatie.ListCount(); ++i) {
            if (base::trimmed(lstInformatie.List(i)).empty()) continue;
            gedeeld.delen = base::split(lstInformatie.List(i), "|");
            const std::string tekst = base::trimmed(gedeeld.delen[1]);
            picYesNo(i).Picture = tekst.empty() ? picNee.Picture() : picJa.Picture();
            picYesNo(i).ToolTipText = begin_van(tekst);
        }
    });
}

void frmTavrin05::picKaart_Click(int index) {
    Foutpad("frmTavrin05 - picKaart - Click", [&] {
        txtInformatie.SetFocus();
        lblKaartNummer_Click(index);
    });
}

void frmTavrin05::lblKaartNummer_Click(int index) {
    Foutpad("frmTavrin05 - lblKaartNummer - Click", [&] {
        gedeeld.delen = base::split(lblKaartNummer(index).Caption(), ": ");
        picYesNo_Click(base::numeric_value(gedeeld.delen[1]) - 1);
    });
}

void frmTavrin05::picYesNo_Click(int index) {
    Foutpad("frmTavrin05 - picYesNo - Click", [&] {
        fraKaartMetTekst.Tag = std::to_string(index);
        const std::string nummer = lblYesNo(index).Caption();
        const int regel = services::Bas_Aftavrin::GetListBoxIndex(programma, lstInformatie, nummer + "|", false);
        gedeeld.delen = base::split(lstInformatie.List(regel), "|");
        txtInformatie.Text = base::replaced(gedeeld.delen[1], "~", "\r\n");
        lblDezeKaart.Caption = LeesResString(Bericht::Nummer) + ": " + nummer;
        lblDezeKaart.Left = cmdGebruiken.Left - lblDezeKaart.Width - 128;
        {
            const base::Zolang houdt(TekstHouden, true);
            vscrSlag.Value = 12 - index / 4;
        }
        ZetJaNeePic();
        picYesNo(index).Picture = picBezig.Picture();
        txtInformatie.Text = base::trimmed(txtInformatie.Text());
        txtInformatie.SetFocus();
    });
}

void frmTavrin05::txtInformatie_Change() {
    Foutpad("frmTavrin05 - txtInformatie - Change", [&] {
        const bool heeft_tekst = !base::trimmed(txtInformatie.Text()).empty();
        for (forms::CommandButton* knop : {&cmdGebruiken, &cmdWissen, &cmdVoorBeeld})
            knop->Enabled = heeft_tekst;
    });
}

void frmTavrin05::cmdGebruiken_Click() {
    Foutpad("frmTavrin05 - cmdGebruiken - Click", [&] {
        if (!fraKaartMetTekst.Tag().empty()) {
            bewaar_tekst(txtInformatie.Text(), programma.pakket(lstSpellen.Text()), lstSpellen.Text());
        }
        cmdFocus.SetFocus();
    });
}

void frmTavrin05::cmdWissen_Click() {
    Foutpad("frmTavrin05 - cmdWissen - Click", [&] {
        if (fraKaartMetTekst.Tag().empty()) {
            cmdFocus.SetFocus();
            return;
        }
        const std::string kaart = LeesResString(Bericht::Kaart) + base::lower_case(lblDezeKaart.Caption());
        const std::string vraag = base::replaced(LeesResString(Bericht::InformatieWissen), "~", kaart);
        if (programma.platform.message_box(platform::box_style::kQuestion, Caption(), vraag) == platform::Answer::No) {
            cmdFocus.SetFocus();
            return;
        }
        txtInformatie.Text = "";
        bewaar_tekst("", gedeeld.spelMapKopie, gedeeld.spelNaam);
    });
}

// Stores the text of the chosen card and writes all records anew. The file is replaced whole: a failure in the middle
// leaves the texts as they were.
void frmTavrin05::bewaar_tekst(const std::string& tekst, const std::string& map, const std::string& naam) {
    const int k = base::numeric_value(fraKaartMetTekst.Tag());
    lstInformatie.SetList(k, std::to_string(k + 1) + "|" + tekst);
    std::string bytes;
    for (int i = 0; i < lstInformatie.ListCount(); ++i) {
        bytes += platform::record_bytes(lstInformatie.List(i), cards::Kaarten::kRecordLengte);
    }
    const std::string pad = platform::join_path(map, naam + " informatie.txt");
    platform::refuse_links(programma.pakketten(), pad);
    platform::replace_file(pad, bytes);
}

void frmTavrin05::cmdVoorBeeld_Click() {
    Foutpad("frmTavrin05 - cmdVoorbeeld - Click", [&] {
        for (forms::Frame* kader : {&fraKaartMetTekst, &fraSlag, &fraSpellen})
            kader->Enabled = false;
        lstKnipTekst.Clear();
        txtKnipTekst.Text = txtInformatie.Text();
        services::Knip_Tekst(txtKnipTekst, lstKnipTekst);
        txtVoorbeeld.Text = services::met_regeleinden(lstKnipTekst);
        frmVoorbeeld.Visible = true;
    });
}

void frmTavrin05::cmdSluiten_Click() {
    Foutpad("frmTavrin05 - cmdSluiten - Click", [&] {
        frmVoorbeeld.Visible = false;
        txtInformatie.Text = txtVoorbeeld.Text();
        for (forms::Frame* kader : {&fraKaartMetTekst, &fraSlag, &fraSpellen})
            kader->Enabled = true;
    });
}

void frmTavrin05::cmdToonSpel_Click() {
    Foutpad("frmTavrin05 - cmdToonSpel - Click", [&] {
        Hide();
        gedeeld.vorigScherm = 5;
        programma.schermen.toon("frmTavrin06");
    });
}

}  // namespace annotate
