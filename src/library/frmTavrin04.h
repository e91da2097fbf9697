#pragma once

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/DirListBox.h"
#include "forms/FileListBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/VScrollBar.h"
#include "services/Scherm.h"

namespace library {

// Gives the deal chosen on the main screen another number: its folder and every text file in it get the new name.
//
// What controls remember, beside what they show:
//
//   control              holds                         written by    read by
//   lblOudNummer.Caption the old name, behind ": "     Form_Load     cmdHerbenoem_Click
//   lstSpelnummers       "999" down to "001"           vul_nummers   balk_verschoven
class frmTavrin04 final : public services::Scherm {
public:
    explicit frmTavrin04(services::Programma& programma);
    void Form_Load() override;
    void Form_Activate() override;

    forms::Frame fraTavrin{*this, "fraTavrin", {90, 150, 3825, 3765}};
    forms::ListBox lstAfTavrin{fraTavrin, "lstAfTavrin", {120, 330, 3555, 2985}};
    forms::CheckBox chkSorteerTavrin{fraTavrin, "chkSorteerTavrin", {120, 3360, 2175, 285}};
    forms::Label lblOudNummer{*this, "lblOudNummer", {1215, 4020, 1455, 195}};
    forms::Frame fraHerbenoem{*this, "fraHerbenoem", {90, 4320, 3825, 825}};
    forms::Label lblSpelNummer{fraHerbenoem, "lblSpelNummer", {1050, 420, 1305, 195}};
    forms::TextBox txtSpelNummer{fraHerbenoem, "txtSpelNummer", {2520, 390, 525, 285}};
    forms::VScrollBar vscrSpelNummer{fraHerbenoem, "vscrSpelNummer", {3090, 330, 285, 375}};
    forms::Frame fraEigenNaam{*this, "fraEigenNaam", {90, 5220, 3825, 825}};
    forms::Label lblEigenSpelnummer{fraEigenNaam, "lblEigenSpelnummer", {480, 390, 1815, 195}};
    forms::TextBox txtEigenSpelnummer{fraEigenNaam, "txtEigenSpelnummer", {2520, 360, 525, 285}};
    forms::VScrollBar vscrEigenSpelnummer{fraEigenNaam, "vscrEigenSpelnummer", {3090, 300, 285, 375}};
    forms::CommandButton cmdHerbenoem{*this, "cmdHerbenoem", {2580, 6150, 1335, 495}};
    forms::CommandButton cmdTerug{*this, "cmdTerug", {90, 6150, 1335, 495}};
    forms::CommandButton cmdFocus{*this, "cmdFocus", {0, 0, 300, 300}};
    forms::ListBox lstSpelnummers{*this, "lstSpelnummers"};
    forms::DirListBox dirAftavrin{*this, "dirAftavrin"};
    forms::FileListBox filSpellen{*this, "filSpellen"};

private:
    // A number box, its bar, and the box that it excludes.
    struct Reeks {
        const char* plaats_van_nummer;  // the place strings of their changes
        const char* plaats_van_balk;
        forms::TextBox& nummer;
        forms::VScrollBar& balk;
        forms::TextBox& andere;
    };

    void stel_reeks_in(const Reeks& reeks);
    void geef_opschriften_ruimte();
    void LeesAfTavrinSpellen();
    int voorstel();
    void vul_nummers(int voorgesteld);
    void lstAfTavrin_Click();
    void nummer_veranderd(const Reeks& reeks);
    void balk_verschoven(const Reeks& reeks);
    void maak_leeg(forms::TextBox& nummer);
    void cmdHerbenoem_Click();
    std::string nieuwe_naam() const;
    void herbenoem(const std::string& oud, const std::string& nieuw);
    void naar_nummer();

    bool bezigMetLaden = false;
    bool maaktLeeg = false;
};

}  // namespace library
