#include "desktop/system/Network.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <filesystem>
#include <map>

#include "desktop/RealProgram.h"
#include "desktop/Text.h"
#include "library/frmTavrin01.h"

namespace {

using Limits = desktop::system::Network::Limits;
using std::chrono::milliseconds;

const QByteArray kNothing = "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n";

QByteArray answer(const QByteArray& body, qsizetype length) {
    return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(length) + "\r\n\r\n" + body;
}

// Answers by the path that is asked for, a few bytes at a time if so wanted.
class Server {
public:
    enum class Ends { ByHangingUp, Never };

    Server() {
        server_.listen(QHostAddress::LocalHost);
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
            QTcpSocket* socket = server_.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { serve(*socket); });
        });
    }
    std::string host() const { return "127.0.0.1:" + std::to_string(server_.serverPort()); }
    std::string url(const std::string& path) const { return "http://" + host() + path; }

    std::map<QByteArray, QByteArray> answers;
    Ends ends = Ends::ByHangingUp;
    qsizetype bytes_at_a_time = 1 << 20;
    std::vector<std::string> asked;

private:
    void serve(QTcpSocket& socket) {
        const QByteArray path = socket.readAll().split(' ').value(1);
        asked.push_back(path.toStdString());
        const auto found = answers.find(path);
        send(socket, found == answers.end() ? kNothing : found->second);
    }
    void send(QTcpSocket& socket, const QByteArray& rest) {
        socket.write(rest.left(bytes_at_a_time));
        socket.flush();
        if (rest.size() > bytes_at_a_time) {
            QTimer::singleShot(50, &socket,
                               [this, &socket, later = rest.mid(bytes_at_a_time)] { send(socket, later); });
        } else if (ends == Ends::ByHangingUp) {
            socket.disconnectFromHost();
        }
    }

    QTcpServer server_;
};

TEST(Network, GivesUpAServerThatFallsSilent) {
    const QByteArray silences[] = {"", "HTTP/1.1 200 OK\r\n", answer("abcd", 9)};
    QTemporaryDir folder;
    desktop::system::Network network;
    const Limits limits{milliseconds(0), milliseconds(300), 1000, false};
    for (const QByteArray& silence : silences) {
        Server server;
        server.answers["/bestand"] = silence;
        server.ends = Server::Ends::Never;
        QElapsedTimer clock;
        clock.start();
        EXPECT_FALSE(network.download(server.url("/bestand"), folder.filePath("bestand").toStdString(), limits));
        EXPECT_GE(clock.elapsed(), 250) << silence.toStdString();
        EXPECT_LT(clock.elapsed(), 4000) << silence.toStdString();
    }
}

TEST(Network, WaitsForASlowServerThatGoesOn) {
    QByteArray body;
    for (int i = 0; i < 300; ++i)
        body += static_cast<char>(i);
    Server server;
    server.answers["/bestand"] = answer(body, body.size());
    server.bytes_at_a_time = 10;  // some 1.7 seconds
    QTemporaryDir folder;
    const QString path = folder.filePath("bestand");
    desktop::system::Network network;
    const Limits limits{milliseconds(0), milliseconds(1200), 300, false};
    EXPECT_TRUE(network.download(server.url("/bestand"), path.toStdString(), limits));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), body);
}

TEST(Network, TakesNoMoreThanItsLimits) {
    Server server;
    server.bytes_at_a_time = 1;
    server.answers["/lang"] = answer(QByteArray(1000, 'x'), 1000);  // a byte every 50 ms
    server.answers["/groot"] = answer(QByteArray(60, 'x'), 60);
    QTemporaryDir folder;
    const std::string path = folder.filePath("bestand").toStdString();
    desktop::system::Network network;
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(network.download(server.url("/lang"), path, {milliseconds(400), milliseconds(4000), 1000, false}));
    EXPECT_LT(clock.elapsed(), 2000) << "however it goes on";
    server.bytes_at_a_time = 1000;
    EXPECT_FALSE(network.download(server.url("/groot"), path, {milliseconds(0), milliseconds(4000), 59, false}));
    EXPECT_TRUE(network.download(server.url("/groot"), path, {milliseconds(0), milliseconds(4000), 60, false}));
}

