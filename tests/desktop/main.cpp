#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/Accessible.h"
#include "desktop/Style.h"

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setStyle(new desktop::Style);
    desktop::describe_widgets();
    QApplication::setPalette(desktop::Style::colours());
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
