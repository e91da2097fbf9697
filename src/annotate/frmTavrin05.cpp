#include "annotate/frmTavrin05.h"

#include "base/Zolang.h"
#include "cards/Kaart.h"
#include "cards/Kaarten.h"
#include "cards/PerPlaats.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "services/Bas_Aftavrin.h"
#include "services/Kleuren.h"

namespace annotate {

namespace {

namespace kleuren = services::kleuren;

constexpr forms::Size kInner{16260, 6645};
constexpr int kPerRij = 13;
constexpr double kOnderNummer = 240;  // from a number to the picture below it

constexpr cards::PerPlaats<forms::Rect> kKompas{
    {2040, 720, 1560, 225}, {3990, 1830, 1560, 225}, {2040, 3570, 1560, 225}, {150, 1830, 1560, 225}};

forms::Rect kaart_plek(int plaats) {
    const forms::Rect nummer = kKompas(plaats);
    return {nummer.left, nummer.top + kOnderNummer, 1560, 2340};
}

forms::Rect nummer_plek(int index) {
    const int rij = index / kPerRij;
    return {255.0 + 570 * (index % kPerRij), 270.0 + 840 * rij, 450, 225};
}

forms::Rect merk_plek(int index) {
    const forms::Rect nummer = nummer_plek(index);
    return {nummer.left, nummer.top + kOnderNummer, 450, 450};
}

}  // namespace

frmTavrin05::frmTavrin05(services::Programma& programma)
    : services::Scherm(programma, "frmTavrin05", kInner,
                       {.key_up = "frmTavrin05 - Form - KeyUp",
                        .terug = "frmTavrin05 - cmdTerug - Click",
                        .query_unload = "frmTavrin05 - Form - QueryUnload"}),
      lblKaartNummer(fraSlag, "lblKaartNummer", 1, 4, kKompas),
      picKaart(fraSlag, "picKaart", 1, 4, kaart_plek),
      lblYesNo(fraKaartMetTekst, "lblYesNo", 0, cards::kKaarten - 1, nummer_plek),
      picYesNo(fraKaartMetTekst, "picYesNo", 0, cards::kKaarten - 1, merk_plek) {
    stel_uiterlijk_in();
    chkSorteer.Click = [this] { chkSorteer_Click(); };
    lstSpellen.Click = [this] { lstSpellen_Click(); };
    vscrSlag.Change = [this] { vscrSlag_Change(); };
    txtInformatie.Change = [this] { txtInformatie_Change(); };
    cmdGebruiken.Click = [this] { cmdGebruiken_Click(); };
    cmdWissen.Click = [this] { cmdWissen_Click(); };
    cmdVoorBeeld.Click = [this] { cmdVoorBeeld_Click(); };
    cmdSluiten.Click = [this] { cmdSluiten_Click(); };
    cmdToonSpel.Click = [this] { cmdToonSpel_Click(); };
    cmdTerug.Click = [this] { cmdTerug_Click(); };
    for (const auto& [i, label] : lblKaartNummer)
        label->Click = [this, i = i] { lblKaartNummer_Click(i); };
    for (const auto& [i, kaart] : picKaart)
        kaart->Click = [this, i = i] { picKaart_Click(i); };
    for (const auto& [i, merk] : picYesNo)
        merk->Click = [this, i = i] { picYesNo_Click(i); };
    for (const auto& [i, label] : lblYesNo) {
        label->Click = [this, i = i] { Foutpad("frmTavrin05 - lblYesNo - Click", [&] { picYesNo_Click(i); }); };
    }
}

void frmTavrin05::stel_uiterlijk_in() {
    txtSlag.MaxLength = 3;
    txtSlag.Alignment = forms::Alignment::Centre;
    vscrSlag.Min = -1;
    vscrSlag.Max = cards::kSlagen;
    lblUit.AutoSize = true;
    lblToonSlag.Visible = false;
    lblDezeKaart.AutoSize = true;
    lblKaartNummer.each([](forms::Label& label) {
        label.FontSize = 9;
        label.Alignment = forms::Alignment::Centre;
    });
    lblYesNo.each([](forms::Label& label) { label.Alignment = forms::Alignment::Centre; });
    picYesNo.each([](forms::PictureBox& merk) { merk.Opaque = false; });
    picKaart.each([](forms::PictureBox& kaart) { kaart.Opaque = false; });
    picJa.Picture = {0, "ja"};
    picNee.Picture = {0, "nee"};
    picBezig.Picture = {0, "bezig"};
    for (forms::PictureBox* merk : {&picJa, &picNee, &picBezig})
        merk->Visible = false;
    for (forms::TextBox* doos : {&txtInformatie, &txtVoorbeeld, &txtKnipTekst}) {
        doos->MultiLine = true;
        doos->FontSize = 12;
    }
    txtInformatie.MaxLength = 255;
    txtVoorbeeld.MaxLength = 253;
    txtVoorbeeld.BackColor = kleuren::kVoorbeeldBlauw;
    txtVoorbeeld.ForeColor = forms::kWindowColour;
    txtKnipTekst.Visible = false;
    frmVoorbeeld.Visible = false;
    for (forms::CommandButton* knop : {&cmdWissen, &cmdVoorBeeld, &cmdToonSpel, &cmdGebruiken})
        knop->Enabled = false;
    fraSlag.Enabled = false;
    fraKaartMetTekst.Enabled = false;
}

void frmTavrin05::Form_Load() {
    Foutpad("frmTavrin05 - Form - Load", [&] {
        Caption = LeesResString(Bericht::Editor);
        fraSpellen.Caption = LeesResString(Bericht::Spellen);
        chkSorteer.Caption = LeesResString(Bericht::SorteerHoogLaag);
        cmdTerug.Caption = "&" + LeesResString(Bericht::Terug);
        fraSlag.Caption = LeesResString(Bericht::Editor);
        lblSlag.Caption = LeesResString(Bericht::Slag);
        lblUit.Caption = LeesResString(Bericht::Uit) + ":";
        fraKaartMetTekst.Caption = LeesResString(Bericht::BijschriftKaarten);
        cmdWissen.Caption = "&" + LeesResString(Bericht::Wissen);
        cmdVoorBeeld.Caption = "&" + LeesResString(Bericht::VoorbeeldTekst);
        cmdToonSpel.Caption = LeesResString(Bericht::ToonSpel);
        cmdGebruiken.Caption = "&" + LeesResString(Bericht::TekstOpslaan);
        cmdSluiten.Caption = "&" + LeesResString(Bericht::Sluiten);
        zet_buiten_beeld(cmdFocus);
        centreer();
        // As wide as the preview, so that a text is cut where the preview would break it.
        txtKnipTekst.Move(2490, txtVoorbeeld.Top, txtVoorbeeld.Width, txtVoorbeeld.Height);
        lees_spellen();
        for (int slag = cards::kSlagen; slag >= 1; --slag)
            lstSlag.AddItem(std::to_string(slag));
        zet_balk(cards::kSlagen);
        zet_alles_dicht();
    });
}

void frmTavrin05::lees_spellen() {
    cards::Kaarten::LeesSpellen(*this, lstSpellen, dirSpellen, programma.pakketten(), chkSorteer.Value);
}

// Card backs, numbers without a card, and no marker that tells of a text.
void frmTavrin05::zet_alles_dicht() {
    for (const int plaats : cards::kPlaatsen) {
        picKaart(plaats).Picture = services::Bas_Aftavrin::LaadPlaatje(gedeeld.kaartRugId);
        picKaart(plaats).AccessibleName = "";
        lblKaartNummer(plaats).Caption = LeesResString(Bericht::Nummer);
    }
    for (int i = 0; i < cards::kKaarten; ++i) {
        lblYesNo(i).Caption = std::to_string(i + 1);
        picYesNo(i).Picture = picNee.Picture();
        picYesNo(i).AccessibleName = LeesResString(Bericht::Nummer) + " " + std::to_string(i + 1);
        picYesNo(i).ToolTipText = "";
    }
}

void frmTavrin05::schakel_kaders(bool aan) {
    fraSlag.Enabled = aan;
    fraKaartMetTekst.Enabled = aan;
    cmdToonSpel.Enabled = aan;
}

void frmTavrin05::Form_Activate() {
    Foutpad("frmTavrin05 - Form - Activate", [&] { cmdFocus.SetFocus(); });
}

void frmTavrin05::chkSorteer_Click() {
    Foutpad("frmTavrin05 - chkSorteer - Click", [&] {
        wissel_opschrift(chkSorteer);
        schakel_kaders(false);
        lees_spellen();
        cmdFocus.SetFocus();
    });
}

void frmTavrin05::lstSpellen_Click() {
    Foutpad("frmTavrin05 - lstSpellen - Click", [&] {
        const std::string naam = lstSpellen.Text();
        const std::string map = programma.pakket(naam);
        const std::string stam = platform::join_path(map, naam);
        gedeeld.spelMapKopie = map;
        schakel_kaders(false);
        if (ontbreekt(stam + " contract.txt", "(" + naam + " contract.txt)")) return;
        fraSlag.Caption = cards::Kaarten::eerste_regel(stam + " contract.txt");
        lblToonSlag.Caption = "";
        EersteNummer = -3;
        if (ontbreekt(stam + " aftavrin.txt", naam + " aftavrin.txt")) return;
        lees_speelrijen(stam + " aftavrin.txt");
        lstInformatie.Clear();
        for (int nummer = 1; nummer <= cards::kKaarten; ++nummer)
            lstInformatie.AddItem(std::to_string(nummer) + "|");
        zet_alles_dicht();
        lees_teksten(stam + " informatie.txt");
        gedeeld.spelMap = map;
        gedeeld.spelNaam = naam;
        zet_balk(0);
        vscrSlag.Value = lstSlag.ListCount() - 1;
        txtSlag.Text = "1";
        schakel_kaders(true);
    });
}

// Tells that a file of the deal is missing.
bool frmTavrin05::ontbreekt(const std::string& bestand, const std::string& genoemd) {
    if (cards::Kaarten::aanwezig(bestand)) return false;
    std::string melding = base::replaced(LeesResString(Bericht::BestandNietGevonden), "~", genoemd);
    melding = base::replaced(base::replaced(melding, "+", gedeeld.spelMapKopie), "|", "\n");
    programma.platform.message_box(platform::box_style::kInformation, Caption(), melding);
    cmdFocus.SetFocus();
    return true;
}

void frmTavrin05::lees_speelrijen(const std::string& pad) {
    lstAfTavrin.Clear();
    for (platform::LineReader regels(pad); !regels.at_end();)
        lstAfTavrin.AddItem(regels.line());
}

void frmTavrin05::lees_teksten(const std::string& pad) {
    if (!cards::Kaarten::aanwezig(pad)) return;
    int regel = 0;
    for (const std::string& record :
         platform::read_records(pad, cards::Kaarten::kRecordLengte, cards::Kaarten::kAantalRecords)) {
        gedeeld.delen = base::split(base::trimmed(record), "|");
        if (gedeeld.delen.last() == 1 && !base::trimmed(gedeeld.delen[1]).empty()) {
            for (int j = 0; j < lstInformatie.ListCount(); ++j) {
                if (base::numeric_value(lstInformatie.List(j)) != base::numeric_value(gedeeld.delen[0])) continue;
                picYesNo(j).Picture = picJa.Picture();
                break;
            }
        }
        lstInformatie.SetList(regel++, record);
    }
}

// Without its change.
void frmTavrin05::zet_balk(int waarde) {
    const base::Zolang bezig(ScrollBezig, true);
    vscrSlag.Value = waarde;
}

void frmTavrin05::vscrSlag_Change() {
    Foutpad("frmTavrin05 - vscrSlag - Change", [&] {
        if (ScrollBezig) return;
        if (!TekstHouden) txtInformatie.Text = "";
        const int laatste = lstSlag.ListCount() - 1;
        if (vscrSlag.Value < 0 || vscrSlag.Value > laatste) zet_balk(vscrSlag.Value < 0 ? laatste : 0);
        txtSlag.Text = lstSlag.List(vscrSlag.Value);
        const int slag = base::numeric_value(txtSlag.Text());
        EersteNummer = (slag - 1) * 4 + 1;
        toon_slag(lstAfTavrin.List(slag - 1));
        ZetJaNeePic();
    });
}

void frmTavrin05::toon_slag(const std::string& rij) {
    gedeeld.delen = base::split(rij, "|");
    const int uitkomer = base::numeric_value(base::left(gedeeld.delen[0], 1));
    lblUit.Caption = LeesResString(Bericht::Uit) + ":" + LeesResString(cards::bericht_van_plaats(uitkomer));
    lblToonSlag.Caption = rij;
    for (const int plaats : cards::kPlaatsen) {
        lblKaartNummer(plaats).FontBold = false;
        lblKaartNummer(plaats).ForeColor = kleuren::kZwart;
    }
    lblKaartNummer(uitkomer).FontBold = true;
    lblKaartNummer(uitkomer).ForeColor = kleuren::kBlauw;
    for (int i = 0, plaats = uitkomer; i < 4; ++i, plaats = cards::volgende_plaats(plaats)) {
        lblKaartNummer(plaats).Caption = LeesResString(Bericht::Nummer) + ": " + std::to_string(EersteNummer + i);
    }
    // The pictures stay at their seats, only the numbers follow the order of play.
    for (const int plaats : cards::kPlaatsen) {
        const int code = base::numeric_value(gedeeld.delen[plaats]);
        picKaart(plaats).Picture = services::Bas_Aftavrin::LaadPlaatje(code);
        picKaart(plaats).AccessibleName = cards::titel(code);
    }
}

}  // namespace annotate
