#pragma once

#include <QNetworkAccessManager>
#include <chrono>
#include <memory>
#include <string>

namespace desktop::system {

// Connection test and downloads.
class Network {
public:
    // What an answer may take.
    struct Limits {
        std::chrono::milliseconds whole;    // from the first word to the last byte; 0 for as long as it goes on
        std::chrono::milliseconds silence;  // without a byte
        qint64 bytes;
        bool is_program;  // it must begin as a program of this platform does
    };
    // The probe at the start only tells whether the server answers, and the first window waits for it.
    static constexpr Limits kProbe{std::chrono::seconds(3), std::chrono::seconds(3), 64 << 10, false};
    static constexpr Limits kInstaller{std::chrono::seconds(0), std::chrono::seconds(30), 200 << 20, true};

    // Whether a network is up that leads beyond this machine. Asks nobody: what the desktop's own services know would
    // take longer to load than the first window.
    static bool connected();
    // Fetches an http or https address to the path; the file grows as the answer arrives. False for anything but a
    // whole answer with status 200 within the limits. The user's input waits meanwhile. Without limits they go by the
    // path: an ".exe" is the installer, anything else the probe.
    bool download(const std::string& url, const std::string& path);
    bool download(const std::string& url, const std::string& path, const Limits& limits);

private:
    // The first bytes of a file; whether they are those of a program of this platform.
    static bool begins_as_program(const QByteArray& head);

    std::unique_ptr<QNetworkAccessManager> manager_;
};

}  // namespace desktop::system
