#include "services/Foutpad.h"

namespace services {

void meld_fout(Programma& programma, const std::string& plaats, int nummer, const std::string& naam) {
    programma.gedeeld.foutPlaats = plaats;
    programma.gedeeld.foutNummer = nummer;
    programma.gedeeld.foutNaam = naam;
    programma.schermen.toon("frmTavrin08");
}

}  // namespace services
