#include "services/Scherm.h"

#include "forms/Control.h"
#include "services/Bas_Aftavrin.h"

std::string Scherm::LeesResString(int nummer) const { return Bas_Aftavrin::LeesResString(programma, nummer); }

void Scherm::zet_buiten_beeld(forms::Control& control) {
    control.Left = windows().host().screen_size().width + 10;
    control.TabStop = false;
}

void Scherm::bewaar_keuze(const forms::CheckBox& keuze) {
    Bas_Aftavrin::SchrijfINI(programma, "Standaard", keuze.name(), std::to_string(keuze.Value),
                             programma.instellingen());
}

void Scherm::centreer() {
    const forms::Size screen = windows().host().screen_size();
    Left = static_cast<int>(screen.width - Width) / 2;
    Top = static_cast<int>(screen.height - Height) / 2;
}
