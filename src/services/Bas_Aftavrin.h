#pragma once

#include <string>

#include "forms/ListBox.h"
#include "forms/Picture.h"
#include "resources/Bericht.h"
#include "services/Programma.h"

namespace forms {
class Form;
}

namespace services {

// General services: messages and pictures by number, settings, folders, list search, rescaling of a screen.
namespace Bas_Aftavrin {

// Text of a message. A number of up to three digits gets taalPrefix in front; one of five digits stands as it is. A
// number without a message is reported, and the text is empty.
std::string LeesResString(Programma& programma, int nummer);
inline std::string LeesResString(Programma& programma, resources::Bericht bericht) {
    return LeesResString(programma, static_cast<int>(bericht));
}

// The picture of that number; failure 326 if there is none.
forms::Picture LaadPlaatje(int nummer);

// Writes one value to a settings file. That a write failed is not noticed.
void SchrijfINI(Programma& programma, const std::string& sectie, const std::string& sleutel, const std::string& waarde,
                const std::string& bestand);
// The value, at most 254 characters, which is also left in the shared iniWaarde; empty for a key that is absent.
std::string LeesIni(Programma& programma, const std::string& sectie, const std::string& sleutel,
                    const std::string& bestand);

// Path of the platform's folder of that number (38 program files, 42 program files x86); empty on failure.
std::string GetSpecialfolder(Programma& programma, int nummer);
// The program-files folder that holds the companion program, told by its executable; empty if there is none.
std::string ZoekRVLX(Programma& programma);

// 1 for a file with a length above 0, otherwise 0, also where that cannot be told.
int BestandStatus(const std::string& pad);
// Makes every folder of the path that is missing; failures are ignored. Adds a separator to the path if none ends it.
void MaakPad(std::string& pad);

// The first line of the list that equals the text (exact) or begins with it, without regard to case; -1 for none.
int GetListBoxIndex(Programma& programma, const forms::ListBox& lijst, const std::string& tekst, bool exact);

bool Internetverbinding(Programma& programma);
// The maker's web server, without scheme and without a slash at its end.
std::string Server(Programma& programma);

// Unloads every loaded screen but the main one, and those whose show is still to come. Failures are ignored.
void SluitAndereSchermen(Programma& programma);

// The rescaler: keeps places, sizes and fonts of a form's controls; scales them to the form's present size. Fonts
// grow up to maxLetterGrootte points. Failures are ignored.
void BewaarMaten(Programma& programma, const forms::Form& form);
void PasMatenAan(Programma& programma, forms::Form& form);

}  // namespace Bas_Aftavrin

}  // namespace services
