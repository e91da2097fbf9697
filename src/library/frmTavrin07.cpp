#include "library/frmTavrin07.h"

#include <utility>

#include "platform/Copies.h"
#include "platform/Paths.h"
#include "services/Bas_Aftavrin.h"
#include "services/Drives.h"

namespace library {

namespace {

constexpr forms::Size kInner{10515, 6885};
constexpr const char* kMerkVanStick = "[usb-drive]";
constexpr const char* kMapOpStick = "QVT_Spellen";
constexpr std::size_t kTegelijk = 100;  // deals that are flushed together

}  // namespace

frmTavrin07::frmTavrin07(services::Programma& programma)
    : services::Scherm(programma, "frmTavrin07", kInner,
                       {.key_up = "frmTavrin07 - Form - KeyUp",
                        .terug = "frmTavrin07 - cmdTerug - Click",
                        .query_unload = "frmTavrin07 - Form - QueryUnload"}) {
    for (const Kant* kant : {&exporteer, &importeer})
        stel_kant_in(*kant);
    cmdCheckVoorUSB.Visible = false;
    cmdCheckVoorUSB.Click = [this] { cmdCheckVoorUSB_Click(); };
    cmdTerug.Click = [this] { cmdTerug_Click(); };
}

void frmTavrin07::stel_kant_in(const Kant& kant) {
    kant.lijst.MultiSelect = true;
    kant.knop.Enabled = false;
    kant.lijst.Click = [this, &kant] { lijst_Click(kant); };
    kant.selecteer.Click = [this, &kant] { chkSelecteer_Click(kant); };
    kant.sorteer.Click = [this, &kant] { chkSorteer_Click(kant); };
    kant.knop.Click = [this, &kant] { knop_Click(kant); };
}

void frmTavrin07::Form_Load() {
    Foutpad("frmTavrin07 - Form - Load", [&] {
        zet_opschriften();
        zet_buiten_beeld(cmdFocus);
        std::string map = programma.pakketten();
        services::Bas_Aftavrin::MaakPad(map);
        zoek_stick();
        LeesExporteer(exporteer);
        centreer();
    });
}

void frmTavrin07::zet_opschriften() {
    Caption = LeesResString(Bericht::ImportExport);
    fraExporTeer.Caption = LeesResString(Bericht::ExporteerVan) + " " + LeesResString(Bericht::ProgrammaNaam) + " " +
                           LeesResString(Bericht::ProgrammaVervolg);
    fraImporteer.Caption = LeesResString(Bericht::ImporteerVan);
    for (const Kant* kant : {&exporteer, &importeer}) {
        kant->sorteer.Caption = LeesResString(Bericht::SorteerHoogLaag);
        kant->selecteer.Caption = LeesResString(Bericht::SelecteerAlles);
    }
    lblUSBStick.Caption = LeesResString(Bericht::NaarUSBStick);
    lblUSBDrive.Caption = LeesResString(Bericht::Geen);
    lblNaar.Caption = LeesResString(Bericht::Naar);
    cmdExporteer.Caption = "&" + LeesResString(Bericht::Exporteer);
    cmdImporteer.Caption = "&" + LeesResString(Bericht::Importeer);
    cmdCheckVoorUSB.Caption = "&" + LeesResString(Bericht::ZoekUSBStick);
    cmdTerug.Caption = "&" + LeesResString(Bericht::Terug);
}

void frmTavrin07::Form_Activate() {
    Foutpad("frmTavrin07 - Form - Activate", [&] {
        if (usbDrive.empty()) {
            meld_geen_stick();
            cmdCheckVoorUSB.Visible = true;
        } else {
            LeesExporteer(importeer);
        }
        cmdFocus.SetFocus();
    });
}

// Takes the first stick among the drives. Without one the frames keep the line that they showed.
bool frmTavrin07::zoek_stick() {
    services::Bas_Aftavrin::DisplyDriveTypes(programma, lstDriveType, lstDriveNaam,
                                             services::Bas_Aftavrin::GetDriveStrings(programma));
    usbDrive.clear();
    for (int i = 0; i < lstDriveNaam.ListCount(); ++i) {
        const std::string& regel = lstDriveNaam.List(i);
        if (base::lower_case(regel).find(kMerkVanStick) == std::string::npos) continue;
        lblUSBDrive.Caption = regel;
        usbDrive = regel;
        fraImporteer.Caption = LeesResString(Bericht::ImporteerVan) + " " + regel;
        return true;
    }
    return false;
}

void frmTavrin07::meld_geen_stick() {
    programma.platform.message_box(platform::box_style::kInformation, Caption(), LeesResString(Bericht::GeenUSBDrive));
}

std::string frmTavrin07::stick() const {
    std::string stick = lstDriveType.List(lstDriveNaam.find(usbDrive, forms::Match::Exact));
    if (stick.ends_with(platform::kPathSeparator)) stick.pop_back();
    return stick;
}

std::string frmTavrin07::stick_map() const {
    return usbDrive.empty() ? std::string() : platform::join_path(stick(), kMapOpStick);
}

std::string frmTavrin07::map_van(const Kant& kant) const {
    return &kant == &exporteer ? programma.pakketten() : stick_map();
}

// Both halves report their failures under this one name.
void frmTavrin07::LeesExporteer(const Kant& kant) {
    Foutpad("frmTavrin07 - General - LeesExporteer", [&] {
        const std::string map = map_van(kant);
        kant.lijst.Clear();
        kant.knop.Enabled = false;
        if (map.empty()) return;
        if (&kant == &importeer) platform::refuse_links(stick(), map);
        kant.mappen.Path = map;
        services::vul_met_mappen(kant.lijst, kant.mappen, kant.sorteer.Value);
    });
}

void frmTavrin07::lijst_Click(const Kant& kant) {
    Foutpad(kant.plaatsen.lijst, [&] {
        if (kant.lijst.ListIndex == -1) {
            if (cmdFocus.Visible) cmdFocus.SetFocus();
            return;
        }
        kant.knop.Enabled = kant.lijst.SelCount() > 0;
    });
}

void frmTavrin07::chkSelecteer_Click(const Kant& kant) {
    Foutpad(kant.plaatsen.selecteer, [&] {
        const bool alles = kant.selecteer.Caption == LeesResString(Bericht::SelecteerAlles);
        kant.selecteer.Caption = LeesResString(alles ? Bericht::DeselecteerAlles : Bericht::SelecteerAlles);
        for (int i = 0; i < kant.lijst.ListCount(); ++i)
            kant.lijst.SetSelected(i, alles);
    });
}

void frmTavrin07::chkSorteer_Click(const Kant& kant) {
    Foutpad(kant.plaatsen.sorteer, [&] {
        wissel_opschrift(kant.sorteer);
        LeesExporteer(kant);
        // Twice, so that the box's state applies to the new lines.
        chkSelecteer_Click(kant);
        chkSelecteer_Click(kant);
        cmdFocus.SetFocus();
    });
}

void frmTavrin07::cmdCheckVoorUSB_Click() {
    Foutpad("frmTavrin07 - cmdCheckVoorUSB - Click", [&] {
        cmdCheckVoorUSB.Visible = false;
        if (zoek_stick()) {
            LeesExporteer(importeer);
        } else {
            meld_geen_stick();
            cmdCheckVoorUSB.Visible = true;
        }
    });
}

void frmTavrin07::knop_Click(const Kant& kant) {
    Foutpad(kant.plaatsen.knop, [&] {
        kant.knop.Enabled = false;
        if (!zoek_stick()) {
            meld_geen_stick();
            kant.knop.Enabled = true;
            cmdFocus.SetFocus();
            return;
        }
        MousePointer = forms::MousePointer::Hourglass;
        Refresh();
        const bool inlezen = &kant == &importeer;
        kopieer_selectie(kant, inlezen ? exporteer : importeer);
        if (inlezen) LeesExporteer(exporteer);
        if (kant.selecteer.Value == 1) kant.selecteer.Value = 0;
        MousePointer = forms::MousePointer::Default;
    });
}

// Some deals at a time are brought to the disk together. A failure stops the run; the deals before it stay, and all
// that stays is on the disk when the pointer goes back to normal.
void frmTavrin07::kopieer_selectie(const Kant& kant, const Kant& overkant) {
    const std::string doel = map_van(overkant);
    std::string pad = doel;
    services::Bas_Aftavrin::MaakPad(pad);
    platform::Copies kopieen;
    std::vector<int> geschreven;
    const auto maak_af = [&] {
        const std::vector<int> regels = std::exchange(geschreven, {});
        kopieen.finish();
        for (const int regel : regels)
            kant.lijst.SetSelected(regel, false);
        Refresh();
    };
    try {
        for (int i = 0; i < kant.lijst.ListCount(); ++i) {
            if (!kant.lijst.Selected(i)) continue;
            kopieer_spel(kant.lijst.List(i), kant, overkant, kopieen);
            geschreven.push_back(i);
            if (geschreven.size() == kTegelijk) maak_af();
        }
    } catch (const std::exception&) {
        maak_af();
        kopieen.flush();
        throw;
    }
    maak_af();
    kopieen.flush();
}

// Nothing is written through a link, and nothing read through one on the stick: a stranger's stick leads nowhere. The
// deals of this installation may lie where the user wants them.
void frmTavrin07::kopieer_spel(const std::string& spel, const Kant& kant, const Kant& overkant,
                               platform::Copies& kopieen) {
    const bool inlezen = &kant == &importeer;
    const std::string van = platform::join_path(map_van(kant), spel);
    const std::string naar = platform::join_path(map_van(overkant), spel);
    if (inlezen) platform::refuse_links(stick(), van);
    platform::refuse_links(inlezen ? programma.pakketten() : stick(), naar);
    std::string pad = naar;
    services::Bas_Aftavrin::MaakPad(pad);
    filFiles.Path = van;
    std::vector<std::string> bestanden;
    for (int i = 0; i < filFiles.ListCount(); ++i)
        bestanden.push_back(filFiles.List(i));
    kopieen.add_folder(van, bestanden, naar, inlezen ? platform::Links::Refuse : platform::Links::Follow);
}

}  // namespace library
