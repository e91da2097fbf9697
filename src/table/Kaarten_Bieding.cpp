// The bidding box.
#include "platform/Files.h"
#include "services/Bas_Aftavrin.h"
#include "table/KaartenTafel.h"
#include "table/frmTavrin02.h"

namespace table {

namespace Kaarten {

namespace {

constexpr double kHoogte = 3030;      // of the box with all nine rounds
constexpr double kRondeHoogte = 260;  // what a dropped round takes off, less than the 270 between two rounds

void lees_bod(services::Scherm& scherm, platform::LineReader& bestand, BiedingPaneel& paneel, int plaats, int ronde) {
    services::Gedeeld& gedeeld = scherm.gedeeld;
    gedeeld.regel = bestand.line();
    gedeeld.delen = base::split(gedeeld.regel, "~");
    const base::Pieces& delen = gedeeld.delen;

    forms::Label& bod = paneel.lblB(plaats)(ronde);
    forms::PictureBox& soort = paneel.picB(plaats)(ronde);
    forms::Label& teken = paneel.lblA(plaats)(ronde);
    bod.Caption = delen[0];
    bod.Tag = delen[1];
    const std::string& cijfer = delen[1];
    if (cijfer.size() == 1 && cijfer[0] >= '0' && cijfer[0] <= '4') {
        soort.Picture = services::Bas_Aftavrin::LaadPlaatje(resources::plaatje::kKlaveren + (cijfer[0] - '0'));
    }
    teken.Caption = delen[2];
    bod.Visible = !delen[0].empty();
    soort.Visible = !cijfer.empty() && base::numeric_value(cijfer) < 5;
    teken.Visible = !delen[2].empty();
}

}  // namespace

void ZetPositieBieding(frmTavrin02& tafel) {
    tafel.Foutpad("Kaarten - General - ZetPositieBieding", [&] {
        BiedingPaneel& paneel = tafel.bieding;
        paneel.fraBieding.Visible = false;
        paneel.fraBieding.Move(tafel.picBack.Width - paneel.fraBieding.Width - 256,
                               tafel.picKaart(cards::kNoord)(1).Top - 128);
        for (int i = 0; i <= 3; ++i)
            paneel.lblBieding(i).Caption = tafel.LeesResString(cards::bericht_van_plaats(i + 1));
        for (int ronde = 0; ronde < BiedingPaneel::kRondes; ++ronde) {
            paneel.lblNum(ronde).Visible = false;
            for (const int plaats : cards::kPlaatsen) {
                paneel.lblB(plaats)(ronde).Caption = "";
                paneel.picB(plaats)(ronde).Picture = forms::Picture{};
                paneel.lblA(plaats)(ronde).Caption = "";
            }
        }
    });
}

void ToonBieding(services::Scherm& scherm, BiedingPaneel& paneel) {
    scherm.Foutpad("Kaarten - General - ToonBieding", [&] {
        const std::string pad = cards::Kaarten::bestand(scherm.gedeeld, " bieding.txt");
        if (cards::Kaarten::aanwezig(pad)) {
            platform::LineReader regels(pad);
            regels.line();
            for (const int plaats : cards::kPlaatsen) {
                for (int ronde = 0; ronde < BiedingPaneel::kRondes; ++ronde) {
                    lees_bod(scherm, regels, paneel, plaats, ronde);
                }
            }
        }
        // Noord's column alone tells which rounds there were.
        double hoogte = kHoogte;
        for (int ronde = BiedingPaneel::kRondes - 1; ronde >= 0; --ronde) {
            const bool gebruikt = paneel.lblB(cards::kNoord)(ronde).Visible;
            if (!gebruikt) hoogte -= kRondeHoogte;
            paneel.lblNum(ronde).Visible = gebruikt;
        }
        paneel.fraBieding.Height = hoogte;
        paneel.fraBieding.Visible = true;
    });
}

}  // namespace Kaarten

}  // namespace table
