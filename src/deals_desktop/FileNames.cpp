#include "deals_desktop/FileNames.h"

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>

#include "deals_desktop/Words.h"

namespace deals_desktop {

QString as_pbn(const QString& file, const QString&) {
    return file.endsWith(words::kPbn, Qt::CaseInsensitive) ? file : file + words::kPbn;
}

QString ask_where_to_write(QWidget* parent, const QString& title, const QString& name, const QString& filters,
                           const std::function<QString(const QString& file, const QString& filter)>& complete) {
    QString filter;
    const QString given = QFileDialog::getSaveFileName(parent, title, name, filters, &filter);
    if (given.isEmpty()) return {};
    QString file = complete(given, filter);
    if (file == given || !QFile::exists(file)) return file;
    const QString question = words::kReplace.arg(QFileInfo(file).fileName());
    return QMessageBox::question(parent, title, question) == QMessageBox::Yes ? file : QString();
}

}  // namespace deals_desktop
