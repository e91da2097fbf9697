#include "script_desktop/Offscreen.h"

#include <QApplication>
#include <QFile>
#include <iostream>

#include "desktop/Style.h"

namespace script_desktop {

namespace {

constexpr const char* kPlatform = "QT_QPA_PLATFORM";

// 28800 by 15600 twips, and windows without frames: a maximised one has the whole screen.
constexpr const char* kScreen = R"({
    "windowFrameMargins": false,
    "screens": [{"name": "script", "x": 0, "y": 0, "width": 1920, "height": 1040,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]
})";

// A screen in memory has no order of windows and no hints, and says so each time.
void drop_hints(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith(QStringLiteral("This plugin does not support"))) std::cerr << text.toStdString() << "\n";
}

}  // namespace

Offscreen::Offscreen() {
    qInstallMessageHandler(drop_hints);
    if (qEnvironmentVariableIsSet(kPlatform) && qgetenv(kPlatform) != "offscreen") return;
    QFile file(folder_.filePath(QStringLiteral("screen.json")));
    file.open(QFile::WriteOnly);
    file.write(kScreen);
    qputenv(kPlatform, "offscreen:configfile=" + file.fileName().toUtf8());
}

void dress_application() {
    QApplication::setStyle(new desktop::Style);
    QApplication::setPalette(desktop::Style::colours());
    QApplication::setQuitOnLastWindowClosed(false);
}

}  // namespace script_desktop
