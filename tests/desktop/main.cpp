#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/Accessible.h"
#include "desktop/Style.h"

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    desktop::Style::use();
    desktop::describe_widgets();
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
