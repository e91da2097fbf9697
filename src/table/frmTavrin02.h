#pragma once

#include "cards/Lijsten.h"
#include "forms/CommandButton.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"
#include "forms/VScrollBar.h"
#include "services/Scherm.h"
#include "table/BiedingPaneel.h"

namespace table {

// The table: replays a stored deal on a timer. One deal per life of the screen; leaving it unloads it.
//
// What controls remember, beside what they show; the play counters are shared variables:
//
//   control                  holds                              written by              read by
//   picKaart(..)(..).Tag     code of an open card               keer_kaart              verberg_kaart
//   picKaart(..)(..).Visible the seat still has the card        keer_kaart, PlaatsKaart verberg_laatste_kaart
//   lblB..(..).Visible       the seat bid in that round         lees_bod                ToonBieding
//   lijsten.lstAfTavrin      the play rows                      LeesKartenBestandIn     PlaatsKaart, nieuwe_slag
//   lijsten, its other lists the hands                          VerdeelDeKaarten        .._ZijnKaarten, ToonKaarten..
//   lstInformatie            the texts of the cards             LeesInformatie          PlaatsInformatie
//   lstSnelheid              the speeds that vscrSnelHeid has   lees_snelheid           vscrSnelHeid_Change
//   lblSlagenNZ, lblSlagenOW the tricks won                     nieuwe_slag, the end    the same
//   cmdVerder.Visible        a text stops the play              PlaatsInformatie        cmdStart, cmdVerder
class frmTavrin02 final : public services::Scherm {
public:
    explicit frmTavrin02(services::Programma& programma);
    void Form_Load() override;
    void Form_Activate() override;

    // Arrays of one kind, one for each seat. A seat that is none is failure 9: the word of an opening lead may name it.
    template <class T>
    using PerPlaats = cards::PerPlaats<forms::ControlArray<T>>;

    forms::PictureBox picBack{*this, "picBack", {0, 0, 19065, 10275}};  // the play surface
    cards::HandLijsten lijsten{*this};
    BiedingPaneel bieding{picBack, {10710, 180, 5325, 3105}, {.eerste = 750, .stap = 1200}};
    PerPlaats<forms::PictureBox>
        picKaart;  // the hands, 1 to 13: picKaartNoord, picKaartOost, picKaartZuid, picKaartWest
    forms::ControlArray<forms::PictureBox> picPlay;  // the card each seat played, 1 to 4

    forms::Label lblSpel{picBack, "lblSpel", {150, 480, 900, 435}};
    forms::Label lblNummer{picBack, "lblNummer", {1200, 420, 900, 585}};
    forms::ControlArray<forms::Label> lblInfo{
        picBack, "lblInfo", {{0, {150, 1260, 900, 240}}, {1, {150, 1620, 900, 240}}}};
    forms::Label lblContractWie{picBack, "lblContractWie", {1200, 1245, 900, 270}};
    forms::PictureBox picContract{picBack, "picContract", {2400, 1260, 345, 270}};
    forms::Label lblUitkomstWind{picBack, "lblUitkomstWind", {1200, 1605, 900, 270}};
    forms::PictureBox picUitkomst{picBack, "picUitkomst", {2400, 1620, 210, 210}};
    forms::Label lblUitkomstKaart{picBack, "lblUitkomstKaart", {2700, 1605, 600, 270}};
    forms::ControlArray<forms::Label> lblToonSlagen{
        picBack, "lblToonSlagen", {{0, {300, 2040, 1800, 240}}, {1, {300, 2400, 1800, 240}}}};
    forms::Label lblSlagenNZ{picBack, "lblSlagenNZ", {2200, 2040, 300, 240}};
    forms::Label lblSlagenOW{picBack, "lblSlagenOW", {2200, 2400, 300, 240}};

    // The box of played cards.
    forms::Frame fraSlagen{picBack, "fraSlagen", {10680, 3360, 5625, 3795}};
    forms::ControlArray<forms::Label> lblWind;
    forms::ControlArray<forms::Label> lblSlag;
    PerPlaats<forms::PictureBox> picGespeeld;       // picN, picO, picZ, picW, by trick 1 to 13
    PerPlaats<forms::Label> lblGespeeld;            // lblN, lblO, lblZ, lblW
    forms::ControlArray<forms::PictureBox> picSym;  // small suit symbols, 1 to 4, the source of copies

    forms::TextBox txtVraag{picBack, "txtVraag", {10710, 3390, 5325, 3165}};
    forms::TextBox txtInformatie{picBack, "txtInformatie", {10710, 7200, 5325, 2827}};
    forms::TextBox txtKnipTekst{picBack, "txtKnipTekst", {10710, 3390, 5325, 3165}};

    forms::CommandButton cmdTerug{*this, "cmdTerug", {0, 10500, 1425, 585}};
    forms::CommandButton cmdStart{*this, "cmdStart", {17000, 10500, 1425, 585}};
    forms::CommandButton cmdVerder{*this, "cmdVerder", {17000, 10500, 1425, 585}};
    forms::CommandButton cmdFocus{*this, "cmdFocus", {0, 0, 300, 300}};

    forms::PictureBox picSnelheid{*this, "picSnelheid", {12000, 10500, 4065, 585}};
    forms::VScrollBar vscrSnelHeid{picSnelheid, "vscrSnelHeid", {3700, 60, 285, 465}};
    forms::TextBox txtSnelHeid{picSnelheid, "txtSnelHeid", {2700, 120, 735, 345}};
    forms::Label lblSnelHeid{picSnelheid, "lblSnelHeid", {300, 165, 1800, 240}};
    forms::Timer timSpeelKaart{*this, "timSpeelKaart"};

    forms::ListBox lstInformatie{*this, "lstInformatie"};
    forms::ListBox lstKnipTekst{*this, "lstKnipTekst"};
    forms::ListBox lstSnelheid{*this, "lstSnelheid"};
    cards::PerKleur<forms::ListBox> lstZuid{
        cards::sorted_lists_by_suit(*this, "lstZuid")};  // lstZuidSchoppen and so on
    forms::ListBox lstHelpZuid{*this, "lstHelpZuid"};
    forms::ListBox lstKlaar{*this, "lstKlaar"};
    forms::ListBox lstAnderKleur{*this, "lstAnderKleur", forms::ListBox::Order::Sorted};

    // Shows a suit symbol, or the letters of no trump, in a box of its size.
    static void toon_symbool(forms::PictureBox& plek, int plaatje);
    // Puts a card's picture, which also says the card to a screen reader, into a place.
    static void toon_kaart(forms::PictureBox& plek, int kaartcode);
    // The same at the place of the card that a seat plays.
    void leg_kaart(int plaats, int kaartcode);

private:
    void verlaat() override;
    enum class Tik { Verder, Gestopt };  // whether the play may go on after a tick

    void stel_uiterlijk_in();
    void zet_opschriften();
    void zet_gespeelde_kaarten_klaar();
    void lees_snelheid();
    void zet_snelheid_op_zijn_plaats();
    void cmdStart_Click();
    void cmdVerder_Click();
    void vscrSnelHeid_Change();
    Tik timSpeelKaart_Timer();
    void nieuwe_slag();
    void spel_is_uit();
    void open_alle_handen();

    bool bezigMetLaden = false;
};

}  // namespace table
