#pragma once

#include "cards/Lijsten.h"
#include "cards/PerPlaats.h"
#include "forms/CommandButton.h"
#include "forms/Frame.h"
#include "forms/PictureBox.h"
#include "services/Scherm.h"

namespace annotate {

// The overview: all four hands of the deal in one look. The one screen that can be resized; its contents scale.
class frmTavrin06 final : public services::Scherm {
public:
    explicit frmTavrin06(services::Programma& programma);
    void Form_Load() override;
    void Form_Resize() override;
    bool is_sizable() const override { return true; }

    cards::HandLijsten lijsten{*this};
    forms::PictureBox picBack{*this, "picBack", {60, 90, 7275, 5880}};
    forms::PictureBox picPlay{picBack, "picPlay", {3135, 2197, 1005, 1485}};
    forms::Frame fraSlagen{picBack, "fraSlagen", {7140, 2430, 615, 1515}};
    // picKaartNoord, picKaartOost, picKaartZuid, picKaartWest: 0 at design, a card each from 1 to 13.
    cards::PerPlaats<forms::ControlArray<forms::PictureBox>, base::FoutNummer::NoSuchArrayElement> picKaart;
    forms::CommandButton cmdTerug{picBack, "cmdTerug", {120, 5250, 1065, 495}};
    cards::PerKleur<forms::ListBox> lstZuid{
        cards::sorted_lists_by_suit(*this, "lstZuid")};  // lstZuidSchoppen and so on

private:
    void verlaat() override;
    void leg_rij(int plaats, double boven);
    void leg_kleuren(int plaats, double links, bool binnen_kader);
    void leg_kaart(int plaats, int element, const std::string& code, double links, double boven);
};

}  // namespace annotate
