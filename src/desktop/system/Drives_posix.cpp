#include "desktop/system/Drives_posix.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <algorithm>
#include <array>
#include <utility>

#include "desktop/Text.h"
#include "desktop/system/PathNames.h"

namespace desktop::system {

namespace {

const QString kBlocks = QStringLiteral("/sys/class/block");

constexpr std::array kFileSystems{
    std::pair{"tmpfs", DriveType::Ram},    std::pair{"ramfs", DriveType::Ram},
    std::pair{"nfs", DriveType::Remote},   std::pair{"nfs4", DriveType::Remote},
    std::pair{"cifs", DriveType::Remote},  std::pair{"smb3", DriveType::Remote},
    std::pair{"smbfs", DriveType::Remote}, std::pair{"fuse.sshfs", DriveType::Remote},
    std::pair{"9p", DriveType::Remote},    std::pair{"afs", DriveType::Remote},
    std::pair{"ceph", DriveType::Remote},  std::pair{"davfs", DriveType::Remote},
    std::pair{"iso9660", DriveType::Cd},   std::pair{"udf", DriveType::Cd},
};

QStorageInfo volume(const std::string& root) { return QStorageInfo(path_to_qt(root)); }

bool says_one(const QString& file) {
    QFile flag(file);
    return flag.open(QIODevice::ReadOnly) && flag.readAll().trimmed() == "1";
}

// A system may run from a disk that can be taken out, but that is nobody's stick.
bool holds_the_system(const QStorageInfo& info) {
    return info.isRoot() || (info.device().startsWith('/') && info.device() == QStorageInfo::root().device());
}

}  // namespace

std::vector<std::string> mounted_volumes() {
    std::vector<std::string> roots;
    for (const QStorageInfo& info : QStorageInfo::mountedVolumes()) {
        if (info.isValid() && info.isReady()) roots.push_back(path_from_qt(info.rootPath()));
    }
    std::ranges::sort(roots);
    const auto doubles = std::ranges::unique(roots);
    roots.erase(doubles.begin(), doubles.end());
    return roots;
}

DriveType type_of_file_system(const QByteArray& file_system) {
    const auto found =
        std::ranges::find_if(kFileSystems, [&](const auto& known) { return file_system == known.first; });
    return found == kFileSystems.end() ? DriveType::Fixed : found->second;
}

// A partition's folder stands within that of its disk, and only the disk has the mark.
bool disk_is_removable(const QString& device, const QString& blocks) {
    const QString name = QFileInfo(QFileInfo(device).canonicalFilePath()).fileName();
    const QString folder =
        QFileInfo(blocks + "/" + (name.isEmpty() ? QFileInfo(device).fileName() : name)).canonicalFilePath();
    return !folder.isEmpty() && (says_one(folder + "/removable") || says_one(folder + "/../removable"));
}

DriveType type_of_volume(const std::string& root) {
    const QStorageInfo info = volume(root);
    const DriveType by_file_system = type_of_file_system(info.fileSystemType());
    if (by_file_system != DriveType::Fixed || holds_the_system(info)) return by_file_system;
    return disk_is_removable(QString::fromUtf8(info.device()), kBlocks) ? DriveType::Removable : DriveType::Fixed;
}

std::string label_of_volume(const std::string& root) {
    const QStorageInfo info = volume(root);
    return path_from_qt(info.rootPath()) == root ? from_qt(info.name()) : std::string();
}

}  // namespace desktop::system
