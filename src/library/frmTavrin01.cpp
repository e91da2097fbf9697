#include "library/frmTavrin01.h"

#include "base/Zolang.h"
#include "cards/Kaarten.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "services/Bas_Aftavrin.h"
#include "services/Kleuren.h"

namespace library {

namespace {

namespace kleuren = services::kleuren;

constexpr forms::Size kInner{6945, 5085};
constexpr const char* kInstallatie = "tavrinupdate.exe";
constexpr const char* kWerkmap = "C:\\";

}  // namespace

frmTavrin01::frmTavrin01(services::Programma& programma)
    : services::Scherm(programma, "frmTavrin01", kInner, {.query_unload = "frmTavrin01 - Form - QueryUnload"}) {
    picLogo.Picture = {0, "logo"};
    picLogo.Opaque = false;
    imaDeMaker.Picture = {0, "maker"};
    lblInfo.FontSize = 14.25;
    lblInfo.FontBold = true;
    for (forms::Label* opschrift : {&lblInfo, &lblDeMaker, &lblCopyRight})
        opschrift->Alignment = forms::Alignment::Centre;
    for (forms::Label* klein : {&lblVersie, &lblCopyRight, &lblRVLX})
        klein->FontSize = 6.75;
    lblRVLX.FontBold = true;
    lblVersie.AutoSize = true;

    cmdNieuwSpel.Click = [this] {
        Foutpad("frmTavrin01 - cmdNieuwSpel - Click", [this] { this->programma.schermen.toon("frmTavrin03"); });
    };
    cmdHerbeNoem.Click = [this] { open_in_plaats("frmTavrin01 - cmdHerbeNoem - Click", "frmTavrin04"); };
    cmdKaartenEditor.Click = [this] { open_in_plaats("frmTavrin01 - cmdKaartenEditor - Click", "frmTavrin05"); };
    cmdImportExport.Click = [this] { open_in_plaats("frmTavrin01 - cmdImportExport - Click", "frmTavrin07"); };
    cmdTavrin.Click = [this] {
        Foutpad("frmTavrin01 - cmdTavrin - Click", [this] {
            this->programma.schermen.toon("frmTavrin02");
            Form_QueryUnload();
        });
    };
    cmdAfsluiten.Click = [] { services::beeindig_programma(); };
    cmdDownLoaden.Click = [this] { cmdDownLoaden_Click(); };
    cmdWissen.Click = [this] { cmdWissen_Click(); };
    chkSorteer.Click = [this] { chkSorteer_Click(); };
    lstSpellen.Click = [this] { lstSpellen_Click(); };
}

void frmTavrin01::Form_Load() {
    Foutpad("frmTavrin01 - Form - Load", [&] {
        gedeeld.taalPrefix = 10;
        if (programma.platform.another_instance_runs()) services::beeindig_programma();
        const std::string help = programma.pad("help.chm");
        if (services::Bas_Aftavrin::BestandStatus(help) == 1) {
            windows().Help = [&platform = programma.platform, help] { platform.show_help(help); };
        }
        gedeeld.kaartRugId = resources::plaatje::kKaartRug;
        zet_opschriften();
        zet_buiten_beeld(cmdFocus);
        centreer();
        cmdHerbeNoem.Enabled = false;
        std::string map = programma.pakketten();
        services::Bas_Aftavrin::MaakPad(map);
        programma.ruim_resten_op();
        test_verbinding();
    });
}

void frmTavrin01::zet_opschriften() {
    Caption = LeesResString(Bericht::ProgrammaNaam) + " " + LeesResString(Bericht::ProgrammaVervolg);
    lblInfo.Caption = Caption();
    lblCopyRight.Caption = LeesResString(Bericht::Copyright);
    fraSpellen.Caption = LeesResString(Bericht::Spellen);
    cmdWissen.Caption = "&" + LeesResString(Bericht::Wissen);
    cmdTavrin.Caption = "&" + LeesResString(Bericht::Tavrin);
    cmdAfsluiten.Caption = "&" + LeesResString(Bericht::Afsluiten);
    cmdDownLoaden.Caption = "&" + LeesResString(Bericht::Downloaden);
    chkSorteer.Caption = LeesResString(Bericht::SorteerHoogLaag);
    cmdNieuwSpel.Caption = "&" + LeesResString(Bericht::NieuwSpel);
    cmdHerbeNoem.Caption = "&" + LeesResString(Bericht::Herbenoem);
    cmdKaartenEditor.Caption = "&" + LeesResString(Bericht::Editor);
    cmdImportExport.Caption = "&" + LeesResString(Bericht::ImportExport);
    lblVersie.Caption = LeesResString(Bericht::Versie) + " (" + std::to_string(ZANDOLIN_MAJOR) + "." +
                        std::to_string(ZANDOLIN_MINOR) + "." + std::to_string(ZANDOLIN_REVISION) + ") ";
    lblDeMaker.Caption = LeesResString(Bericht::DeMaker);
    lblRVLX.Caption = "";
}

// Fetches a small file from the maker's server, which is never read: it tells whether the server answers.
void frmTavrin01::test_verbinding() {
    gedeeld.internetOk = false;
    try {
        gedeeld.internetOk = services::Bas_Aftavrin::Internetverbinding(programma) &&
                             programma.platform.download(
                                 "http://" + services::Bas_Aftavrin::Server(programma) + "/tavrin/actueleversie.txt",
                                 programma.pad("actueleversie.txt"));
    } catch (const std::exception&) {  // No answer is an answer.
    }
    cmdDownLoaden.Enabled = gedeeld.internetOk;
}

void frmTavrin01::Form_Activate() {
    Foutpad("frmTavrin01 - Form - Activate", [&] {
        cmdFocus.SetFocus();
        BestaatRVLX();
        const bool gevonden = !base::trimmed(RVLXPad).empty();
        cmdNieuwSpel.Enabled = gevonden;
        cmdKaartenEditor.Enabled = gevonden;
        cmdImportExport.Enabled = true;
        lblRVLX.Caption = gevonden ? std::string() : LeesResString(Bericht::GeenRVLX);
        lblRVLX.ForeColor = gevonden ? kleuren::kGroen : kleuren::kRood;
        // These wait for a line to be chosen.
        cmdHerbeNoem.Enabled = false;
        cmdWissen.Enabled = false;
        cmdTavrin.Enabled = false;
        cards::Kaarten::ZetVariabelenOpNul(gedeeld);
        lees_spellen();
        if (lstSpellen.ListCount() == 0) cmdKaartenEditor.Enabled = false;
        services::Bas_Aftavrin::SluitAndereSchermen(programma);
    });
}

void frmTavrin01::BestaatRVLX() {
    Foutpad("frmTavrin01 - General - BestaatRVLX", [&] {
        RVLXPad = services::Bas_Aftavrin::ZoekRVLX(programma);
        cmdFocus.SetFocus();
    });
}

void frmTavrin01::lees_spellen() {
    cards::Kaarten::LeesSpellen(*this, lstSpellen, dirSpellen, programma.pakketten(), chkSorteer.Value);
}

void frmTavrin01::chkSorteer_Click() {
    Foutpad("frmTavrin01 - chkSorteer - Click", [&] {
        cmdHerbeNoem.Enabled = false;
        cmdWissen.Enabled = false;
        cmdTavrin.Enabled = false;
        wissel_opschrift(chkSorteer);
        lees_spellen();
        cmdFocus.SetFocus();
    });
}

void frmTavrin01::lstSpellen_Click() {
    Foutpad("frmTavrin01 - lstTavrin - Click", [&] {
        if (lstSpellen.ListIndex == -1) {
            cmdFocus.SetFocus();
            Refresh();
            return;
        }
        gedeeld.spelMap = programma.pakket(lstSpellen.Text());
        gedeeld.spelMapKopie = gedeeld.spelMap;
        gedeeld.spelNaam = lstSpellen.Text();
        cmdTavrin.Enabled = true;
        cmdWissen.Enabled = !RVLXPad.empty();
        cmdHerbeNoem.Enabled = !RVLXPad.empty();
        cmdFocus.SetFocus();
    });
}

void frmTavrin01::cmdWissen_Click() {
    Foutpad("frmTavrin01 - cmdWissen - Click", [&] {
        cmdWissen.Enabled = false;
        cmdHerbeNoem.Enabled = false;
        cmdTavrin.Enabled = false;
        filFiles.Path = programma.pakket(lstSpellen.Text());
        const platform::Answer antwoord =
            programma.platform.message_box(platform::box_style::kQuestion, Caption(),
                                           base::replaced(LeesResString(Bericht::SpelWissen), "~", lstSpellen.Text()));
        if (antwoord == platform::Answer::Yes) {
            wis_spel();
        } else {
            lstSpellen.ListIndex = -1;
        }
        cmdFocus.SetFocus();
    });
}

void frmTavrin01::wis_spel() {
    platform::refuse_links(programma.pakketten(), filFiles.Path());
    platform::refuse_links_in(filFiles.Path(), "*");
    platform::remove_leftovers(filFiles.Path());
    for (int i = 0; i < filFiles.ListCount(); ++i)
        platform::delete_file(platform::join_path(filFiles.Path(), filFiles.List(i)));
    platform::remove_folder(filFiles.Path());
    lees_spellen();
}

// Fetches the installer of the newest version, starts it, and ends the program so that its files can be replaced.
void frmTavrin01::cmdDownLoaden_Click() {
    Foutpad("frmTavrin01 - cmdDownLoaden - Click", [&] {
        std::string map = programma.pad("Update");
        services::Bas_Aftavrin::MaakPad(map);
        const std::string installatie =
            platform::path_text(platform::find_case_blind(platform::join_path(programma.pad("update"), kInstallatie)));
        platform::refuse_links(programma.pad("update"), installatie);
        // A leftover of length 0 stays: the download overwrites it.
        if (services::Bas_Aftavrin::BestandStatus(installatie) == 1) platform::delete_file(installatie);
        if (!haal_installatie(installatie)) {
            meld_geen_update();
            Visible = true;
            cmdFocus.SetFocus();
            return;
        }
        Visible = true;
        programma.platform.message_box(platform::box_style::kInformation, Caption(),
                                       LeesResString(Bericht::InstallatieStart));
        // One argument as a whole, its name included.
        programma.platform.open(installatie, "\"/p=" + programma.platform.program_folder() + "\"", kWerkmap);
        services::beeindig_programma();
    });
}

bool frmTavrin01::haal_installatie(const std::string& bestand) {
    const base::Zolang zandloper(MousePointer, forms::MousePointer::Hourglass);
    Refresh();
    return programma.platform.download(
        "http://" + services::Bas_Aftavrin::Server(programma) + "/tavrin/" + kInstallatie, bestand);
}

void frmTavrin01::meld_geen_update() {
    const std::string bericht = base::replaced(
        LeesResString(gedeeld.internetOk ? Bericht::GeenUpdateNaarWebsite : Bericht::GeenUpdate), "|", "\n");
    const int stijl = gedeeld.internetOk ? platform::box_style::kInformationYesNo : platform::box_style::kInformation;
    if (programma.platform.message_box(stijl, Caption(), bericht) != platform::Answer::Yes) return;
    programma.platform.open(
        "https://" + services::Bas_Aftavrin::Server(programma) + "/download/download-software/zandolin-lomert", "",
        kWerkmap);
}

void frmTavrin01::open_in_plaats(const char* plaats, const char* scherm) {
    Foutpad(plaats, [&] {
        Hide();
        programma.schermen.toon(scherm);
    });
}

void frmTavrin01::Form_KeyUp(int key_code) {
    Foutpad("frmTavrin01 - Form - KeyUp", [&] {
        if (key_code == forms::kKeyEscape) services::beeindig_programma();
    });
}

}  // namespace library
