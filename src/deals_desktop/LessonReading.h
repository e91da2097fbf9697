#pragma once

#include <string>

#include "deals_desktop/BoardReading.h"

namespace deals_desktop {

// Reads all lessons of the program folder, by name; those that cannot be read are told. The window gets entries once at
// least.
void read_lessons(const std::string& program_folder, Work::Course& course, const ReadingTo& to);

}  // namespace deals_desktop
