#include "desktop/system/Network.h"

#include <QEventLoop>
#include <QFile>
#include <QNetworkInterface>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUdpSocket>
#include <QUrl>
#include <algorithm>
#include <array>

#include "base/Text.h"
#include "desktop/Text.h"
#include "platform/Paths.h"

namespace desktop::system {

namespace {

constexpr int kStatusOk = 200;

// What a program of this platform begins with.
#ifdef Q_OS_WIN
constexpr std::array<QByteArrayView, 1> kProgramMarks{"MZ"};
#else
constexpr std::array<QByteArrayView, 2> kProgramMarks{
    "\x7F"
    "ELF",
    "#!"};
#endif
constexpr qsizetype kMarkLength = 4;  // of the longest

bool begins_as_program(const QByteArray& head) {
    return std::ranges::any_of(kProgramMarks, [&](QByteArrayView mark) { return head.startsWith(mark); });
}

QNetworkRequest request_for(const QUrl& address, const Network::Limits& limits) {
    QNetworkRequest request(address);
    request.setTransferTimeout(static_cast<int>(limits.silence.count()));
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Zandolin Lomert"));
    request.setRawHeader("Accept-Encoding", "identity");  // the length that is told is then that of the file
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    return request;
}

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

bool Network::download(const std::string& url, const std::string& path) {
    return download(url, path, base::equal_ignoring_case(base::right(path, 4), ".exe") ? kInstaller : kProbe);
}

bool Network::download(const std::string& url, const std::string& path, const Limits& limits) {
    const QUrl address(to_qt(url));
    if (address.scheme() != "http" && address.scheme() != "https") return false;
    QFile file(QString::fromStdString(platform::find_case_blind(path).string()));
    if (!file.open(QIODevice::WriteOnly)) return false;

    if (!manager_) manager_ = std::make_unique<QNetworkAccessManager>();
    const std::unique_ptr<QNetworkReply> reply(manager_->get(request_for(address, limits)));

    bool taken = true;
    QByteArray head;
    const auto take = [&] {
        const QByteArray bytes = reply->readAll();
        head.append(bytes.left(kMarkLength - head.size()));
        if (taken && file.size() + bytes.size() <= limits.bytes && file.write(bytes) == bytes.size()) return;
        taken = false;
        reply->abort();
    };
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, take);
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (limits.whole.count() > 0) QTimer::singleShot(limits.whole, reply.get(), [&] { reply->abort(); });
    if (!reply->isFinished()) loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (taken && reply->isOpen()) take();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (!taken || reply->error() != QNetworkReply::NoError || status != kStatusOk || !file.flush()) return false;
    return !limits.is_program || begins_as_program(head);
}

}  // namespace desktop::system
