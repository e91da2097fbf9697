#include <QNetworkInterface>
#include <QUdpSocket>
#include <algorithm>
#include <array>

#include "desktop/system/Network.h"

namespace desktop::system {

namespace {

bool interface_is_up() {
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        const auto flags = interface.flags();
        const bool up = flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning);
        if (up && !flags.testFlag(QNetworkInterface::IsLoopBack) && !interface.addressEntries().isEmpty()) return true;
    }
    return false;
}

// A bridge between virtual machines is up as well, and leads nowhere. A datagram socket takes an address only where a
// road to it is known; nothing is sent. The addresses are those that are kept for documents.
bool leads_outside() {
    constexpr quint16 kAnyPort = 9;
    return std::ranges::any_of(std::array{"203.0.113.1", "2001:db8::1"}, [](const char* address) {
        QUdpSocket socket;
        socket.connectToHost(QHostAddress(QLatin1StringView(address)), kAnyPort);
        return socket.state() == QAbstractSocket::ConnectedState;
    });
}

}  // namespace

bool Network::connected() { return interface_is_up() && leads_outside(); }

bool Network::begins_as_program(const QByteArray& head) {
    return head.startsWith(
               "\x7F"
               "ELF") ||
           head.startsWith("#!");
}

}  // namespace desktop::system
