#include "platform/ProgramFolder.h"

#include <filesystem>

#include "platform/Paths.h"

namespace platform {

std::string executable_folder() { return path_text(std::filesystem::read_symlink("/proc/self/exe").parent_path()); }

}  // namespace platform
