#pragma once

#include "forms/CommandButton.h"
#include "forms/ControlArray.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"
#include "forms/Timer.h"
#include "services/Scherm.h"

namespace services {

// The report of a failure: names routine, number and text, puts them on the clipboard, and offers the maker's report
// page. Leaving it ends the program. Its own routines have no failure path.
//
// picShow.Tag is the face on show, "1" with open eyes and "0" with closed ones: Form_Activate and timPic_Timer write
// it, timPic_Timer reads it.
class frmTavrin08 final : public Scherm {
public:
    explicit frmTavrin08(Programma& programma);
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyUp(int /*key_code*/) override {}  // it has no key
    void Form_QueryUnload() override;
    bool is_report() const override { return true; }

    forms::PictureBox picShow{*this, "picShow", {270, 240, 2100, 1920}};
    forms::ControlArray<forms::PictureBox> picSurprice{*this, "picSurprice", {{0, {}}, {1, {}}}};
    forms::Timer timPic{*this, "timPic"};
    forms::ControlArray<forms::Label> lblWatWaar{*this,
                                                 "lblWatWaar",
                                                 {{0, {2760, 720, 930, 225}},
                                                  {1, {2760, 990, 930, 225}},
                                                  {2, {2760, 1260, 930, 225}},
                                                  {3, {2730, 1620, 6120, 555}},
                                                  {4, {2790, 300, 930, 225}},
                                                  {5, {2730, 2400, 930, 225}}}};
    forms::ControlArray<forms::Label> lblFoutInfo{
        *this, "lblFoutInfo", {{0, {3810, 720, 930, 225}}, {1, {3780, 990, 930, 225}}, {2, {3780, 1260, 930, 225}}}};
    forms::CommandButton cmdAfsluiten{*this, "cmdAfsluiten", {120, 2280, 2145, 495}};
    forms::CommandButton cmdInterNet{*this, "cmdInterNet", {6690, 2280, 2145, 495}};

private:
    void zet_melding_op_klembord();
    void cmdAfsluiten_Click();
    void cmdInterNet_Click();
    void timPic_Timer();
};

}  // namespace services
