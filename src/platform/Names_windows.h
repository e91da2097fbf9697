#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace platform {

// For the sources of Windows: a path as its calls take it, absolute and of any length ("\\?\..."). Nothing, with errno
// EINVAL, for a name that no file can have, or that others could not open: of a device ("CON", "nul.txt"), with a dot
// or a blank at its end, of more than 255 signs, with one of <>:"|?* or a control character.
std::optional<std::wstring> system_name(const std::filesystem::path& path);

// Sets errno to what comes nearest to the last error of Windows; gives -1.
int set_errno();

// The same for a call that only looks: a name that cannot be is absent.
int set_errno_of_look();

// Whether a reparse point of that tag leads elsewhere: a symbolic link, a junction or a mount point, but no file that
// is only stored in another way.
bool leads_elsewhere(unsigned long attributes, unsigned long tag);

}  // namespace platform
