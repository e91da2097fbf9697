#include <windows.h>

#include <array>

#include "desktop/system/Drives.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"

namespace desktop::system {

namespace {

constexpr DWORD kLongestLabel = 254;

// The system wants its separator behind a root.
std::wstring root_name(const std::string& root) {
    std::wstring name = platform::path_of(root).native();
    if (!name.ends_with(L'\\')) name += L'\\';
    return name;
}

}  // namespace

std::vector<std::string> mounted_volumes() {
    std::wstring roots(GetLogicalDriveStringsW(0, nullptr), L'\0');
    roots.resize(GetLogicalDriveStringsW(static_cast<DWORD>(roots.size()), roots.data()));
    std::vector<std::string> volumes;
    for (std::size_t at = 0; at < roots.size() && roots[at] != L'\0';) {
        const std::wstring root = roots.c_str() + at;
        volumes.push_back(platform::path_text(root));
        at += root.size() + 1;
    }
    return volumes;
}

DriveType type_of_volume(const std::string& root) {
    return static_cast<DriveType>(GetDriveTypeW(root_name(root).c_str()));
}

std::string label_of_volume(const std::string& root) {
    std::array<wchar_t, kLongestLabel + 1> label{};
    const bool known = GetVolumeInformationW(root_name(root).c_str(), label.data(), static_cast<DWORD>(label.size()),
                                             nullptr, nullptr, nullptr, nullptr, 0);
    return known ? platform::from_utf8(platform::bytes_of(label.data())) : std::string();
}

}  // namespace desktop::system
