// The texts of the cards.
#include "annotate/frmTavrin05.h"
#include "base/Zolang.h"
#include "cards/Kaarten.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "services/Bas_Aftavrin.h"
#include "services/Knip_Tekst.h"

// Lines that are empty leave their marker as it is.
void frmTavrin05::ZetJaNeePic() {
    Foutpad("frmTavrin05 - General - ZetJaNeePic", [&] {
        for (int i = 0; i < lstInformatie.ListCount(); ++i) {
            if (trimmed(lstInformatie.List(i)).empty()) continue;
            gedeeld.delen = split(lstInformatie.List(i), "|");
            picYesNo(i).Picture = trimmed(gedeeld.delen[1]).empty() ? picNee.Picture() : picJa.Picture();
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
        gedeeld.delen = split(lblKaartNummer(index).Caption(), ": ");
        picYesNo_Click(numeric_value(gedeeld.delen[1]) - 1);
    });
}

void frmTavrin05::picYesNo_Click(int index) {
    Foutpad("frmTavrin05 - picYesNo - Click", [&] {
        fraKaartMetTekst.Tag = std::to_string(index);
        const std::string nummer = lblYesNo(index).Caption();
        const int regel = Bas_Aftavrin::GetListBoxIndex(programma, lstInformatie, nummer + "|", false);
        gedeeld.delen = split(lstInformatie.List(regel), "|");
        txtInformatie.Text = replaced(gedeeld.delen[1], "~", "\r\n");
        lblDezeKaart.Caption = LeesResString(Bericht::Nummer) + ": " + nummer;
        lblDezeKaart.Left = cmdGebruiken.Left - lblDezeKaart.Width - 128;
        {
            const Zolang houdt(TekstHouden, true);
            vscrSlag.Value = 12 - index / 4;
        }
        ZetJaNeePic();
        picYesNo(index).Picture = picBezig.Picture();
        txtInformatie.Text = trimmed(txtInformatie.Text());
        txtInformatie.SetFocus();
    });
}

void frmTavrin05::txtInformatie_Change() {
    Foutpad("frmTavrin05 - txtInformatie - Change", [&] {
        const bool heeft_tekst = !trimmed(txtInformatie.Text()).empty();
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
        const std::string kaart = LeesResString(Bericht::Kaart) + lower_case(lblDezeKaart.Caption());
        const std::string vraag = replaced(LeesResString(Bericht::InformatieWissen), "~", kaart);
        if (programma.platform.message_box(box_style::kQuestion, Caption(), vraag) == Answer::No) {
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
    const int k = numeric_value(fraKaartMetTekst.Tag());
    lstInformatie.SetList(k, std::to_string(k + 1) + "|" + tekst);
    std::string bytes;
    for (int i = 0; i < lstInformatie.ListCount(); ++i) {
        bytes += record_bytes(lstInformatie.List(i), Kaarten::kRecordLengte);
    }
    const std::string pad = join_path(map, naam + " informatie.txt");
    refuse_links(programma.pakketten(), pad);
    replace_file(pad, bytes);
}

void frmTavrin05::cmdVoorBeeld_Click() {
    Foutpad("frmTavrin05 - cmdVoorbeeld - Click", [&] {
        for (forms::Frame* kader : {&fraKaartMetTekst, &fraSlag, &fraSpellen})
            kader->Enabled = false;
        lstKnipTekst.Clear();
        txtKnipTekst.Text = txtInformatie.Text();
        Knip_Tekst(txtKnipTekst, lstKnipTekst);
        txtVoorbeeld.Text = met_regeleinden(lstKnipTekst);
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
