#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>
#include <functional>
#include <string>

class QWidget;

// Names of files: as Qt has them, and in UTF-8 with the separators of the system.
namespace deals_desktop {

inline std::string path_of(const QString& file) {
    return QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath()).toStdString();
}
inline QString file_of(const std::string& path) { return QString::fromStdString(path); }
// Without its folder.
inline QString name_of(const std::string& path) { return QFileInfo(file_of(path)).fileName(); }

// Asks for a file to write to; empty where the user gives none. `complete` makes a name of what was given and of the
// filter chosen; where that is another file that is there, the user is asked about it.
QString ask_where_to_write(QWidget* parent, const QString& title, const QString& name, const QString& filters,
                           const std::function<QString(const QString& file, const QString& filter)>& complete);

// The name with the ending of PBN where it does not have it yet.
QString as_pbn(const QString& file, const QString& filter);

}  // namespace deals_desktop
