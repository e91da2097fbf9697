#pragma once

#include <QNetworkAccessManager>
#include <chrono>
#include <memory>
#include <string>

namespace desktop {

// Connection test and downloads.
class Network {
public:
    // How long it waits for the next bytes of an answer.
    explicit Network(std::chrono::milliseconds patience = std::chrono::seconds(5)) : patience_(patience) {}

    bool connected() const;
    // Fetches an http or https address to the path; the file grows as the answer arrives. False for anything but a
    // whole answer with status 200, and when nothing came for as long as it waits. The user's input waits meanwhile.
    bool download(const std::string& url, const std::string& path);

private:
    std::chrono::milliseconds patience_;
    std::unique_ptr<QNetworkAccessManager> manager_;
};

}  // namespace desktop
