#include "prepare/frmTavrin03.h"

#include "cards/Kaarten.h"
#include "platform/Paths.h"
#include "prepare/Klik.h"
#include "services/Bas_Aftavrin.h"
#include "table/KaartenTafel.h"

namespace prepare {

namespace {

constexpr forms::Size kInner{16950, 9585};

}  // namespace

frmTavrin03::frmTavrin03(services::Programma& programma)
    : services::Scherm(programma, "frmTavrin03", kInner,
                       {.key_up = "frmTavrin03 - Form - KeyUp",
                        .terug = "frmTavrin03 - cmdTerug - Click",
                        .query_unload = "frmTavrin03 - Form - QueryUnload"}) {
    stel_uiterlijk_in();
    chkSorteerRVLX.Click = [this] {
        sorteer("frmTavrin03 - chkSorteerRVLX - Click", chkSorteerRVLX, [this] { LaatRVLXSpellenZien(); });
    };
    chkSorteerTavrin.Click = [this] {
        sorteer("frmTavrin03 - chkSorteerTavrin - Click", chkSorteerTavrin, [this] { LeesAftavrinSpellen(); });
    };
    lstRVLX.Click = [this] { lstRVLX_Click(); };
    lstAfTavrin.Click = [this] { lstAfTavrin_Click(); };
    cmdOpslaan.Click = [this] { cmdOpslaan_Click(); };
    cmdOphalen.Click = [this] { cmdOphalen_Click(); };
    msfgTavrin.Click = [this] { msfgTavrin_Click(); };
    cmdTerug.Click = [this] { cmdTerug_Click(); };
    for (const Klik& klik : kKlikken) {
        labels.rij(klik.plaats, klik.kleur).each([this, &klik](forms::Label& label) {
            label.Click = [this, &klik, index = label.index()] { klik_kaart(klik, index); };
        });
    }
}

void frmTavrin03::stel_uiterlijk_in() {
    for (const int plaats : cards::kPlaatsen) {
        labels.fra(plaats).Caption = LeesResString(cards::bericht_van_plaats(plaats));
        bieding.lblBieding(plaats - 1).Caption = LeesResString(cards::bericht_van_plaats(plaats));
    }
    lblInfo(0).Caption = LeesResString(Bericht::Contract) + ":";
    lblInfo(1).Caption = LeesResString(Bericht::Uitkomst) + ":";
    lblSlagenNZ.Caption = LeesResString(Bericht::SlagenNoordZuid) + ":";
    lblSlagenOW.Caption = LeesResString(Bericht::SlagenOostWest) + ":";
    lblSlagenTellerNZ.Caption = "0";
    lblSlagenTellerOW.Caption = "0";
    for (forms::Label* opschrift : {&lblLaatste, &lblContract, &lblUitkomstWind, &lblUitkomstKaart}) {
        opschrift->AutoSize = true;
    }
    for (forms::Label* vet :
         {&lblContract, &lblUitkomstWind, &lblUitkomstKaart, &lblSlagenTellerNZ, &lblSlagenTellerOW}) {
        vet->FontBold = true;
    }
    lblUitkomstKaart.FontSize = 9.75;
    lblContract.Visible = false;
    lblUitkomstWind.Visible = false;
    picUitkomst.Visible = false;
    picUitkomst.Opaque = false;
    lblUitkomstKaart.Visible = false;
    msfgTavrin.FontSize = 9.75;
    for (forms::TextBox* doos : {&txtVraag, &txtAntwoord, &txtKnipText}) {
        doos->MultiLine = true;
        doos->FontSize = 12;
    }
    txtKnipText.Visible = false;
    cmdOphalen.Visible = false;
    cmdOphalen.Caption = "Ophalen";
    cmdOpslaan.Enabled = false;
}

void frmTavrin03::Form_Load() {
    Foutpad("frmTavrin03 - Form - Load", [&] {
        Caption = LeesResString(Bericht::MaakSpelGereed);
        cmdTerug.Caption = "&" + LeesResString(Bericht::Terug);
        zet_buiten_beeld(cmdFocus);
        cmdTerug.Move(90, Height - cmdTerug.Height - 90);
        fraRVLX.Caption = LeesResString(Bericht::SpellenUitRVLX);
        fraTavrin.Caption = LeesResString(Bericht::Tavrin);
        chkSorteerRVLX.Caption = LeesResString(Bericht::SorteerHoogLaag);
        chkSorteerTavrin.Caption = LeesResString(Bericht::SorteerHoogLaag);
        cmdOpslaan.Caption = "&" + LeesResString(Bericht::SpelOpslaan);
        labels.maak_rijen();
        MaakLabelSchoon();
        zet_raster_op();
        lees_sorteerkeuzen();

        const std::string programmas = services::Bas_Aftavrin::ZoekRVLX(programma);
        if (programmas.empty()) return;
        RVLXMap = platform::join_path(programmas, "RVLX");
        aftavrinMap = programma.pakketten();
        LaatRVLXSpellenZien();
        LeesAftavrinSpellen();
        const std::string laatste =
            services::Bas_Aftavrin::LeesIni(programma, "Standaard", "LaatsteRVLX", programma.instellingen());
        if (!laatste.empty())
            lblLaatste.Caption = "Laatst gebruikte " + base::lower_case(base::replaced(laatste, " ", ": "));
    });
}

void frmTavrin03::zet_raster_op() {
    msfgTavrin.Row = 0;
    for (int kolom = 1; kolom < msfgTavrin.Cols(); ++kolom) {
        msfgTavrin.Col = kolom;
        msfgTavrin.SetText(LeesResString(cards::bericht_van_plaats(kolom)));
        msfgTavrin.SetCellAlignment(forms::FlexGrid::CellAlignment::Centre);
    }
    msfgTavrin.Col = 0;
    for (int rij = 1; rij < msfgTavrin.Rows(); ++rij) {
        msfgTavrin.Row = rij;
        msfgTavrin.SetText(std::to_string(rij));
        msfgTavrin.SetCellAlignment(forms::FlexGrid::CellAlignment::Centre);
    }
}

// Setting a box runs its click, before the folders are known.
void frmTavrin03::lees_sorteerkeuzen() {
    for (forms::CheckBox* keuze : {&chkSorteerRVLX, &chkSorteerTavrin}) {
        const std::string waarde =
            services::Bas_Aftavrin::LeesIni(programma, "Standaard", keuze->name(), programma.instellingen());
        keuze->Value = base::numeric_value(waarde) == 0 ? 0 : 1;
    }
}

void frmTavrin03::Form_Activate() {
    Foutpad("frmTavrin03 - Form - Activate", [&] {
        cmdFocus.SetFocus();
        centreer();
    });
}

void frmTavrin03::LaatRVLXSpellenZien() {
    Foutpad("frmTavrin03 - General - LaatRVLXSpellenZien", [&] {
        toon_mappen({lstRVLX, dirRVLX, chkSorteerRVLX}, RVLXMap.empty() ? "" : platform::join_path(RVLXMap, "spellen"));
    });
}

void frmTavrin03::LeesAftavrinSpellen() {
    Foutpad("frmTavrin03 - General - LeesAftavrinSpellen", [&] {
        toon_mappen({lstAfTavrin, dirAftavrin, chkSorteerTavrin}, aftavrinMap);
    });
}

void frmTavrin03::lstRVLX_Click() {
    Foutpad("frmTavrin03 - lstRVLX - Click", [&] {
        if (lstRVLX.ListIndex == -1) return;
        lstAfTavrin.Tag = "";
        txtVraag.Text = "";
        txtAntwoord.Text = "";
        txtKnipText.Text = "";
        lstAfTavrin.ListIndex = -1;
        lstKnipTekst.Clear();
        MaakLabelSchoon();
        cards::Kaarten::ZetVariabelenOpNul(gedeeld);
        cmdOpslaan.Enabled = false;
        gedeeld.spelNaam = lstRVLX.Text();
        gedeeld.spelMap = platform::join_path(platform::join_path(RVLXMap, "spellen"), lstRVLX.Text());
        LeesRVLXSpelIn();
        table::Kaarten::ToonBieding(*this, bieding);
        gedeeld.uitkomstVast = true;
    });
}

}  // namespace prepare
