#include "services/frmTavrin08.h"

#include <algorithm>

#include "services/Bas_Aftavrin.h"

namespace services {

namespace {

constexpr forms::Size kInner{8970, 2910};
constexpr double kMarge = 120;
constexpr int kEersteTik = 750;  // milliseconds, as the two below
constexpr int kOgenOpen = 1500;
constexpr int kOgenDicht = 150;

}  // namespace

frmTavrin08::frmTavrin08(Programma& programma) : Scherm(programma, "frmTavrin08", kInner, {}) {
    picSurprice(0).Picture = {0, "gezicht0"};
    picSurprice(1).Picture = {0, "gezicht1"};
    picSurprice.each([](forms::PictureBox& picture) { picture.Visible = false; });
    picShow.Picture = picSurprice(0).Picture();
    picShow.Opaque = false;
    timPic.Interval = kEersteTik;
    for (const int i : {3, 4, 5})
        lblWatWaar(i).AutoSize = true;
    lblFoutInfo.each([](forms::Label& label) { label.AutoSize = true; });
    lblWatWaar(4).FontBold = true;

    timPic.Tick = [this] { timPic_Timer(); };
    cmdAfsluiten.Click = [this] { cmdAfsluiten_Click(); };
    cmdInterNet.Click = [this] { cmdInterNet_Click(); };
}

void frmTavrin08::Form_Load() {
    Caption = LeesResString(Bericht::FoutInProgramma);
    cmdAfsluiten.Caption = "&" + LeesResString(Bericht::Afsluiten);
    cmdInterNet.Caption = "&" + LeesResString(Bericht::NaarWebsite);
    lblWatWaar(0).Caption = LeesResString(Bericht::FoutIn);
    lblWatWaar(1).Caption = LeesResString(Bericht::Foutnummer);
    lblWatWaar(2).Caption = LeesResString(Bericht::Foutnaam);

    lblFoutInfo(0).Caption = gedeeld.foutPlaats;
    lblFoutInfo(1).Caption = forms::property_text(gedeeld.foutNummer);
    lblFoutInfo(2).Caption = gedeeld.foutNaam;
    for (auto* labels : {&lblWatWaar, &lblFoutInfo}) {
        for (const auto& [index, label] : *labels)
            label->BorderStyle = 0;
    }

    if (gedeeld.internetOk) {
        lblWatWaar(3).Caption = base::replaced(LeesResString(Bericht::FoutMelden), "|", "\n");
    } else {
        lblWatWaar(3).Caption = base::replaced(LeesResString(Bericht::GeenVerbinding), "|", "\n");
        lblWatWaar(5).Caption = LeesResString(Bericht::AdresVoorMelding);
        cmdInterNet.Visible = false;
    }
    for (const int i : {3, 4, 5})
        lblWatWaar(i).Left = lblWatWaar(1).Left;
    lblWatWaar(4).Caption = LeesResString(Bericht::NietVrolijk);

    // The window is as wide as the longest line needs, as far as the screen goes.
    for (auto* labels : {&lblWatWaar, &lblFoutInfo}) {
        for (const auto& [index, label] : *labels)
            Width = std::max(Width(), label->right() + kMarge);
    }
    Width = std::max(kInner.width, std::min(Width(), windows().host().screen_size(*this).width - 2 * kMarge));
    centreer();
}

void frmTavrin08::Form_Activate() {
    programma.platform.set_clipboard("");
    zet_melding_op_klembord();
    picShow.Tag = "1";
    timPic.Enabled = true;
}

void frmTavrin08::zet_melding_op_klembord() {
    std::string melding;
    for (const int i : {0, 1, 2}) {
        if (i > 0) melding += "\r\n";
        melding += lblWatWaar(i).Caption() + lblFoutInfo(i).Caption();
    }
    programma.platform.set_clipboard(melding);
}

void frmTavrin08::timPic_Timer() {
    if (picShow.Tag == "0") {
        picShow.Picture = picSurprice(0).Picture();
        picShow.Tag = "1";
        timPic.Interval = kOgenOpen;
    } else if (picShow.Tag == "1") {
        picShow.Picture = picSurprice(1).Picture();
        picShow.Tag = "0";
        timPic.Interval = kOgenDicht;
    }
}

void frmTavrin08::cmdInterNet_Click() {
    zet_melding_op_klembord();
    programma.platform.open("https://" + Bas_Aftavrin::Server(programma) + "/QVTMelding.html", "", "C:\\");
}

void frmTavrin08::cmdAfsluiten_Click() {
    timPic.Enabled = false;
    programma.platform.message_box(platform::box_style::kInformation, LeesResString(Bericht::ProgrammaNaam),
                                   base::replaced(LeesResString(Bericht::MeldingInKlembord), "|", "\n"));
    beeindig_programma();
}

void frmTavrin08::Form_QueryUnload() { beeindig_programma(); }

}  // namespace services
