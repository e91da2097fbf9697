// Saving the recorded play as a package.
#include "cards/Kaarten.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "prepare/frmTavrin03.h"
#include "services/Bas_Aftavrin.h"

namespace prepare {

namespace {

constexpr const char* kVoorvoegsel = "QVT_";

}  // namespace

void frmTavrin03::cmdOpslaan_Click() {
    Foutpad("frmTavrin03 - cmdOpslaan - Click", [&] {
        gedeeld.spelMap = platform::join_path(RVLXMap, "Spellen");
        gedeeld.spelMapKopie = programma.pakketten();
        services::Bas_Aftavrin::SchrijfINI(programma, "Standaard", "LaatsteRVLX", lstRVLX.Text(),
                                           programma.instellingen());
        gedeeld.spelNaam = lstAfTavrin.Text().empty() ? kVoorvoegsel + lstRVLX.Text() : lstAfTavrin.Text();
        gedeeld.spelMapKopie = platform::join_path(gedeeld.spelMapKopie, gedeeld.spelNaam);
        cmdOpslaan.Enabled = false;
        services::Bas_Aftavrin::MaakPad(gedeeld.spelMapKopie);
        if (gedeeld.spelMapKopie.ends_with(platform::kPathSeparator)) gedeeld.spelMapKopie.pop_back();

        const std::string stam = platform::join_path(gedeeld.spelMapKopie, gedeeld.spelNaam);
        const bool bestaat = cards::Kaarten::aanwezig(stam + " aftavrin.txt");
        if (bestaat) {
            const std::string vraag = base::replaced(
                base::replaced(LeesResString(Bericht::BestandBestaatAl), "~", lstAfTavrin.Text()), "|", "\n");
            if (programma.platform.message_box(platform::box_style::kQuestion, Caption(), vraag) ==
                platform::Answer::No)
                return;
        }
        stel_speelrijen_op();
        // Nothing is written where a link would lead out of the package.
        platform::refuse_links(programma.pakketten(), gedeeld.spelMapKopie);
        platform::refuse_links_in(gedeeld.spelMapKopie, "*.txt");
        schrijf_speelbestanden(stam);
        if (bestaat) {
            schrijf_tekst(stam + " Vraag.txt", txtVraag);
            schrijf_tekst(stam + " Antwoord.txt", txtAntwoord);
        } else if (!lstRVLX.Text().empty()) {
            filSpellen.Pattern = "*.txt";
            filSpellen.Path = platform::join_path(gedeeld.spelMap, lstRVLX.Text());
            for (int i = 0; i < filSpellen.ListCount(); ++i) {
                platform::copy_file(platform::join_path(filSpellen.Path(), filSpellen.List(i)),
                                    platform::join_path(gedeeld.spelMapKopie, kVoorvoegsel + filSpellen.List(i)));
            }
        }
        LeesAftavrinSpellen();
    });
}

// A text that could not be read stays as it is on the disk, as long as nobody typed another.
void frmTavrin03::schrijf_tekst(const std::string& pad, const forms::TextBox& doos) {
    if (tekstenGelezen || !doos.Text().empty()) platform::write_file(pad, doos.Text());
}

// One line a trick: the order of the seats, and the cards in the order of the columns. Nobody checks that the grid is
// full: an empty cell becomes card code 0, a row without a leader an empty order.
void frmTavrin03::stel_speelrijen_op() {
    lstOpslaan.Clear();
    for (int r = 1; r < msfgTavrin.Rows(); ++r) {
        std::string volgorde;
        std::string kaarten;
        msfgTavrin.Row = r;
        for (int kolom = 1; kolom < msfgTavrin.Cols(); ++kolom) {
            msfgTavrin.Col = kolom;
            if (msfgTavrin.CellBackColor() != kInHand) {
                volgorde.clear();
                for (int plaats = kolom, i = 0; i < 4; ++i, plaats = cards::volgende_plaats(plaats)) {
                    volgorde += std::to_string(plaats);
                }
            }
            kaarten += "|" + std::to_string(code_van_cel(msfgTavrin.Text()));
        }
        lstOpslaan.AddItem(volgorde + kaarten);
    }
}

int frmTavrin03::code_van_cel(const std::string& tekst) const {
    const auto kleur = kleur_van_letter(base::left(tekst, 1));
    const int waarde = waarde_van(tekst);
    return kleur ? cards::code_van(waarde, *kleur) : waarde;
}

void frmTavrin03::schrijf_speelbestanden(const std::string& stam) {
    lstInformatie.Clear();
    std::vector<std::string> records;
    for (int nummer = 1; nummer <= cards::Kaarten::kAantalRecords; ++nummer) {
        lstInformatie.AddItem(std::to_string(nummer) + "|");
        records.push_back(lstInformatie.List(nummer - 1));
    }
    platform::write_records(stam + " informatie.txt", cards::Kaarten::kRecordLengte, records);
    std::string regels;
    for (int i = 0; i < lstOpslaan.ListCount(); ++i)
        regels += lstOpslaan.List(i) + "\r\n";
    platform::write_file(stam + " aftavrin.txt", regels);
}

}  // namespace prepare
