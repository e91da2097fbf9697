#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QMessageBox>
#include <QScreen>
#include <cstdlib>
#include <exception>
#include <optional>
#include <string>

#include "app/Start.h"
#include "desktop/Accessible.h"
#include "desktop/CardPreparer.h"
#include "desktop/ProgramIcon.h"
#include "desktop/QtHost.h"
#include "desktop/Style.h"
#include "desktop/Text.h"
#include "desktop/Words.h"
#include "desktop/system/PathNames.h"
#include "desktop/system/QtPlatform.h"
#include "platform/ProgramFolder.h"
#include "services/Programma.h"

namespace {

// The folder given, or the one that this copy of the program has.
std::string program_folder(const QApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(desktop::words::kProgram);
    parser.addHelpOption();
    const QCommandLineOption folder(QStringLiteral("program"), QStringLiteral("The folder with the program's data."),
                                    QStringLiteral("DIR"));
    parser.addOption(folder);
    parser.process(application);
    const QString given = parser.value(folder);
    return given.isEmpty() ? platform::find_program_folder()
                           : desktop::system::path_from_qt(QDir(given).absolutePath());
}

// Where the folder could not be made, the program has nothing to work on.
std::optional<std::string> folder_or_box(const QApplication& application) {
    try {
        return program_folder(application);
    } catch (const std::exception& failure) {
        QMessageBox::critical(nullptr, desktop::words::kProgram,
                              QString(desktop::words::kNoProgramFolder).arg(desktop::to_qt(failure.what())));
        return std::nullopt;
    }
}

// A failure that no routine catches ends the program with its plain text.
void end_by_failure(const std::string& what) {
    QMessageBox::critical(nullptr, desktop::words::kProgram, desktop::to_qt(what));
    QCoreApplication::exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    desktop::Style::use();
    desktop::describe_widgets();
    QApplication::setApplicationName(desktop::words::kProgram);
    QApplication::setDesktopFileName(QStringLiteral("zandolin"));
    QApplication::setQuitOnLastWindowClosed(false);

    const std::optional<std::string> folder = folder_or_box(application);
    if (!folder) return EXIT_FAILURE;
    desktop::QtHost host;
    QObject::connect(&host.first_painted(), &QTimer::timeout,
                     [&host] { QApplication::setWindowIcon(desktop::program_icon(host.next_screen().depth())); });
    const desktop::CardPreparer preparer(host);
    desktop::system::QtPlatform platform(host, *folder, services::settings_file(*folder));
    host.zooms().keep_in(services::settings_file(*folder));
    services::Programma programma(platform, host);
    host.attach(programma.windows);
    host.Ended = [] { QCoreApplication::quit(); };
    host.Failed = end_by_failure;
    try {
        app::start(programma);
    } catch (const std::exception& failure) {
        end_by_failure(failure.what());
        return EXIT_FAILURE;
    }
    const int status = programma.windows.ended() ? EXIT_SUCCESS : QApplication::exec();
    host.close_all();
    return status;
}
