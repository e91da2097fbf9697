#include <unistd.h>

#include "platform/Background.h"

namespace platform {

void work_in_background() {
    constexpr int kNice = 10;
    [[maybe_unused]] const int reached = nice(kNice);
}

}  // namespace platform
