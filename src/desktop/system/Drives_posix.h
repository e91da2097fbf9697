#pragma once

#include <QByteArray>
#include <QString>

#include "desktop/system/Drives.h"

namespace desktop::system {

// What the file system alone tells; Fixed where it tells nothing.
DriveType type_of_file_system(const QByteArray& file_system);
// Whether the disk of a device such as "/dev/sdb1" can be taken out; `blocks` is the folder that lists block devices.
bool disk_is_removable(const QString& device, const QString& blocks);

}  // namespace desktop::system
