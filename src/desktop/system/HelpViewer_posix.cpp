#include "desktop/system/HelpViewer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>

namespace desktop::system {

namespace {

using Done = std::function<void(bool succeeded, const QString& output)>;

void run(const QString& program, const QStringList& arguments, const Done& done) {
    auto* process = new QProcess(qApp);
    QObject::connect(process, &QProcess::errorOccurred, process, [process, done](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart) return;
        done(false, {});
        process->deleteLater();
    });
    QObject::connect(process, &QProcess::finished, process, [process, done](int code) {
        done(code == EXIT_SUCCESS, QString::fromUtf8(process->readAllStandardOutput()).trimmed());
        process->deleteLater();
    });
    process->start(program, arguments);
}

// The opener ends with a failure where the desktop has no program for such a file; Qt would not wait for that.
void open(const QString& file, const std::function<void()>& failed) {
    run(QStringLiteral("xdg-open"), {file}, [failed](bool opened, const QString&) {
        if (!opened) failed();
    });
}

// The file in the program folder may be a link to where the program is installed; the pages lie there.
QString pages_of(const QString& file) { return QFileInfo(file).canonicalPath() + QStringLiteral("/help/index.html"); }

}  // namespace

// The opener itself is no judge of that: some hand any file that nothing is there for to the browser.
void show_manual(const QString& file, const std::function<void()>& failed) {
    const auto open_pages = [file, failed] {
        const QString pages = pages_of(file);
        if (QFileInfo::exists(pages)) return open(pages, failed);
        failed();
    };
    run(QStringLiteral("xdg-mime"), {"query", "default", "application/vnd.ms-htmlhelp"},
        [file, open_pages](bool, const QString& viewer) {
            if (viewer.isEmpty()) return open_pages();
            open(file, open_pages);
        });
}

}  // namespace desktop::system
