#include <QApplication>

#include "platform/Console.h"
#include "script/CommandLine.h"
#include "script_desktop/DesktopStage.h"
#include "script_desktop/Offscreen.h"

int main(int argc, char** argv) {
    const script_desktop::Offscreen offscreen;
    const QApplication application(argc, argv);
    script_desktop::dress_application();
    return script::run_command_line(platform::command_line(argc, argv), [](const std::string& program_folder) {
        return std::make_unique<script_desktop::DesktopStage>(program_folder);
    });
}
