// Programs on the real widgets, on a screen in memory.
#include <QApplication>

#include "script_desktop/DesktopStage.h"
#include "script_desktop/Offscreen.h"
#include "support/Program.h"

struct HostOfTests::State {
    State(int& argc, char** argv) : application(argc, argv) { script_desktop::dress_application(); }

    script_desktop::Offscreen offscreen;
    QApplication application;
};

HostOfTests::HostOfTests(int& argc, char** argv) : state_(std::make_unique<State>(argc, argv)) {}
HostOfTests::~HostOfTests() = default;

std::unique_ptr<script::Stage> make_stage(const std::string& program_folder) {
    return std::make_unique<script_desktop::DesktopStage>(program_folder);
}
