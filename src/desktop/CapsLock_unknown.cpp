#include "desktop/CapsLock.h"

namespace desktop {

bool caps_lock_is_on() { return false; }

}  // namespace desktop
