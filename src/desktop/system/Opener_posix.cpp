#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include "desktop/system/Opener.h"

namespace desktop::system {

namespace {

bool start_program(const QString& program, const QString& parameters, const QString& folder) {
    QFile file(program);
    file.setPermissions(file.permissions() | QFileDevice::ExeUser | QFileDevice::ExeOwner);
    QStringList arguments;
    if (!parameters.isEmpty()) {
        const bool quoted = parameters.size() > 1 && parameters.startsWith('"') && parameters.endsWith('"');
        arguments << (quoted ? parameters.mid(1, parameters.size() - 2) : parameters);
    }
    return QProcess::startDetached(program, arguments, QFileInfo(folder).isDir() ? folder : QString());
}

bool is_program(const QFileInfo& file) {
    return file.isExecutable() || file.suffix().isEmpty() || file.suffix().compare("exe", Qt::CaseInsensitive) == 0;
}

}  // namespace

bool open_by_system(const QString& file, const QString& parameters, const QString& folder) {
    if (file.contains("://")) return QDesktopServices::openUrl(QUrl(file));
    const QFileInfo info(file);
    return is_program(info) ? start_program(info.absoluteFilePath(), parameters, folder)
                            : QDesktopServices::openUrl(QUrl::fromLocalFile(info.absoluteFilePath()));
}

}  // namespace desktop::system
