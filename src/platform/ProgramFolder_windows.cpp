#include "platform/ProgramFolder.h"

#include <windows.h>

#include <filesystem>

#include "platform/Paths.h"

namespace platform {

std::string executable_folder() {
    std::wstring file(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size()));
        if (length < file.size()) {
            file.resize(length);
            return path_text(std::filesystem::path(file).parent_path());
        }
        file.resize(file.size() * 2);
    }
}

}  // namespace platform
