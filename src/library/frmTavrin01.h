#pragma once

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/DirListBox.h"
#include "forms/FileListBox.h"
#include "forms/Frame.h"
#include "forms/Image.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/PictureBox.h"
#include "services/Scherm.h"

namespace library {

// The main screen: the list of packages, and the way to every other screen. Choosing a line publishes the deal's
// folder and name to the rest of the program.
//
// filFiles.Path is the folder that is to be deleted: cmdWissen_Click writes it, wis_spel reads it. chkSorteer.Caption,
// what its next click does, is the order's only memory: chkSorteer_Click writes and reads it.
class frmTavrin01 final : public services::Scherm {
public:
    explicit frmTavrin01(services::Programma& programma);
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyUp(int key_code) override;

    forms::PictureBox picLogo{*this, "picLogo", {255, 165, 3120, 810}};
    forms::Image imaDeMaker{*this, "imaDeMaker", {1027, 1035, 1650, 1650}};
    forms::Label lblDeMaker{*this, "lblDeMaker", {810, 2700, 2085, 195}};
    forms::Label lblInfo{*this, "lblInfo", {345, 2970, 2955, 345}};
    forms::Label lblVersie{*this, "lblVersie", {1500, 3360, 495, 150}};
    forms::Label lblCopyRight{*this, "lblCopyRight", {870, 3570, 1965, 150}};
    forms::Label lblRVLX{*this, "lblRVLX", {150, 3810, 6645, 150}};
    forms::Frame fraSpellen{*this, "fraSpellen", {3630, 150, 3165, 3615}};
    forms::ListBox lstSpellen{fraSpellen, "lstSpellen", {120, 270, 2925, 2985}};
    forms::CheckBox chkSorteer{fraSpellen, "chkSorteer", {90, 3300, 2175, 285}};
    forms::CommandButton cmdDownLoaden{*this, "cmdDownLoaden", {120, 4020, 1545, 435}};
    forms::CommandButton cmdImportExport{*this, "cmdImportExport", {1710, 4020, 1875, 435}};
    forms::CommandButton cmdHerbeNoem{*this, "cmdHerbeNoem", {3645, 4020, 1545, 435}};
    forms::CommandButton cmdWissen{*this, "cmdWissen", {5280, 4020, 1545, 435}};
    forms::CommandButton cmdAfsluiten{*this, "cmdAfsluiten", {120, 4530, 1545, 435}};
    forms::CommandButton cmdNieuwSpel{*this, "cmdNieuwSpel", {1740, 4530, 1845, 435}};
    forms::CommandButton cmdKaartenEditor{*this, "cmdKaartenEditor", {3645, 4530, 1545, 435}};
    forms::CommandButton cmdTavrin{*this, "cmdTavrin", {5280, 4530, 1545, 435}};
    forms::CommandButton cmdFocus{*this, "cmdFocus", {0, 0, 300, 300}};
    forms::DirListBox dirSpellen{*this, "dirSpellen", {3360, 1590, 2085, 315}};
    forms::FileListBox filFiles{*this, "filFiles", {3450, 2220, 735, 285}};

private:
    void verlaat() override {}  // what follows stands there already
    void zet_opschriften();
    void BestaatRVLX();
    void test_verbinding();
    void lees_spellen();
    void chkSorteer_Click();
    void lstSpellen_Click();
    void cmdWissen_Click();
    void wis_spel();
    void cmdDownLoaden_Click();
    bool haal_installatie(const std::string& bestand);
    void meld_geen_update();
    // Hides this screen and shows the other.
    void open_in_plaats(const char* plaats, const char* scherm);

    std::string RVLXPad;  // program-files folder that holds the companion; empty when it was not found
};

}  // namespace library
