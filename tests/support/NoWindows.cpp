#include "script/ScriptHost.h"
#include "support/Program.h"

struct HostOfTests::State {};

HostOfTests::HostOfTests(int&, char**) {}
HostOfTests::~HostOfTests() = default;

std::unique_ptr<script::Stage> make_stage(const std::string& program_folder) {
    return std::make_unique<script::ScriptHost>(program_folder);
}
