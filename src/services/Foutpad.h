#pragma once

#include <exception>
#include <string>

#include "base/Fout.h"
#include "services/Programma.h"

namespace services {

// Fills foutPlaats, foutNummer and foutNaam and shows the report.
void meld_fout(Programma& programma, const std::string& plaats, int nummer, const std::string& naam);

// Runs a routine's body. A failure in it is reported under the routine's place string, "Kaarten - General -
// ToonBieding", and the routine then returns as if it had finished; what it had done stays done.
template <class Body>
void Foutpad(Programma& programma, const std::string& plaats, Body&& body) {
    try {
        body();
    } catch (const base::Fout& fout) {
        meld_fout(programma, plaats, fout.nummer(), fout.what());
    } catch (const std::exception& other) {
        meld_fout(programma, plaats, static_cast<int>(base::FoutNummer::Internal), other.what());
    }
}

}  // namespace services
