#include "desktop/Network.h"

#include <QEventLoop>
#include <QFile>
#include <QNetworkInformation>
#include <QNetworkInterface>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include "desktop/Text.h"
#include "platform/Paths.h"

namespace desktop {

namespace {

constexpr int kStatusOk = 200;

bool interface_is_up() {
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        const auto flags = interface.flags();
        const bool up = flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning);
        if (up && !flags.testFlag(QNetworkInterface::IsLoopBack) && !interface.addressEntries().isEmpty()) return true;
    }
    return false;
}

}  // namespace

bool Network::connected() const {
    if (QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability)) {
        const auto reachability = QNetworkInformation::instance()->reachability();
        if (reachability == QNetworkInformation::Reachability::Disconnected) return false;
        if (reachability != QNetworkInformation::Reachability::Unknown) return true;
    }
    return interface_is_up();
}

bool Network::download(const std::string& url, const std::string& path) {
    const QUrl address(to_qt(url));
    if (address.scheme() != "http" && address.scheme() != "https") return false;
    QFile file(QString::fromStdString(find_case_blind(path).string()));
    if (!file.open(QIODevice::WriteOnly)) return false;

    if (!manager_) manager_ = std::make_unique<QNetworkAccessManager>();
    QNetworkRequest request(address);
    request.setTransferTimeout(static_cast<int>(patience_.count()));
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Zandolin Lomert"));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    const std::unique_ptr<QNetworkReply> reply(manager_->get(request));

    bool written = true;
    const auto take = [&] {
        const QByteArray bytes = reply->readAll();
        if (file.write(bytes) != bytes.size()) {
            written = false;
            reply->abort();
        }
    };
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, take);
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply->isFinished()) loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (written && reply->isOpen()) take();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    return written && reply->error() == QNetworkReply::NoError && status == kStatusOk && file.flush();
}

}  // namespace desktop
