// Runs the tests of an executable on the real widgets, on a screen in memory.
#include <gtest/gtest.h>

#include <QApplication>

#include "script_desktop/DesktopStage.h"
#include "script_desktop/Offscreen.h"
#include "support/Program.h"

std::unique_ptr<script::Stage> make_stage(const std::string& program_folder) {
    return std::make_unique<script_desktop::DesktopStage>(program_folder);
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const script_desktop::Offscreen offscreen;
    const QApplication application(argc, argv);
    script_desktop::dress_application();
    return RUN_ALL_TESTS();
}
