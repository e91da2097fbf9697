#pragma once

#include <QByteArray>
#include <string>
#include <vector>

namespace desktop::system {

enum class DriveType { Removable = 2, Fixed = 3, Remote = 4, Cd = 5, Ram = 6 };

// Mount points of all volumes that are ready, in the order of their names.
std::vector<std::string> mounted_volumes();
// The volume that the system runs from is never removable.
DriveType type_of_volume(const std::string& root);
// Empty for a volume without a label, and for a folder that is no volume's root.
std::string label_of_volume(const std::string& root);

// Folders that count as mounted sticks whatever the system tells of their disk: key Drives of section Platform in the
// settings file, names between semicolons, relative to the file's folder if not absolute. In the order given, those
// that are there.
std::vector<std::string> named_sticks(const std::string& settings_file);

// What the file system alone tells; Fixed where it tells nothing.
DriveType type_of_file_system(const QByteArray& file_system);
// Whether the disk of a device such as "/dev/sdb1" can be taken out; `blocks` is the folder that lists block devices.
bool disk_is_removable(const QString& device, const QString& blocks);

}  // namespace desktop::system
