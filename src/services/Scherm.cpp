#include "services/Scherm.h"

#include "forms/Control.h"
#include "services/Bas_Aftavrin.h"

namespace services {

std::string Scherm::LeesResString(Bericht bericht) const { return Bas_Aftavrin::LeesResString(programma, bericht); }

void Scherm::Form_KeyUp(int key_code) {
    Foutpad(plaatsen_.key_up, [&] {
        if (key_code == forms::kKeyEscape) Form_QueryUnload();
    });
}

void Scherm::Form_QueryUnload() {
    Foutpad(plaatsen_.query_unload, [&] {
        verlaat();
        Unload();
    });
}

void Scherm::verlaat() { programma.schermen.toon("frmTavrin01"); }

void Scherm::cmdTerug_Click() {
    Foutpad(plaatsen_.terug, [&] { Form_QueryUnload(); });
}

void Scherm::zet_buiten_beeld(forms::Control& control) {
    control.Left = windows().host().screen_size(*this).width + 10;
    control.TabStop = false;
}

void Scherm::centreer() {
    const forms::Size screen = windows().host().screen_size(*this);
    Left = forms::half(screen.width - Width);
    Top = forms::half(screen.height - Height);
}

void Scherm::wissel_opschrift(forms::CheckBox& keuze) const {
    keuze.Caption = LeesResString(keuze.Caption == LeesResString(Bericht::SorteerHoogLaag) ? Bericht::SorteerLaagHoog
                                                                                           : Bericht::SorteerHoogLaag);
}

void Scherm::sorteer(const char* plaats, forms::CheckBox& keuze, const std::function<void()>& vul) {
    Foutpad(plaats, [&] {
        forms::Control& focus = control("cmdFocus");
        if (focus.Visible) focus.SetFocus();
        Bas_Aftavrin::SchrijfINI(programma, "Standaard", keuze.name(), std::to_string(keuze.Value),
                                 programma.instellingen());
        vul();
    });
}

void Scherm::toon_mappen(const MappenLijst& lijst, const std::string& map) {
    if (!map.empty()) {
        std::string pad = map;
        Bas_Aftavrin::MaakPad(pad);
        lijst.mappen.Path = map;
    }
    lijst.keuze.Caption = LeesResString(lijst.keuze.Value == 1 ? Bericht::SorteerLaagHoog : Bericht::SorteerHoogLaag);
    if (!map.empty()) vul_met_mappen(lijst.lijst, lijst.mappen, lijst.keuze.Value);
}

}  // namespace services
