#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "script/Stage.h"

namespace script {

using MakeStage = std::function<std::unique_ptr<Stage>(const std::string& program_folder)>;

// Reads the words that the program was started with, itself first, carries out the commands of its file or of standard
// input on a stage, and gives the exit status.
int run_command_line(const std::vector<std::string>& words, const MakeStage& make_stage);

}  // namespace script
