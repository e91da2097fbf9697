#include "table/frmTavrin02.h"

#include "base/Zolang.h"
#include "cards/Kaarten.h"
#include "resources/PictureTable.h"
#include "services/Bas_Aftavrin.h"
#include "services/Kleuren.h"
#include "table/KaartenTafel.h"

namespace table {

namespace {

namespace kleuren = services::kleuren;

constexpr forms::Size kInner{19200, 11400};  // until the window is maximised
constexpr double kKaartBreedte = 1560;
constexpr double kKaartHoogte = 2340;
constexpr double kSymbool = 210;
constexpr double kTussenruimte = 128;

constexpr double kEersteKolom = 900;
constexpr double kKolomStap = 1200;
constexpr double kWoordNaastSymbool = 270;
constexpr double kRijTop[cards::kSlagen] = {360, 615, 885, 1140, 1410, 1665, 1935, 2190, 2460, 2715, 2985, 3240, 3510};

constexpr int kTraagst = 3000;  // milliseconds a card, as the two below
constexpr int kSnelst = 100;
constexpr int kGewoneSnelheid = 1000;

double kolom(int plaats) { return kEersteKolom + kKolomStap * (plaats - 1); }

}  // namespace

frmTavrin02::frmTavrin02(services::Programma& programma)
    : services::Scherm(programma, "frmTavrin02", kInner,
                       {.key_up = "frmTavrin02 - Form - KeyUp",
                        .terug = "frmTavrin02 - cmdTerug - Click",
                        .query_unload = "frmTavrin02 - Form - QueryUnload"}),
      picKaart([this](int plaats) {
          return forms::ControlArray<forms::PictureBox>(picBack, std::string("picKaart") + cards::kPlaatsNaam(plaats),
                                                        {{1, {0, 0, kKaartBreedte, kKaartHoogte}}});
      }),
      picPlay(picBack, "picPlay", {{1, {0, 0, kKaartBreedte, kKaartHoogte}}}),
      lblWind(fraSlagen, "lblWind", 0, 3,
              [](int i) {
                  return forms::Rect{kolom(i + 1), 90, 900, 195};
              }),
      lblSlag(fraSlagen, "lblSlag", 1, cards::kSlagen,
              [](int slag) {
                  return forms::Rect{slag < 10 ? 150.0 : 90.0, kRijTop[slag - 1], 750, 195};
              }),
      picGespeeld([this](int plaats) {
          return forms::ControlArray<forms::PictureBox>(
              fraSlagen, std::string("pic") + cards::kPlaatsLetter(plaats), 1, cards::kSlagen, [plaats](int slag) {
                  return forms::Rect{kolom(plaats), 390.0 + 260 * (slag - 1), kSymbool, kSymbool};
              });
      }),
      lblGespeeld([this](int plaats) {
          return forms::ControlArray<forms::Label>(
              fraSlagen, std::string("lbl") + cards::kPlaatsLetter(plaats), 1, cards::kSlagen, [plaats](int slag) {
                  return forms::Rect{kolom(plaats) + kWoordNaastSymbool, kRijTop[slag - 1], 900, 255};
              });
      }),
      picSym(*this, "picSym", 1, 4, [](int) {
          return forms::Rect{0, 0, kSymbool, kSymbool};
      }) {
    stel_uiterlijk_in();
    cmdTerug.Click = [this] { cmdTerug_Click(); };
    cmdStart.Click = [this] { cmdStart_Click(); };
    cmdVerder.Click = [this] { cmdVerder_Click(); };
    vscrSnelHeid.Change = [this] { vscrSnelHeid_Change(); };
    timSpeelKaart.Tick = [this] { timSpeelKaart_Timer(); };
    for (auto* doos : {&txtInformatie, &txtVraag, &txtSnelHeid}) {
        doos->GotFocus = [this] { cmdFocus.SetFocus(); };
        doos->TabStop = false;
    }
}

// What the screen looks like before its load places the rest.
void frmTavrin02::stel_uiterlijk_in() {
    picBack.BackColor = kleuren::kTafelgroen;
    picBack.ForeColor = kleuren::kOpTafel;
    picBack.FontSize = 12;
    picBack.FontBold = true;
    picBack.Visible = false;
    for (auto& hand : picKaart) {
        hand.each([](forms::PictureBox& kaart) { kaart.Opaque = false; });
        hand(1).Visible = false;
    }
    picPlay.each([](forms::PictureBox& kaart) {
        kaart.Opaque = false;
        kaart.BorderStyle = 1;
        kaart.Visible = false;
        kaart.Spoken = true;
    });
    txtInformatie.Spoken = true;
    for (forms::Frame* doos : {&bieding.fraBieding, &fraSlagen}) {
        doos->BackColor = kleuren::kPapier;
        doos->Visible = false;
    }
    for (auto& woorden : lblGespeeld)
        woorden.each([](forms::Label& woord) { woord.FontBold = true; });
    for (auto& symbolen : picGespeeld)
        symbolen.each([](forms::PictureBox& symbool) { symbool.Opaque = false; });
    for (const auto& [plaats, symbool] : picSym) {
        symbool->Picture =
            services::Bas_Aftavrin::LaadPlaatje(cards::gegevens(static_cast<cards::Kleur>(plaats - 1)).plaatje);
        symbool->Visible = false;
    }
    for (const auto& [slag, opschrift] : lblSlag) {
        opschrift->Caption = LeesResString(Bericht::Slag) + " " + std::to_string(slag) + ":";
        opschrift->Visible = false;
    }
    lblWind.each([](forms::Label& opschrift) { opschrift.FontBold = true; });
    for (const auto& [i, opschrift] : lblWind)
        opschrift->Caption = LeesResString(cards::bericht_van_plaats(i + 1));

    const auto op_de_tafel = [](forms::Label& opschrift, double punten) {
        opschrift.FontSize = punten;
        opschrift.AutoSize = true;
        opschrift.ForeColor = kleuren::kWit;
    };
    op_de_tafel(lblSpel, 18);
    op_de_tafel(lblNummer, 24);
    op_de_tafel(lblContractWie, 11.25);
    op_de_tafel(lblUitkomstWind, 11.25);
    op_de_tafel(lblUitkomstKaart, 11.25);
    op_de_tafel(lblSlagenNZ, 9.75);
    op_de_tafel(lblSlagenOW, 9.75);
    for (auto* opschriften : {&lblInfo, &lblToonSlagen}) {
        opschriften->each([&](forms::Label& opschrift) { op_de_tafel(opschrift, 9.75); });
    }
    lblUitkomstKaart.Visible = false;
    for (forms::PictureBox* symbool : {&picContract, &picUitkomst}) {
        symbool->Opaque = false;
        symbool->Visible = false;
    }
    for (forms::TextBox* doos : {&txtVraag, &txtInformatie, &txtKnipTekst}) {
        doos->MultiLine = true;
        doos->FontSize = 12;
        doos->BackColor = kleuren::kPapier;
        doos->Visible = false;
    }
    cmdVerder.Visible = false;
    txtSnelHeid.Alignment = forms::Alignment::Centre;
    txtSnelHeid.FontSize = 9.75;
    lblSnelHeid.FontSize = 9.75;
    lblSnelHeid.AutoSize = true;
}

void frmTavrin02::toon_symbool(forms::PictureBox& plek, int plaatje) {
    plek.Picture = services::Bas_Aftavrin::LaadPlaatje(plaatje);
    const resources::Size size = resources::picture_size(plaatje);
    plek.Width = size.width * forms::kTwipsPerPixel;
    plek.Height = size.height * forms::kTwipsPerPixel;
}

void frmTavrin02::toon_kaart(forms::PictureBox& plek, int kaartcode) {
    plek.Picture = services::Bas_Aftavrin::LaadPlaatje(kaartcode);
    plek.BorderStyle = 0;
    plek.AccessibleName = cards::titel(kaartcode);
}

void frmTavrin02::leg_kaart(int plaats, int kaartcode) {
    toon_kaart(picPlay(plaats), kaartcode);
    picPlay(plaats).AccessibleName = LeesResString(cards::bericht_van_plaats(plaats)) + ": " + cards::titel(kaartcode);
}

void frmTavrin02::Form_Load() {
    Foutpad("frmTavrin02 - Form - Load", [&] {
        zet_buiten_beeld(cmdFocus);
        gedeeld.kaartRugId = resources::plaatje::kKaartRug;
        cards::Kaarten::ZetVariabelenOpNul(gedeeld);
        Caption = LeesResString(Bericht::ProgrammaNaam);
        WindowState = forms::WindowState::Maximised;
        const forms::Size screen = windows().host().screen_size(*this);
        picBack.Move(forms::half(screen.width - picBack.Width), forms::half(screen.height - picBack.Height));
        picBack.Visible = true;
        picBack.BorderStyle = 1;
        Refresh();

        lijsten.lstAfTavrin.Clear();
        lstKnipTekst.Clear();
        txtVraag.Text = "";
        txtInformatie.Text = "";
        txtKnipTekst.Text = "";
        zet_opschriften();
        for (int p = 2; p <= cards::kKaartenPerHand; ++p) {
            for (const int plaats : cards::kPlaatsen)
                picKaart(plaats).Load(p);
        }
        cmdTerug.Move(picBack.Left, picBack.bottom() + kTussenruimte);
        cmdStart.Move(picBack.right() - cmdStart.Width, cmdTerug.Top);
        cmdVerder.Move(cmdStart.Left, cmdTerug.Top);
        lijsten.vul_kaarten();
        zet_gespeelde_kaarten_klaar();

        gedeeld.kaartStap = 570;
        gedeeld.rijStap = 500;
        gedeeld.noordLinks = 2630;
        gedeeld.noordBoven = 300;
        gedeeld.zuidLinks = 2230;
        gedeeld.zuidBoven = 7680;
        gedeeld.westLinks = 570;
        gedeeld.westBoven = 3300;
        gedeeld.oostLinks = 9090;
        gedeeld.oostBoven = 3300;

        cards::Kaarten::LeesInformatie(*this, lstInformatie);
        Kaarten::NoordStartPositie(*this);
        Kaarten::ZuidStartPositie(*this);
        Kaarten::OostStartPositie(*this);
        Kaarten::WestStartPositie(*this);
        Kaarten::OverigeStartPositie(*this);
        Kaarten::ZetPositieBieding(*this);
        Kaarten::ToonBieding(*this, bieding);
        cards::Kaarten::LeesKartenBestandIn(*this, lijsten);
        cards::Kaarten::VerdeelDeKaarten(*this, lijsten);
        Kaarten::LeesVraag(*this);

        lees_snelheid();
        lblSnelHeid.Caption = LeesResString(Bericht::Afspeelsnelheid) + ":";
        lblSnelHeid.Refresh();
        zet_snelheid_op_zijn_plaats();
    });
}

void frmTavrin02::zet_opschriften() {
    lblSpel.Caption = LeesResString(Bericht::Spel) + ":";
    lblInfo(0).Caption = LeesResString(Bericht::Contract) + ":";
    lblInfo(1).Caption = LeesResString(Bericht::Uitkomst) + ":";
    lblToonSlagen(0).Caption = LeesResString(Bericht::SlagenNoordZuid) + ":";
    lblToonSlagen(1).Caption = LeesResString(Bericht::SlagenOostWest) + ":";
    cmdTerug.Caption = "&" + LeesResString(Bericht::Terug);
    cmdStart.Caption = "&" + LeesResString(Bericht::Start);
    cmdVerder.Caption = "&" + LeesResString(Bericht::Verder);
}

void frmTavrin02::zet_gespeelde_kaarten_klaar() {
    for (int slag = 1; slag <= cards::kSlagen; ++slag) {
        for (const int plaats : cards::kPlaatsen) {
            picGespeeld(plaats)(slag).Visible = false;
            lblGespeeld(plaats)(slag).Visible = false;
            picGespeeld(plaats)(slag).Top = picGespeeld(cards::kNoord)(slag).Top;
            lblGespeeld(plaats)(slag).Top = lblGespeeld(cards::kNoord)(slag).Top;
        }
    }
}

void frmTavrin02::lees_snelheid() {
    const base::Zolang laadt(bezigMetLaden, true);
    gedeeld.speelSnelheid = kGewoneSnelheid;
    const std::string waarde =
        services::Bas_Aftavrin::LeesIni(programma, "Standaard", "Snelheid", programma.instellingen());
    if (!waarde.empty()) gedeeld.speelSnelheid = base::numeric_value(waarde);
    for (int snelheid = kTraagst; snelheid >= kSnelst; snelheid -= 100) {
        if (snelheid == gedeeld.speelSnelheid) vscrSnelHeid.Value = lstSnelheid.ListCount();
        lstSnelheid.AddItem(std::to_string(snelheid));
    }
    vscrSnelHeid.Max = lstSnelheid.ListCount();
    vscrSnelHeid.Min = -1;
    txtSnelHeid.Text = std::to_string(gedeeld.speelSnelheid);
}

// The parts of the speed box stand from its right edge leftwards, and the box left of the start button.
void frmTavrin02::zet_snelheid_op_zijn_plaats() {
    vscrSnelHeid.Left = picSnelheid.Width - vscrSnelHeid.Width - 60;
    txtSnelHeid.Left = vscrSnelHeid.Left - 30 - txtSnelHeid.Width;
    lblSnelHeid.Left = txtSnelHeid.Left - 30 - lblSnelHeid.Width;
    picSnelheid.Move(cmdStart.Left - picSnelheid.Width - kTussenruimte, cmdStart.Top);
}

void frmTavrin02::Form_Activate() {
    Foutpad("frmTavrin02 - Form - Activate", [&] { cmdStart.SetFocus(); });
}

void frmTavrin02::verlaat() {
    timSpeelKaart.Enabled = false;
    services::Scherm::verlaat();
}

void frmTavrin02::cmdStart_Click() {
    Foutpad("frmTavrin02 - cmdStart - Click", [&] {
        txtInformatie.BorderStyle = 0;
        cmdStart.Visible = false;
        txtVraag.Text = "";
        txtVraag.Visible = false;
        fraSlagen.Move(bieding.fraBieding.Left, bieding.fraBieding.bottom() + kTussenruimte);
        fraSlagen.Visible = true;
        txtInformatie.Width = txtVraag.Width();
        txtInformatie.Move(txtVraag.Left, picKaart(cards::kOost)(cards::kKaartenPerHand).bottom() + kTussenruimte);
        Kaarten::PlaatdeUitkomst(*this);
        Kaarten::ToonKaartenDummy(*this);
        Kaarten::ToonKaartenLeider(*this);
        timSpeelKaart.Interval = gedeeld.speelSnelheid;
        if (!cmdVerder.Visible) timSpeelKaart.Enabled = true;
    });
}

void frmTavrin02::cmdVerder_Click() {
    Foutpad("frmTavrin02 - cmdVerder - Click", [&] {
        txtInformatie.BorderStyle = 0;
        cmdVerder.Visible = false;
        lstKnipTekst.Clear();
        txtKnipTekst.Text = "";
        txtInformatie.Text = "";
        picBack.Refresh();
        const Tik tik = timSpeelKaart_Timer();
        if (tik == Tik::Verder && !cmdVerder.Visible) timSpeelKaart.Enabled = true;
    });
}

frmTavrin02::Tik frmTavrin02::timSpeelKaart_Timer() {
    Tik tik = Tik::Gestopt;
    Foutpad("frmTavrin02 - timSPeelKaart - Timer", [&] {
        try {
            gedeeld.kaartTeller += 1;
            gedeeld.aanDeBeurt += 1;
            if (gedeeld.aanDeBeurt > 4) gedeeld.aanDeBeurt = 1;
            if (gedeeld.kaartenInSlag > 3) nieuwe_slag();
            Kaarten::PlaatsKaart(*this);
            if (gedeeld.kaartTeller < cards::kKaarten) {
                tik = Tik::Verder;
            } else {
                spel_is_uit();
            }
        } catch (...) {
            timSpeelKaart.Enabled = false;  // a broken deal doesn't report the same failure at each tick
            throw;
        }
    });
    return tik;
}

void frmTavrin02::nieuwe_slag() {
    gedeeld.kaartenInSlag = 0;
    for (const int plaats : cards::kPlaatsen) {
        picPlay(plaats).Picture = forms::Picture{};
        picPlay(plaats).BorderStyle = 1;
        picPlay(plaats).AccessibleName = "";
    }
    gedeeld.slagRij += 1;
    gedeeld.delen = base::split(lijsten.lstAfTavrin.List(gedeeld.slagRij), "|");
    // Who leads this trick won the one before.
    const int uitkomer = base::numeric_value(base::left(gedeeld.delen[0], 1));
    forms::Label* teller = nullptr;
    if (uitkomer == cards::kNoord || uitkomer == cards::kZuid) teller = &lblSlagenNZ;
    if (uitkomer == cards::kOost || uitkomer == cards::kWest) teller = &lblSlagenOW;
    if (teller) {
        teller->Caption = std::to_string(base::numeric_value(teller->Caption()) + 1);
        teller->Refresh();
    }
    if (gedeeld.slagRij >= cards::kSlagen) {
        for (const int plaats : cards::kPlaatsen)
            picPlay(plaats).Visible = false;
        txtVraag.Text = "";
        txtVraag.Visible = false;
        open_alle_handen();
    } else {
        gedeeld.aanDeBeurt = uitkomer;
    }
}

void frmTavrin02::spel_is_uit() {
    timSpeelKaart.Enabled = false;
    cmdVerder.Visible = false;
    // No row names the winner of the last trick, and the comparison finds nothing in these lists: it goes to
    // Noord-Zuid in every deal. That is meant.
    lstKlaar.Clear();
    lstAnderKleur.Clear();
    for (int i = 0; i < 4; ++i)
        lstAnderKleur.AddItem(" ");
    lblSlagenNZ.Caption = std::to_string(base::numeric_value(lblSlagenNZ.Caption()) + 1);
    lblSlagenNZ.Refresh();
    for (const int plaats : cards::kPlaatsen) {
        picPlay(plaats).Picture = forms::Picture{};
        picPlay(plaats).AccessibleName = "";
    }
    txtVraag.Text = "";
    txtVraag.Visible = false;
    open_alle_handen();
}

void frmTavrin02::open_alle_handen() {
    Kaarten::NoordZijnKaarten(*this);
    Kaarten::OostZijnKaarten(*this);
    Kaarten::ZuidZijnKaarten(*this);
    Kaarten::WestZijnKaarten(*this);
    Kaarten::schrijf_plaatsnamen(*this);
}

void frmTavrin02::vscrSnelHeid_Change() {
    Foutpad("frmTavrin02 - vscrSnelHeid - Change", [&] {
        if (bezigMetLaden) return;
        const int laatste = lstSnelheid.ListCount() - 1;
        // Setting the value runs this routine again, for the value that then stands.
        if (vscrSnelHeid.Value < 0) vscrSnelHeid.Value = laatste;
        if (vscrSnelHeid.Value > laatste) vscrSnelHeid.Value = 0;
        txtSnelHeid.Text = lstSnelheid.List(vscrSnelHeid.Value);
        services::Bas_Aftavrin::SchrijfINI(programma, "Standaard", "Snelheid", txtSnelHeid.Text(),
                                           programma.instellingen());
        gedeeld.speelSnelheid = base::numeric_value(txtSnelHeid.Text());
        timSpeelKaart.Interval = gedeeld.speelSnelheid;
    });
}

}  // namespace table
