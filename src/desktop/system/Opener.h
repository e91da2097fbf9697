#pragma once

#include <QString>

namespace desktop::system {

// Opens a file or an address by what the user has for it; a program is started with those parameters, a command line as
// it stands, in that folder where it is one. False where the system told at once that nothing opens.
bool open_by_system(const QString& file, const QString& parameters = {}, const QString& folder = {});

}  // namespace desktop::system
