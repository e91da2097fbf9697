#include "desktop/system/Drives.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <algorithm>
#include <array>
#include <filesystem>
#include <sstream>
#include <utility>

#include "base/Text.h"
#include "desktop/Text.h"
#include "platform/IniFile.h"
#include "platform/Paths.h"
#include "platform/SpecialFolders.h"

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

QStorageInfo volume(const std::string& root) {
    return QStorageInfo(QString::fromStdString(platform::find_case_blind(root).string()));
}

bool is_folder(const std::string& path) {
    try {
        return std::filesystem::is_directory(platform::find_case_blind(path));
    } catch (const std::exception&) {  // What can't be looked at is no stick that is ready.
        return false;
    }
}

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
        if (info.isValid() && info.isReady()) roots.push_back(platform::path_text(info.rootPath().toStdString()));
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
    return platform::path_text(info.rootPath().toStdString()) == root ? from_qt(info.name()) : std::string();
}

std::vector<std::string> named_sticks(const std::string& settings_file) {
    std::vector<std::string> sticks;
    std::istringstream names(platform::read_setting(settings_file, "Platform", "Drives"));
    for (std::string name; std::getline(names, name, ';');) {
        name = base::trimmed(name);
        while (name.size() > 1 && name.ends_with('/'))
            name.pop_back();
        if (name.empty()) continue;
        const std::string folder = platform::folder_of_setting(settings_file, name);
        if (is_folder(folder) && std::ranges::find(sticks, folder) == sticks.end()) sticks.push_back(folder);
    }
    return sticks;
}

}  // namespace desktop::system
