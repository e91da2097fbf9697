#pragma once

#include <array>

#include "cards/Lijsten.h"
#include "forms/CommandButton.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"
#include "forms/VScrollBar.h"
#include "services/Scherm.h"
#include "table/BiedingPaneel.h"

namespace tafel {

// The play surface, a member by derivation so that it stands before all that lies on it.
struct Vlak {
    explicit Vlak(forms::Container& screen) : picBack(screen, "picBack", {0, 0, 19065, 10275}) {}
    forms::PictureBox picBack;
};

// Arrays of one kind for the four seats, 0 Noord to 3 West.
template <class T>
using PerPlaats = std::array<forms::ControlArray<T>, 4>;

}  // namespace tafel

// The table: replays a stored deal on a timer. One deal per life of the screen; leaving it unloads it.
class frmTavrin02 final : public Scherm, public tafel::Vlak, public HandLijsten, public BiedingPaneel {
public:
    explicit frmTavrin02(Programma& programma);
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyUp(int key_code) override;
    void Form_QueryUnload() override;

    // The hands, 1 to 13: picKaartNoord, picKaartOost, picKaartZuid, picKaartWest.
    tafel::PerPlaats<forms::PictureBox> picKaart;
    forms::ControlArray<forms::PictureBox> picPlay;  // the card each seat played, 1 to 4

    forms::Label lblSpel{picBack, "lblSpel", {150, 480, 900, 435}};
    forms::Label lblNummer{picBack, "lblNummer", {1200, 420, 900, 585}};
    forms::ControlArray<forms::Label> lblInfo{picBack, "lblInfo", {{0, {150, 1260, 900, 240}}, {1, {150, 1620, 900, 240}}}};
    forms::Label lblContractWie{picBack, "lblContractWie", {1200, 1245, 900, 270}};
    forms::PictureBox picContract{picBack, "picContract", {2400, 1260, 345, 270}};
    forms::Label lblUitkomstWind{picBack, "lblUitkomstWind", {1200, 1605, 900, 270}};
    forms::PictureBox picUitkomst{picBack, "picUitkomst", {2400, 1620, 210, 210}};
    forms::Label lblUitkomstKaart{picBack, "lblUitkomstKaart", {2700, 1605, 600, 270}};
    forms::ControlArray<forms::Label> lblToonSlagen{picBack, "lblToonSlagen", {{0, {300, 2040, 1800, 240}}, {1, {300, 2400, 1800, 240}}}};
    forms::Label lblSlagenNZ{picBack, "lblSlagenNZ", {2200, 2040, 300, 240}};
    forms::Label lblSlagenOW{picBack, "lblSlagenOW", {2200, 2400, 300, 240}};

    // The box of played cards.
    forms::Frame fraSlagen{picBack, "fraSlagen", {10680, 3360, 5625, 3795}};
    forms::ControlArray<forms::Label> lblWind;
    forms::ControlArray<forms::Label> lblSlag;
    tafel::PerPlaats<forms::PictureBox> picGespeeld;  // picN, picO, picZ, picW, by trick 1 to 13
    tafel::PerPlaats<forms::Label> lblGespeeld;       // lblN, lblO, lblZ, lblW
    forms::ControlArray<forms::PictureBox> picSym;    // small suit symbols, 1 to 4, the source of copies

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
    forms::ListBox lstZuidSchoppen{*this, "lstZuidSchoppen", forms::ListBox::Order::Sorted};
    forms::ListBox lstZuidHarten{*this, "lstZuidHarten", forms::ListBox::Order::Sorted};
    forms::ListBox lstZuidRuiten{*this, "lstZuidRuiten", forms::ListBox::Order::Sorted};
    forms::ListBox lstZuidKlaveren{*this, "lstZuidKlaveren", forms::ListBox::Order::Sorted};
    forms::ListBox lstHelpZuid{*this, "lstHelpZuid"};
    forms::ListBox lstKlaar{*this, "lstKlaar"};
    forms::ListBox lstAnderKleur{*this, "lstAnderKleur", forms::ListBox::Order::Sorted};

    // The array of a seat number, 1 to 4; failure 9 for any other.
    template <class Arrays>
    static auto& van_plaats(Arrays& arrays, int plaats) {
        if (plaats < 1 || plaats > 4) throw Fout(FoutNummer::SubscriptOutOfRange, std::to_string(plaats));
        return arrays[static_cast<std::size_t>(plaats - 1)];
    }
    forms::ControlArray<forms::PictureBox>& hand(int plaats) { return van_plaats(picKaart, plaats); }

    // Shows a suit symbol, or the letters of no trump, in a box of its size.
    static void toon_symbool(forms::PictureBox& plek, int plaatje);
    // Puts a card's picture, which also says the card to a screen reader, into a place.
    static void toon_kaart(forms::PictureBox& plek, int kaartcode);

private:
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
