#include <QGuiApplication>
// The names of Xlib get in the way of everybody else's: they come last.
#include <X11/XKBlib.h>

#include "desktop/system/CapsLock.h"

namespace desktop::system {

bool caps_lock_is_on() {
    constexpr unsigned kCapsLight = 1;  // the first of the keyboard's lights
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    Display* display = x11 ? x11->display() : nullptr;
    unsigned lights = 0;
    return display && XkbGetIndicatorState(display, XkbUseCoreKbd, &lights) == Success && (lights & kCapsLight);
}

}  // namespace desktop::system
