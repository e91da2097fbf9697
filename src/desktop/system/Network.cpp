#include "desktop/system/Network.h"

#include <QEventLoop>
#include <QFile>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>
#include "base/Text.h"
#include "desktop/Text.h"
#include "desktop/system/PathNames.h"

namespace desktop::system {

namespace {

constexpr int kStatusOk = 200;
constexpr qsizetype kMarkLength = 4;  // of the longest mark that a program begins with

QNetworkRequest request_for(const QUrl& address, const Network::Limits& limits) {
    QNetworkRequest request(address);
    request.setTransferTimeout(static_cast<int>(limits.silence.count()));
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Zandolin Lomert"));
    request.setRawHeader("Accept-Encoding", "identity");  // the length that is told is then that of the file
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    return request;
}

}  // namespace

bool Network::download(const std::string& url, const std::string& path) {
    return download(url, path, base::equal_ignoring_case(base::right(path, 4), ".exe") ? kInstaller : kProbe);
}

bool Network::download(const std::string& url, const std::string& path, const Limits& limits) {
    const QUrl address(to_qt(url));
    if (address.scheme() != "http" && address.scheme() != "https") return false;
    QFile file(path_to_qt(path));
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
