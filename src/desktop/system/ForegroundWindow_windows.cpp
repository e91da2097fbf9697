#include <windows.h>

#include <QGuiApplication>
#include <QWidget>

#include "desktop/system/ForegroundWindow.h"

namespace desktop::system {

// In front of all for a moment, then the first of those that are not: a box that comes meanwhile must not lie beneath.
void put_in_front(const QWidget& window) {
    if (!window.isVisible() || QGuiApplication::platformName() != QStringLiteral("windows")) return;
    const HWND handle = reinterpret_cast<HWND>(window.winId());
    constexpr UINT kAsItStands = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    SetWindowPos(handle, HWND_TOPMOST, 0, 0, 0, 0, kAsItStands | SWP_SHOWWINDOW);
    SetWindowPos(handle, HWND_NOTOPMOST, 0, 0, 0, 0, kAsItStands);
}

}  // namespace desktop::system
