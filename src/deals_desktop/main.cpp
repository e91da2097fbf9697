// zandolin_deals_desktop: deals and lessons in a window, and on paper.
#include <QApplication>
#include <QCommandLineParser>
#include <QMessageBox>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "deals_desktop/DutchQt.h"
#include "deals_desktop/FileNames.h"
#include "deals_desktop/Reasons.h"
#include "deals_desktop/Window.h"
#include "deals_desktop/Words.h"
#include "paper/Paper.h"
#include "platform/Paths.h"
#include "platform/ProgramFolder.h"

namespace {

// The folder given, or the one that this copy of the program has; none, with a box, where that could not be made.
std::optional<std::string> folder_or_box(const QString& given) {
    if (!given.isEmpty()) return platform::path_text(platform::path_of(deals_desktop::path_of(given)));
    try {
        return platform::find_program_folder();
    } catch (const std::exception& failure) {
        QMessageBox::critical(nullptr, deals_desktop::words::kTitle,
                              deals_desktop::words::kNoProgramFolder.arg(deals_desktop::dutch(failure)));
        return std::nullopt;
    }
}

// The words are files, which are opened.
int run_window(int argc, char** argv) {
    const QApplication application(argc, argv);
    deals_desktop::teach_qt_dutch();
    deals_desktop::TextSize::let_controls_grow();
    QApplication::setDesktopFileName(QStringLiteral("zandolin_deals"));
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption program(QStringLiteral("program"), QStringLiteral("The folder with the program's data."),
                                     QStringLiteral("DIR"));
    parser.addOption(program);
    parser.addPositionalArgument(QStringLiteral("FILE..."), QStringLiteral("Files of deals."));
    parser.process(application);
    const auto folder = folder_or_box(parser.value(program));
    if (!folder) return EXIT_FAILURE;
    deals_desktop::Window window(*folder);
    window.show();
    window.lessons().keep_copy();
    QTimer hours;  // a window may stay open for days
    QObject::connect(&hours, &QTimer::timeout, &window, [&window] { window.lessons().keep_copy(); });
    hours.start(std::chrono::hours(1));
    window.deals().open(parser.positionalArguments());
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::string_view(argv[1]) == "paper") return paper::run(argc, argv);
    return run_window(argc, argv);
}
