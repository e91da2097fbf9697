#pragma once

#include <string>

#include "platform/Paths.h"

namespace services {

// The settings file of a program folder.
inline std::string settings_file(const std::string& program_folder) {
    return platform::join_path(program_folder, "standaardtavrin.ini");
}

}  // namespace services
