#include "platform/Paths.h"

#include "platform/CodePage.h"

namespace platform {

std::string join_path(std::string_view folder, std::string_view name) {
    return std::string(folder).append(1, kPathSeparator).append(name);
}

std::string last_part(std::string_view path) { return std::string(path.substr(path.rfind(kPathSeparator) + 1)); }

std::string path_text(const std::filesystem::path& path) { return name_text(bytes_of(path)); }

}  // namespace platform
