#pragma once

#include <array>

#include "cards/Lijsten.h"
#include "forms/CommandButton.h"
#include "forms/Frame.h"
#include "forms/PictureBox.h"
#include "services/Scherm.h"

// The overview: all four hands of the deal in one look. The one screen that can be resized; its contents scale.
class frmTavrin06 final : public Scherm, public HandLijsten {
public:
    explicit frmTavrin06(Programma& programma);
    void Form_Load() override;
    void Form_KeyUp(int key_code) override;
    void Form_QueryUnload() override;
    void Form_Resize() override;
    bool is_sizable() const override { return true; }

    forms::PictureBox picBack{*this, "picBack", {60, 90, 7275, 5880}};
    forms::PictureBox picPlay{picBack, "picPlay", {3135, 2197, 1005, 1485}};
    forms::Frame fraSlagen{picBack, "fraSlagen", {7140, 2430, 615, 1515}};
    // picKaartNoord, picKaartOost, picKaartZuid, picKaartWest: 0 at design, a card each from 1 to 13.
    std::array<forms::ControlArray<forms::PictureBox>, 4> picKaart;
    forms::CommandButton cmdTerug{picBack, "cmdTerug", {120, 5250, 1065, 495}};
    forms::ListBox lstZuidSchoppen{*this, "lstZuidSchoppen", forms::ListBox::Order::Sorted};
    forms::ListBox lstZuidHarten{*this, "lstZuidHarten", forms::ListBox::Order::Sorted};
    forms::ListBox lstZuidRuiten{*this, "lstZuidRuiten", forms::ListBox::Order::Sorted};
    forms::ListBox lstZuidKlaveren{*this, "lstZuidKlaveren", forms::ListBox::Order::Sorted};

private:
    void leg_rij(int plaats, double boven);
    void leg_kleuren(int plaats, double links, bool binnen_kader);
    void leg_kaart(forms::PictureBox& plek, const std::string& code, double links, double boven);
};
