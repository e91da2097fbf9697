#pragma once

#include <QString>
#include <string>

namespace desktop::system {

// A path of the program as Qt has it: by the names that are on the disk, which may hold what Windows-1252 cannot. One
// that can't be looked up stays as it is.
QString path_to_qt(const std::string& path);
// A path of Qt's as the program has it, with the separator of the system.
std::string path_from_qt(const QString& path);

}  // namespace desktop::system
