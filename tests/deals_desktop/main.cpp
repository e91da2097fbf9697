#include <gtest/gtest.h>

#include <QApplication>

#include "deals_desktop/DutchQt.h"

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    deals_desktop::teach_qt_dutch();
    return RUN_ALL_TESTS();
}
