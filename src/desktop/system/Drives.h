#pragma once

#include <string>
#include <vector>

namespace desktop::system {

enum class DriveType { Unknown = 0, NotThere = 1, Removable = 2, Fixed = 3, Remote = 4, Cd = 5, Ram = 6 };

// The roots of all drives as the system gives them, in the order of their names: on Windows letters, "C:\\", with a
// medium or without; elsewhere the mount points of volumes that are ready.
std::vector<std::string> mounted_volumes();
// The volume that the system runs from is never removable.
DriveType type_of_volume(const std::string& root);
// Empty for a volume without a label or medium, and for a folder that is no volume's root.
std::string label_of_volume(const std::string& root);

// Folders that count as mounted sticks whatever the system tells of their disk: key Drives of section Platform in the
// settings file, names between semicolons, relative to the file's folder if not absolute. In the order given, those
// that are there.
std::vector<std::string> named_sticks(const std::string& settings_file);

}  // namespace desktop::system
