#include "platform/SystemCalls.h"

#include <cerrno>
#include <utility>

#include "platform/Paths.h"

namespace platform {

namespace system_calls {

namespace {

Hook& hook() {
    static Hook set;
    return set;
}

}  // namespace

HookScope::HookScope(Hook to_set) : before_(std::exchange(hook(), std::move(to_set))) {}
HookScope::~HookScope() { hook() = std::move(before_); }

bool fails(Call call, const std::filesystem::path& path) {
    if (!hook()) return false;
    const int error = hook()(call, bytes_of(path).c_str());
    if (error != 0) errno = error;
    return error != 0;
}

}  // namespace system_calls

}  // namespace platform
