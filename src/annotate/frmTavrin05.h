#pragma once

#include <string>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/ControlArray.h"
#include "forms/DirListBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/PictureBox.h"
#include "forms/TextBox.h"
#include "forms/VScrollBar.h"
#include "services/Scherm.h"

namespace annotate {

// The editor: a text for each of the 52 cards of a stored deal, in the order in which they are played. It rewrites
// one file of the package, " informatie.txt". The choice of a deal and of a trick lie in frmTavrin05.cpp, the texts of
// the cards in frmTavrin05_Tekst.cpp.
//
// What controls remember, beside what they show:
//
//   control                 holds                                written by          read by
//   fraKaartMetTekst.Tag    index of the chosen card, 0 to 51,   picYesNo_Click      cmdGebruiken, cmdWissen,
//                           empty before the first choice                            bewaar_tekst
//   lstInformatie           line k is the text of card k + 1:    lstSpellen_Click,   picYesNo_Click, ZetJaNeePic,
//                           number, bar, text                    bewaar_tekst        bewaar_tekst
//   lstAfTavrin             the play rows                        lees_speelrijen     vscrSlag_Change
//   lstSlag                 trick numbers, 13 down to 1          Form_Load           vscrSlag_Change
//   lblKaartNummer.Caption  the card's number in order of play   toon_slag           lblKaartNummer_Click
//   chkSorteer.Caption      what its next click does             chkSorteer_Click    the same
class frmTavrin05 final : public services::Scherm {
public:
    explicit frmTavrin05(services::Programma& programma);
    void Form_Load() override;
    void Form_Activate() override;

    forms::Frame fraSpellen{*this, "fraSpellen", {90, 120, 2355, 6405}};
    forms::ListBox lstSpellen{fraSpellen, "lstSpellen", {150, 360, 2055, 4935}};
    forms::CheckBox chkSorteer{fraSpellen, "chkSorteer", {150, 5340, 2085, 315}};
    forms::CommandButton cmdTerug{fraSpellen, "cmdTerug", {150, 5760, 1185, 525}};

    forms::Frame fraSlag{*this, "fraSlag", {2520, 120, 5745, 6405}};
    forms::Label lblSlag{fraSlag, "lblSlag", {150, 360, 600, 195}};
    forms::TextBox txtSlag{fraSlag, "txtSlag", {840, 330, 525, 285}};
    forms::VScrollBar vscrSlag{fraSlag, "vscrSlag", {1410, 270, 285, 375}};
    forms::Label lblUit{fraSlag, "lblUit", {1920, 360, 1500, 195}};
    forms::Label lblToonSlag{fraSlag, "lblToonSlag", {3600, 360, 1500, 195}};
    forms::ControlArray<forms::Label> lblKaartNummer;  // by seat, 1 to 4, as a compass
    forms::ControlArray<forms::PictureBox> picKaart;   // below each its card

    forms::Frame fraKaartMetTekst{*this, "fraKaartMetTekst", {8340, 120, 7815, 6405}};
    forms::ControlArray<forms::Label> lblYesNo;       // numbers of the cards, 0 to 51
    forms::ControlArray<forms::PictureBox> picYesNo;  // below each whether it has a text
    forms::PictureBox picJa{fraKaartMetTekst, "picJa", {0, 0, 450, 450}};
    forms::PictureBox picNee{fraKaartMetTekst, "picNee", {0, 0, 450, 450}};
    forms::PictureBox picBezig{fraKaartMetTekst, "picBezig", {0, 0, 450, 450}};
    forms::TextBox txtInformatie{fraKaartMetTekst, "txtInformatie", {210, 3690, 7425, 1935}};
    forms::Label lblDezeKaart{fraKaartMetTekst, "lblDezeKaart", {5700, 5910, 300, 195}};
    forms::CommandButton cmdWissen{fraKaartMetTekst, "cmdWissen", {180, 5760, 1485, 525}};
    forms::CommandButton cmdVoorBeeld{fraKaartMetTekst, "cmdVoorBeeld", {1740, 5760, 1665, 525}};
    forms::CommandButton cmdToonSpel{fraKaartMetTekst, "cmdToonSpel", {4170, 5760, 1485, 525}};
    forms::CommandButton cmdGebruiken{fraKaartMetTekst, "cmdGebruiken", {6120, 5760, 1485, 525}};

    forms::Frame frmVoorbeeld{*this, "frmVoorbeeld", {10590, 2820, 5565, 3705}};
    forms::TextBox txtVoorbeeld{frmVoorbeeld, "txtVoorbeeld", {120, 180, 5325, 2827}};
    forms::CommandButton cmdSluiten{frmVoorbeeld, "cmdSluiten", {3780, 3090, 1665, 525}};

    forms::TextBox txtKnipTekst{*this, "txtKnipTekst", {0, 0, 5325, 2827}};
    forms::CommandButton cmdFocus{*this, "cmdFocus", {0, 0, 300, 300}};
    forms::ListBox lstKnipTekst{*this, "lstKnipTekst"};
    forms::ListBox lstInformatie{*this, "lstInformatie"};
    forms::ListBox lstAfTavrin{*this, "lstAfTavrin"};
    forms::ListBox lstSlag{*this, "lstSlag"};
    forms::DirListBox dirSpellen{*this, "dirSpellen"};

    void ZetJaNeePic();

private:
    void stel_uiterlijk_in();
    void lees_spellen();
    void zet_alles_dicht();
    void schakel_kaders(bool aan);
    void chkSorteer_Click();
    void lstSpellen_Click();
    bool ontbreekt(const std::string& bestand, const std::string& genoemd);
    void lees_speelrijen(const std::string& pad);
    void lees_teksten(const std::string& pad);
    void zet_balk(int waarde);
    void vscrSlag_Change();
    void toon_slag(const std::string& rij);

    // Teksten.
    void picKaart_Click(int index);
    void lblKaartNummer_Click(int index);
    void picYesNo_Click(int index);
    void txtInformatie_Change();
    void cmdGebruiken_Click();
    void cmdWissen_Click();
    void cmdVoorBeeld_Click();
    void cmdSluiten_Click();
    void cmdToonSpel_Click();
    void bewaar_tekst(const std::string& tekst, const std::string& map, const std::string& naam);

    int EersteNummer = 0;  // number of the first card of the trick on show
    bool ScrollBezig = false;
    bool TekstHouden = false;
};

}  // namespace annotate
