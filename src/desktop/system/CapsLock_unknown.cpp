#include "desktop/system/CapsLock.h"

namespace desktop::system {

bool caps_lock_is_on() { return false; }

}  // namespace desktop::system
