#pragma once

#include <string>

#include "forms/ListBox.h"
#include "services/Programma.h"

namespace services {

// Finding a USB stick among the drives. On a platform without drive letters a mount point takes the letter's place.
namespace Bas_Aftavrin {

// The roots of all drives in one string, a NUL after each and one more at the end; empty on failure.
std::string GetDriveStrings(Programma& programma);

// Fills lstDriveType with the roots, and lstDriveNaam with a line for each: root, " [", type word, "] ", label. Letters
// are in upper case; a mount point stays as it is. An empty string leaves both lists as they are.
void DisplyDriveTypes(Programma& programma, forms::ListBox& lstDriveType, forms::ListBox& lstDriveNaam,
                      const std::string& schijven);

// The type word of a drive. Only a removable one is a "USB-Drive", and neither A nor B is.
std::string WatVoorDriveType(Programma& programma, const std::string& schijf);

}  // namespace Bas_Aftavrin

}  // namespace services
