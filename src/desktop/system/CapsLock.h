#pragma once

namespace desktop::system {

// Whether Caps Lock is on; false where the window system does not tell. Needs a QGuiApplication.
bool caps_lock_is_on();

}  // namespace desktop::system
