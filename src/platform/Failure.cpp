#include "platform/Failure.h"

#include <cerrno>
#include <system_error>

#include "base/Fout.h"
#include "platform/Paths.h"

namespace platform {

bool says_absent(int error) { return error == ENOENT || error == ENOTDIR; }

void fail(int error, const std::filesystem::path& path) {
    throw base::Fout::from({error, std::generic_category()}, path_text(path.filename()));
}

}  // namespace platform
