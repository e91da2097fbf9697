#pragma once

#include <string>

#include "base/Text.h"

namespace services {

// The shared variables of the program. They live for the run; routines read and write them without handing them over,
// and the order of the calls keeps them right.
struct Gedeeld {
    int taalPrefix = 0;  // leading digits of the message numbers
    int kaartRugId = 0;  // picture number of the card back
    bool internetOk = false;

    std::string spelMap;       // full path of the chosen deal's folder
    std::string spelMapKopie;  // a copy, made at the same moment
    std::string spelNaam;      // the deal's name
    int vorigScherm = 0;       // number of the screen that the overview goes back to

    std::string foutPlaats;
    double foutNummer = 0;
    std::string foutNaam;

    base::Pieces delen;  // result of every split
    std::string regel;   // line buffer
    std::string iniWaarde;

    // The play counters.
    int kaartTeller = 0;
    int kaartenInSlag = 0;
    int slagRij = 0;
    int aanDeBeurt = 0;
    int speelSnelheid = 0;  // milliseconds
    bool uitkomstVast = false;

    std::string dummyWind;
    std::string leiderWind;
    std::string troefLetter;

    // The answers of WelkeKaartIsDit.
    std::string kleurLetter;
    std::string waardeLetter;
    std::string kaartTekst;

    // Layout of the table, twips.
    double kaartStap = 570;  // from the start: the overview goes by it too
    double rijStap = 0;
    double noordLinks = 0, noordBoven = 0;
    double oostLinks = 0, oostBoven = 0;
    double zuidLinks = 0, zuidBoven = 0;
    double westLinks = 0, westBoven = 0;
};

// The value of a shared variable by its name as text; a name that is none gives false.
bool gedeelde_variabele(const Gedeeld& gedeeld, const std::string& naam, std::string& waarde);

}  // namespace services
