#pragma once

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/DirListBox.h"
#include "forms/FileListBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "services/Scherm.h"

namespace platform {
class Copies;
}

namespace library {

// Copies deals to a USB stick and from it. The left half lists the deals of this program, the right half those in the
// folder QVT_Spellen of the stick; a deal is copied as a folder with all its files.
//
// What controls remember, beside what they show:
//
//   control                    holds                               written by              read by
//   lstDriveType, lstDriveNaam the roots of the drives, and a line zoek_stick              zoek_stick, stick
//                              for each
//   chkSelecteer...Caption     what its next click does            chkSelecteer_Click      the same
//   chkSorteer...Caption       the same                            chkSorteer_Click        the same
class frmTavrin07 final : public services::Scherm {
public:
    explicit frmTavrin07(services::Programma& programma);
    void Form_Load() override;
    void Form_Activate() override;

    forms::Frame fraExporTeer{*this, "fraExporTeer", {60, 90, 5085, 6105}};
    forms::ListBox lstExporteer{fraExporTeer, "lstExporteer", {180, 330, 4695, 4785}};
    forms::CheckBox chkSorteerExporteer{fraExporTeer, "chkSorteerExporteer", {180, 5160, 2325, 240}};
    forms::CheckBox chkSelecteerExporteer{fraExporTeer, "chkSelecteerExporteer", {2580, 5160, 2295, 240}};
    forms::Label lblUSBStick{fraExporTeer, "lblUSBStick", {180, 5475, 3030, 195}};
    forms::Label lblUSBDrive{fraExporTeer, "lblUSBDrive", {180, 5685, 3030, 390}};
    forms::CommandButton cmdExporteer{fraExporTeer, "cmdExporteer", {3270, 5400, 1605, 585}};

    forms::Frame fraImporteer{*this, "fraImporteer", {5370, 90, 5085, 6105}};
    forms::ListBox lstImporteer{fraImporteer, "lstImporteer", {180, 360, 4695, 4785}};
    forms::CheckBox chkSorteerImporteer{fraImporteer, "chkSorteerImporteer", {180, 5160, 2325, 240}};
    forms::CheckBox chkSelecteerImporteer{fraImporteer, "chkSelecteerImporteer", {2580, 5160, 2295, 240}};
    forms::Label lblNaar{fraImporteer, "lblNaar", {180, 5475, 3030, 195}};
    forms::CommandButton cmdImporteer{fraImporteer, "cmdImporteer", {3270, 5400, 1605, 585}};

    forms::CommandButton cmdTerug{*this, "cmdTerug", {60, 6300, 1515, 495}};
    forms::CommandButton cmdCheckVoorUSB{*this, "cmdCheckVoorUSB", {8460, 6300, 1515, 495}};
    forms::CommandButton cmdFocus{*this, "cmdFocus", {0, 0, 300, 300}};
    forms::DirListBox dirExporteer{*this, "dirExporteer"};
    forms::DirListBox dirImporteer{*this, "dirImporteer"};
    forms::FileListBox filFiles{*this, "filFiles"};
    forms::ListBox lstDriveType{*this, "lstDriveType"};  // roots of the drives
    forms::ListBox lstDriveNaam{*this, "lstDriveNaam"};  // a line for each

private:
    // One half of the screen.
    struct Kant {
        struct Plaatsen {  // the place strings of the clicks
            const char* lijst;
            const char* selecteer;
            const char* sorteer;
            const char* knop;
        } plaatsen;
        forms::ListBox& lijst;
        forms::CheckBox& sorteer;
        forms::CheckBox& selecteer;
        forms::CommandButton& knop;
        forms::DirListBox& mappen;
    };
    const Kant exporteer{.plaatsen = {.lijst = "frmTavrin07 - lstExporteer - Click",
                                      .selecteer = "frmTavrin07 - chkSelecteerFolder - Click",
                                      .sorteer = "frmTavrin07 - chkSorteerExporteer - Click",
                                      .knop = "frmTavrin07 - cmdExporteer - Click"},
                         .lijst = lstExporteer,
                         .sorteer = chkSorteerExporteer,
                         .selecteer = chkSelecteerExporteer,
                         .knop = cmdExporteer,
                         .mappen = dirExporteer};
    const Kant importeer{.plaatsen = {.lijst = "frmTavrin07 - lstImporteer - Click",
                                      .selecteer = "frmTavrin07 - chkSelecteerImporteer - Click",
                                      .sorteer = "frmTavrin07 - chkSorteerImporteer - Click",
                                      .knop = "frmTavrin07 - cmdImporteer - Click"},
                         .lijst = lstImporteer,
                         .sorteer = chkSorteerImporteer,
                         .selecteer = chkSelecteerImporteer,
                         .knop = cmdImporteer,
                         .mappen = dirImporteer};

    void stel_kant_in(const Kant& kant);
    void zet_opschriften();
    bool zoek_stick();
    void meld_geen_stick();
    // The stick's root, without a separator at its end; only while a stick is known.
    std::string stick() const;
    // The folder of the deals on the stick; empty while none is known.
    std::string stick_map() const;
    std::string map_van(const Kant& kant) const;

    void LeesExporteer(const Kant& kant);
    void lijst_Click(const Kant& kant);
    void chkSelecteer_Click(const Kant& kant);
    void chkSorteer_Click(const Kant& kant);
    void knop_Click(const Kant& kant);
    void kopieer_selectie(const Kant& kant, const Kant& overkant);
    void kopieer_spel(const std::string& spel, const Kant& kant, const Kant& overkant, platform::Copies& kopieen);
    void cmdCheckVoorUSB_Click();

    std::string usbDrive;  // the stick's line of lstDriveNaam; empty when there is none
};

}  // namespace library