TEST(Network, TellsAnInstallerByItsFirstBytes) {
    const struct {
        QByteArray body;
        bool program;
    } rows[] = {{"\x7F"
                 "ELF\x02",
                 true},
                {"#!/bin/sh\n", true},
                {"", false},
                {"\x7F"
                 "EL",
                 false},
                {"<html>", false}};
    QTemporaryDir folder;
    desktop::system::Network network;
    for (const auto& row : rows) {
        Server server;
        server.answers["/bestand"] = answer(row.body, row.body.size());
        const auto fetch = [&](const char* name) {
            return network.download(server.url("/bestand"), folder.filePath(name).toStdString());
        };
        EXPECT_EQ(fetch("tavrinupdate.EXE"), row.program) << row.body.toStdString();
        EXPECT_TRUE(fetch("actueleversie.txt")) << "the probe may be anything";
    }
}

TEST(Network, TakesOnlyAWholeAnswerAndFollowsAServerThatMoved) {
    Server server;
    const QByteArray moved = "HTTP/1.1 302 Found\r\nLocation: /elders\r\nContent-Length: 7\r\n\r\nelders\n";
    const struct {
        QByteArray there;
        bool fetched;
    } rows[] = {{answer("abcd", 4), true},
                {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n4\r\nabcd\r\n0\r\n\r\n", true},
                {moved, false},
                {answer("abcd", 9), false},
                {kNothing, false},
                {"", false}};
    QTemporaryDir folder;
    desktop::system::Network network;
    for (const auto& row : rows) {
        server.answers = {{"/bestand", moved}, {"/elders", row.there}};
        QFile file(folder.filePath("bestand"));
        EXPECT_EQ(network.download(server.url("/bestand"), file.fileName().toStdString()), row.fetched)
            << row.there.toStdString();
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        if (row.fetched) {
            EXPECT_EQ(file.readAll(), "abcd");
        }
    }
}

TEST(Network, FailsWhereTheFileCannotBe) {
    Server server;
    server.answers["/bestand"] = answer("abcd", 4);
    QTemporaryDir folder;
    desktop::system::Network network;
    EXPECT_FALSE(network.download(server.url("/bestand"), folder.filePath("geen/map").toStdString()));
    EXPECT_FALSE(network.download(server.url("/bestand"), folder.path().toStdString()));
    EXPECT_FALSE(network.download("http://", folder.filePath("bestand").toStdString()));
    EXPECT_FALSE(network.download("ftp://127.0.0.1/bestand", folder.filePath("bestand").toStdString()));
    EXPECT_FALSE(network.download("http://127.0.0.1:1/bestand", folder.filePath("bestand").toStdString()));
    EXPECT_FALSE(network.download("", folder.filePath("bestand").toStdString()));
}

class UpdateRoad : public RealProgram {};

TEST_F(UpdateRoad, TheInstallerIsFetchedAndStartedWithTheFolderAsItsOneArgument) {
    Server server;
    set("Platform", "Server", server.host());
    platform.online = true;
    server.answers["/tavrin/actueleversie.txt"] = answer("1", 1);
    const QByteArray installer =
        "#!/bin/sh\n"
        "printf '%s|%s' \"$#\" \"$1\" > \"$(dirname \"$0\")/half\"\n"
        "mv \"$(dirname \"$0\")/half\" \"$(dirname \"$0\")/antwoord\"\n";
    server.answers["/tavrin/tavrinupdate.exe"] = answer(installer, installer.size());
    start_program();
    auto& main = screen<library::frmTavrin01>();
    ASSERT_TRUE(widget(main.cmdDownLoaden).isEnabled());
    click(main.cmdDownLoaden);
    EXPECT_TRUE(ended);
    EXPECT_EQ(server.asked, (std::vector<std::string>{"/tavrin/actueleversie.txt", "/tavrin/tavrinupdate.exe"}));
    EXPECT_EQ(platform.told.size(), 1U);
    EXPECT_TRUE(QFileInfo(QString::fromStdString(path("Update/tavrinupdate.exe"))).isExecutable());
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(path("Update/antwoord")); }, 10000));
    EXPECT_EQ(read("Update/antwoord"), "1|/p=" + folder);
}

}  // namespace
