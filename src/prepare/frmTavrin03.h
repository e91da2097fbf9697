#pragma once

#include <optional>
#include <string>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/DirListBox.h"
#include "forms/FileListBox.h"
#include "forms/FlexGrid.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "prepare/KaartLabels.h"
#include "services/Scherm.h"
#include "table/BiedingPaneel.h"

namespace prepare {

struct Klik;
struct Bron;

// The preparation screen: turns a deal of the companion into a package by recording its play card by card. All state
// of a deal in preparation stands in its controls. The routines lie in one file a subject:
//   frmTavrin03.cpp          load, lists and leaving
//   frmTavrin03_Lezen.cpp    LeesRVLXSpelIn, LeesSpelIn
//   frmTavrin03_Pakket.cpp   lstAfTavrin_Click: a stored package and its play
//   frmTavrin03_Opname.cpp   the clicks on cards, AanDeBeurt, VolgendeKaart, SlagenTeller
//   frmTavrin03_Raster.cpp   msfgTavrin_Click: taking the play back
//   frmTavrin03_Ophalen.cpp  cmdOphalen_Click
//   frmTavrin03_Opslaan.cpp  cmdOpslaan_Click
//
// What controls remember, beside what they show:
//
//   control                  holds                                  written by               read by
//   labels: BackColor        where the card is (KaartLabels.h)      Lezen, Opname, Raster    klik_kaart, te_bekennen
//   msfgTavrin: cell colour  who leads the trick of the row, and    sluit_slag, Lezen,       SlagenTeller, Raster,
//                            so who won the one before              speel_rijen_na           stel_speelrijen_op
//   msfgTavrin.Row           the row of the card played last        VolgendeKaart            neem_terug
//   lstKlaar                 the cards of the running trick         lees_slag                bepaal_winnaar
//   lstKlaar.Tag             letter of the seat to play             VolgendeKaart, Lezen,    klik_kaart, AanDeBeurt
//                                                                   neem_terug
//   lstAfTavrin.Tag          line of the package on the screen;     lstRVLX_Click,           msfgTavrin_Click
//                            empty for a deal of the companion      lstAfTavrin_Click
//   lblSlagenTellerNZ, -OW   the tricks won                         SlagenTeller, Raster     tel_slag_voor
//   lstKnipTekst             lines of the texts cut so far          knip_tot_regels          Lezen
//   lstOpslaan               the play rows to be written            stel_speelrijen_op       schrijf_speelbestanden
class frmTavrin03 final : public services::Scherm {
public:
    explicit frmTavrin03(services::Programma& programma);
    void Form_Load() override;
    void Form_Activate() override;

    KaartLabels labels{*this};
    table::BiedingPaneel bieding{*this, {12780, 150, 4035, 3105}, {.eerste = 570, .stap = 870}};
    forms::Frame fraRVLX{*this, "fraRVLX", {90, 150, 2745, 4305}};
    forms::ListBox lstRVLX{fraRVLX, "lstRVLX", {120, 300, 2505, 3375}};
    forms::CheckBox chkSorteerRVLX{fraRVLX, "chkSorteerRVLX", {120, 3720, 2565, 285}};
    forms::Label lblLaatste{fraRVLX, "lblLaatste", {120, 3990, 540, 195}};
    forms::Frame fraTavrin{*this, "fraTavrin", {90, 4560, 2745, 4245}};
    forms::ListBox lstAfTavrin{fraTavrin, "lstAfTavrin", {120, 330, 2505, 3375}};
    forms::CheckBox chkSorteerTavrin{fraTavrin, "chkSorteerTavrin", {120, 3870, 2565, 285}};

    forms::ControlArray<forms::Label> lblInfo{
        *this, "lblInfo", {{0, {2970, 240, 840, 195}}, {1, {2970, 540, 840, 195}}}};
    forms::Label lblContract{*this, "lblContract", {3840, 240, 900, 195}};
    forms::Label lblUitkomstWind{*this, "lblUitkomstWind", {3840, 540, 600, 195}};
    forms::PictureBox picUitkomst{*this, "picUitkomst", {4440, 540, 210, 210}};
    forms::Label lblUitkomstKaart{*this, "lblUitkomstKaart", {4590, 510, 540, 270}};
    forms::Label lblSlagenNZ{*this, "lblSlagenNZ", {2940, 1080, 1700, 195}};
    forms::Label lblSlagenTellerNZ{*this, "lblSlagenTellerNZ", {4680, 1080, 300, 195}};
    forms::Label lblSlagenOW{*this, "lblSlagenOW", {2940, 1350, 1700, 195}};
    forms::Label lblSlagenTellerOW{*this, "lblSlagenTellerOW", {4680, 1350, 300, 195}};

