#include <windows.h>

#include "platform/Background.h"

namespace platform {

void work_in_background() { SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_LOWEST); }

}  // namespace platform
