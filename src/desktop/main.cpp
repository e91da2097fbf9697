#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QMessageBox>
#include <QScreen>
#include <cstdlib>
#include <exception>

#include "app/Start.h"
#include "desktop/CardPreparer.h"
#include "desktop/ProgramIcon.h"
#include "desktop/QtHost.h"
#include "desktop/Style.h"
#include "desktop/Text.h"
#include "desktop/Words.h"
#include "desktop/system/QtPlatform.h"
#include "platform/Paths.h"
#include "services/Programma.h"

namespace {

// The folder given, or none.
std::string program_folder(const QApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(desktop::words::kProgram);
    parser.addHelpOption();
    const QCommandLineOption folder(QStringLiteral("program"), QStringLiteral("The folder with the program's data."),
                                    QStringLiteral("DIR"));
    parser.addOption(folder);
    parser.process(application);
    const QString given = parser.value(folder);
    return given.isEmpty() ? std::string() : path_text(QDir(given).absolutePath().toStdString());
}

// A failure that no routine catches ends the program with its plain text.
void end_by_failure(const std::string& what) {
    QMessageBox::critical(nullptr, desktop::words::kProgram, desktop::to_qt(what));
    QCoreApplication::exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle(new desktop::Style);
    QApplication::setPalette(desktop::Style::colours());
    QApplication::setApplicationName(desktop::words::kProgram);
    QApplication::setQuitOnLastWindowClosed(false);

    desktop::QtHost host;
    QObject::connect(&host.first_painted(), &QTimer::timeout, [] {
        QApplication::setWindowIcon(desktop::program_icon(QGuiApplication::primaryScreen()->depth()));
    });
    const desktop::CardPreparer preparer(host);
    desktop::system::QtPlatform platform(host, program_folder(application));
    Programma programma(platform, host);
    host.attach(programma.windows);
    host.Ended = [] { QCoreApplication::quit(); };
    host.Failed = end_by_failure;
    try {
        start(programma);
    } catch (const std::exception& failure) {
        end_by_failure(failure.what());
        return EXIT_FAILURE;
    }
    const int status = programma.windows.ended() ? EXIT_SUCCESS : QApplication::exec();
    host.close_all();
    return status;
}
