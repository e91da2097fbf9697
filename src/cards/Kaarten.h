#pragma once

#include <string>

#include "cards/Lijsten.h"
#include "forms/DirListBox.h"
#include "services/Scherm.h"

namespace cards {

// The reading routines of the module Kaarten. They bring a package's files, named by the shared spelMap and spelNaam,
// into the lists of the screen that asks. A routine that fails reports it and leaves what it had added so far.
namespace Kaarten {

// Bytes of one record of " informatie.txt", and the number of its records.
inline constexpr int kRecordLengte = 532;
inline constexpr int kAantalRecords = kKaarten;

// Path of the chosen deal's file of that suffix, such as " contract.txt".
std::string bestand(const services::Gedeeld& gedeeld, const std::string& achtervoegsel);
// Whether a file of a deal is there: one that is longer than zero bytes. Where that cannot be told it is a failure, so
// that nothing is taken for missing, and then written over, that could only not be reached.
bool aanwezig(const std::string& pad);
// First line of a text file; failure 62 where the file is empty.
std::string eerste_regel(const std::string& pad);

// Zeroes the play counters and empties dummyWind and leiderWind.
void ZetVariabelenOpNul(services::Gedeeld& gedeeld);

// The 52 records of " informatie.txt", padding included; the list stays empty without the file.
void LeesInformatie(services::Scherm& scherm, forms::ListBox& lstInformatie);

// The lines of " aftavrin.txt" that are not blank; the list stays empty without the file.
void LeesKartenBestandIn(services::Scherm& scherm, HandLijsten& lijsten);

// The hands from the play rows. It adds to the lists of the suits, so it runs once in a screen's life.
void VerdeelDeKaarten(services::Scherm& scherm, HandLijsten& lijsten);

// The names of the folder's subfolders, from the first to the last, or the other way with `volgorde` 1.
void LeesSpellen(services::Scherm& scherm, forms::ListBox& lstSpellen, forms::DirListBox& mappen,
                 const std::string& map, int volgorde);

// Leaves suit letter (lower case), value letter and both with a blank between in kleurLetter, waardeLetter and
// kaartTekst.
void WelkeKaartIsDit(services::Scherm& scherm, const std::string& kaartcode);

// The value letter of a card number: "2" to "9", or that of the messages.
std::string waarde_letter(const services::Scherm& scherm, int kaartnummer);

}  // namespace Kaarten

}  // namespace cards
