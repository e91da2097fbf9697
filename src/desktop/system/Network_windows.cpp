#include <windows.h>

#include <wininet.h>

#include "desktop/system/Network.h"

namespace desktop::system {

bool Network::connected() {
    DWORD kind = 0;
    return InternetGetConnectedStateExW(&kind, nullptr, 0, 0) == TRUE;
}

bool Network::begins_as_program(const QByteArray& head) { return head.startsWith("MZ"); }

}  // namespace desktop::system
