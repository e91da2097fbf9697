#include <windows.h>

#include "desktop/system/CapsLock.h"

namespace desktop::system {

bool caps_lock_is_on() {
    constexpr int kToggled = 1;
    return (GetKeyState(VK_CAPITAL) & kToggled) != 0;
}

}  // namespace desktop::system
