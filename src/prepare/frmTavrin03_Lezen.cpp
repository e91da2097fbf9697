// Reading a deal onto the screen: of the companion, or of a stored package. The two differ in small ways, all meant.
#include "cards/Kaarten.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "prepare/Bron.h"
#include "prepare/frmTavrin03.h"
#include "services/Bas_Aftavrin.h"
#include "services/Knip_Tekst.h"
#include "table/KaartenTafel.h"

namespace prepare {

namespace {

std::string lees_tekst(const std::string& pad) {
    std::string tekst;
    for (platform::LineReader regels(pad); !regels.at_end();)
        tekst += regels.line() + "\r\n";
    return tekst;
}

std::string zonder_regeleinde_vooraan(const std::string& tekst) {
    return tekst.starts_with("\r\n") ? tekst.substr(2) : tekst;
}

}  // namespace

void frmTavrin03::LeesRVLXSpelIn() {
    tekstenGelezen = false;
    Foutpad("frmTavrin03 - General - LeesRVLXSpelIn", [&] {
        const std::string map = platform::join_path(platform::join_path(RVLXMap, "spellen"), gedeeld.spelNaam);
        const Bron bron{platform::join_path(map, gedeeld.spelNaam), gedeeld.spelNaam, "\r\n", false, kInSlag};
        if (!lees_spel(bron)) return;
        txtVraag.Text = "";
        txtAntwoord.Text = "";
        for (const auto& [achtervoegsel, doos] :
             {std::pair{" vraag.txt", &txtVraag}, {" antwoord.txt", &txtAntwoord}}) {
            lstKnipTekst.Clear();
            knip_tot_regels(base::trimmed(lees_tekst(bron.stam + achtervoegsel)));
            // Two characters go without a test: a text that doesn't begin with a line break loses two letters.
            doos->Text = base::middle(services::met_regeleinden(lstKnipTekst), 3);
        }
        tekstenGelezen = true;
        bepaal_troef();
    });
}

void frmTavrin03::LeesSpelIn() {
    tekstenGelezen = false;
    Foutpad("frmTavrin03 - General - LeesSpelIn", [&] {
        const Bron bron{platform::join_path(gedeeld.spelMap, gedeeld.spelNaam), lstAfTavrin.Text() + " ", "\n", true,
                        kUitkomstVanPakket};
        if (!lees_spel(bron)) return;
        txtVraag.Text = lees_tekst(bron.stam + " vraag.txt");
        txtAntwoord.Text = lees_tekst(bron.stam + " antwoord.txt");
        bepaal_troef();
        // The list is not cleared between the two: the answer's box gets the question's lines too.
        for (forms::TextBox* doos : {&txtVraag, &txtAntwoord}) {
            knip_tot_regels(doos->Text());
            doos->Text = services::met_regeleinden(lstKnipTekst);
        }
        for (forms::TextBox* doos : {&txtVraag, &txtAntwoord})
            doos->Text = zonder_regeleinde_vooraan(doos->Text());
        tekstenGelezen = true;
        table::Kaarten::ToonBieding(*this, bieding);
    });
}

void frmTavrin03::knip_tot_regels(const std::string& tekst) {
    txtKnipText.Text = "";
    txtKnipText.Text = tekst;
    services::Knip_Tekst(txtKnipText, lstKnipTekst);
}

// What both readers do alike. False if the deal was refused.
bool frmTavrin03::lees_spel(const Bron& bron) {
    maak_scherm_leeg();
    if (!cards::Kaarten::aanwezig(bron.stam + " Contract.txt")) {
        programma.platform.message_box(
            platform::box_style::kInformation, Caption(),
            bron.geweigerd + base::replaced(LeesResString(Bericht::NietCompleet), "|", bron.regeleinde));
        return false;
    }
    gedeeld.regel = cards::Kaarten::eerste_regel(bron.stam + " Contract.txt");
    lblContract.Caption = gedeeld.regel;
    lblContract.Visible = true;
    lees_uitkomst(bron);
    const int kolom = zet_uitkomst_in_raster();
    if (bron.legt_uitkomst_vast) gedeeld.uitkomstVast = true;
    lees_handen(bron);
    kleur_uitkomst(kolom, bron);
    return true;
}

void frmTavrin03::maak_scherm_leeg() {
    labels.elk_label([](forms::Label& label) {
        label.Visible = false;
        label.Caption = "";
        label.BackColor = kInHand;
        label.Enabled = true;
    });
    for (const int plaats : cards::kPlaatsen)
        labels.fra(plaats).BackColor = kInHand;
    msfgTavrin.Redraw = false;
    for (int r = 1; r < msfgTavrin.Rows(); ++r) {
        msfgTavrin.Row = r;
        for (int kolom = 1; kolom < msfgTavrin.Cols(); ++kolom) {
            msfgTavrin.Col = kolom;
            msfgTavrin.SetText("");
            msfgTavrin.SetCellAlignment(forms::FlexGrid::CellAlignment::Centre);
            msfgTavrin.SetCellBackColor(kInHand);
        }
    }
    msfgTavrin.Redraw = true;
}

void frmTavrin03::lees_uitkomst(const Bron& bron) {
    gedeeld.regel = cards::Kaarten::eerste_regel(bron.stam + " Uitkomst.txt");
    gedeeld.delen = base::split(gedeeld.regel, "-");
    const std::string wind = base::trimmed(gedeeld.delen[0]);
    const std::string kaart = base::trimmed(gedeeld.delen[1]);
    picUitkomst.Picture = forms::Picture{};
    if (!kaart.empty() && kaart[0] >= '0' && kaart[0] <= '3') {
        const auto kleur = static_cast<cards::Kleur>(kaart[0] - '0');
        picUitkomst.Picture = labels.pic(1)(kleur).Picture();
        GevraagdeKleur = LeesResString(cards::gegevens(kleur).letter) + " ";
    }
    lblUitkomstWind.Caption = wind + " - ";
    picUitkomst.Left = lblUitkomstWind.right() + 32;
    lblUitkomstKaart.Caption = base::middle(kaart, 2);
    lblUitkomstKaart.Left = picUitkomst.right() + 48;
    lblUitkomstWind.Visible = true;
    picUitkomst.Visible = true;
    lblUitkomstKaart.Visible = true;
}

// Writes the lead into row 1. The column of the leader; 0 for a seat word that stands above no column.
int frmTavrin03::zet_uitkomst_in_raster() {
    const std::string& wind = lblUitkomstWind.Caption();
    msfgTavrin.Row = 0;
    for (int kolom = 1; kolom < msfgTavrin.Cols(); ++kolom) {
        msfgTavrin.Col = kolom;
        if (msfgTavrin.Text() != base::left(wind, wind.size() - 3)) continue;
        msfgTavrin.Row = 1;
        msfgTavrin.SetText(GevraagdeKleur + base::left(lblUitkomstKaart.Caption(), 1));
        msfgTavrin.SetCellAlignment(forms::FlexGrid::CellAlignment::Centre);
        msfgTavrin.SetCellBackColor(kInSlag);
        return kolom;
    }
    return 0;
}

void frmTavrin03::lees_handen(const Bron& bron) {
    platform::LineReader regels(bron.stam + " handen.txt");
    for (const int plaats : cards::kPlaatsen) {
        for (const cards::Kleur kleur : cards::kKleuren) {
            const std::string kaarten = regels.line();
            for (std::size_t i = 0; i < kaarten.size(); ++i) {
                forms::Label& label = labels.rij(plaats, kleur)(static_cast<int>(i));
                label.Caption = std::string(1, kaarten[i]);
                label.AccessibleName = cards::titel(cards::code_van(waarde_van(label.Caption()), kleur));
                label.Visible = true;
            }
        }
    }
}

void frmTavrin03::kleur_uitkomst(int kolom, const Bron& bron) {
    if (kolom != 0) lstKlaar.Tag = LeesResString(cards::letter_van_plaats(cards::volgende_plaats(kolom)));
    const auto kleur = kleur_van_letter(base::trimmed(GevraagdeKleur));
    const bool bekend = !(picUitkomst.Picture == forms::Picture{});
    if (kolom == 0 || !kleur || !bekend) throw base::Fout(base::FoutNummer::InvalidCall, gedeeld.regel);
    for (int i = 0; i <= kHoogste; ++i) {
        forms::Label& label = labels.rij(kolom, *kleur)(i);
        if (!(label.Caption == base::left(lblUitkomstKaart.Caption(), 1))) continue;
        label.BackColor = bron.kleur_uitkomst;
        return;
    }
}

// A later word found overwrites an earlier one.
void frmTavrin03::bepaal_troef() {
    TroefNummer = 0;
    TroefKleur.clear();
    for (const cards::Kleur kleur : cards::kKleuren) {
        if (lblContract.Caption().find(LeesResString(cards::gegevens(kleur).woord)) == std::string::npos) continue;
        TroefNummer = 4 - static_cast<int>(kleur);
        TroefKleur = LeesResString(cards::gegevens(kleur).letter);
    }
}

}  // namespace prepare