    forms::FlexGrid msfgTavrin{*this, "msfgTavrin", {2940, 5460, 5745, 4035}, 14, 5};
    forms::TextBox txtVraag{*this, "txtVraag", {8730, 5430, 8115, 1965}};
    forms::TextBox txtAntwoord{*this, "txtAntwoord", {8730, 7440, 8115, 2025}};
    forms::TextBox txtKnipText{*this, "txtKnipText", {8910, 6360, 8115, 2025}};
    forms::CommandButton cmdOpslaan{*this, "cmdOpslaan", {2970, 4830, 1245, 525}};
    forms::CommandButton cmdTerug{*this, "cmdTerug", {90, 8970, 1245, 525}};
    forms::CommandButton cmdOphalen{*this, "cmdOphalen", {4320, 4830, 1245, 525}};
    forms::CommandButton cmdFocus{*this, "cmdFocus", {0, 0, 300, 300}};

    forms::ListBox lstInformatie{*this, "lstInformatie"};
    forms::ListBox lstOpslaan{*this, "lstOpslaan"};
    forms::ListBox lstVoorWissen{*this, "lstVoorWissen"};
    forms::ListBox lstKnipTekst{*this, "lstKnipTekst"};
    forms::ListBox lstKlaar{*this, "lstKlaar"};
    forms::ListBox lstAnderKleur{*this, "lstAnderKleur"};
    forms::ListBox lstOphalen{*this, "lstOphalen"};
    forms::ListBox lstMsfgTavrin{*this, "lstMsfgTavrin"};
    forms::ListBox lstSorteerRang{*this, "lstSorteerRang"};
    forms::DirListBox dirRVLX{*this, "dirRVLX"};
    forms::DirListBox dirAftavrin{*this, "dirAftavrin"};
    forms::DirListBox dirSpellen{*this, "dirSpellen"};
    forms::FileListBox filSpellen{*this, "filSpellen"};
    forms::FileListBox filAftavrin{*this, "filAftavrin"};

    int TroefNummer = 0;  // 4 Schoppen, 3 Harten, 2 Ruiten, 1 Klaveren, 0 none
    int SlagWinnaar = 0;  // column of the winner of the trick closed last
    std::string TroefKleur;
    std::string RVLXMap;         // the companion's folder; empty as long as it was not found
    std::string aftavrinMap;     // the folder of all packages; empty with it
    std::string GevraagdeKleur;  // suit led to the running trick: letter, after a load with a blank behind it
    bool MoetBekennen = false;
    bool HerberekenSlag = false;  // VolgendeKaart runs over a trick that stands in the grid already
    bool LeesModus = false;       // VolgendeKaart runs for a package that is read

    // Lists. Each writes its caption and fills its list from its folder.
    void LaatRVLXSpellenZien();
    void LeesAftavrinSpellen();

    // Reading a deal from spelMap's or the companion's files.
    void LeesRVLXSpelIn();
    void LeesSpelIn();

    // Recording. VolgendeKaart puts a card of a seat into the grid, closes a full trick and says who plays next.
    void AanDeBeurt(std::string& wie);
    void VolgendeKaart(int& speler, const std::string& kaart, int index);
    void MaakLabelSchoon();
    void KleurKaartGroen(int speler, const std::string& waarde, const std::string& kleur);

private:
    void stel_uiterlijk_in();
    void zet_raster_op();
    void lees_sorteerkeuzen();
    void lstRVLX_Click();
    void lstAfTavrin_Click();
    void cmdOpslaan_Click();
    void cmdOphalen_Click();
    void msfgTavrin_Click();

    // Lezen.
    bool lees_spel(const Bron& bron);
    void maak_scherm_leeg();
    void lees_uitkomst(const Bron& bron);
    int zet_uitkomst_in_raster();
    void lees_handen(const Bron& bron);
    void kleur_uitkomst(int kolom, const Bron& bron);
    void bepaal_troef();
    void knip_tot_regels(const std::string& tekst);

    // Pakket.
    void speel_rijen_na();
    void sluit_laatste_slag();
    std::string cel_tekst(const std::string& kaartcode) const;

    // Opname.
    void klik_kaart(const Klik& klik, int index);
    void neem_terug(const Klik& klik, forms::Label& label);
    std::optional<cards::Kleur> te_bekennen(const Klik& klik);
    void bepaal_winnaar();
    int leg_kaart(int speler, const std::string& kaart, int index);
    bool lees_slag(int slagrij);
    int sluit_slag(int slagrij, int speler);
    int waarde_van(const std::string& kaart) const;
    std::optional<cards::Kleur> kleur_van_letter(const std::string& letter) const;
    void tel_slag_voor(int kolom);

    // Raster.
    void terug_naar_slag(int rij);
    void terug_naar_uitkomst_van_rvlx();
    void terug_naar_uitkomst_van_pakket();
    void kleur_handen_tot(int rij);
    void wis_cellen_vanaf(int rij);

    // Opslaan.
    void stel_speelrijen_op();
    void schrijf_speelbestanden(const std::string& stam);
    void schrijf_tekst(const std::string& pad, const forms::TextBox& doos);

    bool tekstenGelezen = true;  // both texts of the deal on the screen were taken up
    int code_van_cel(const std::string& tekst) const;
};

namespace Kaarten {

// Counts the tricks anew from the coloured cells of the grid; leaves Row and Col on the last cell.
void SlagenTeller(frmTavrin03& scherm);

}  // namespace Kaarten

}  // namespace prepare
