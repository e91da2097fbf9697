#pragma once

#include <QNetworkAccessManager>
#include <memory>
#include <string>

namespace desktop {

// Connection test and downloads.
class Network {
public:
    bool connected() const;
    // Fetches an http or https address to the path; the file grows as the answer arrives. False for anything but a
    // whole answer with status 200, and when nothing came for five seconds. The user's input waits meanwhile.
    bool download(const std::string& url, const std::string& path);

private:
    std::unique_ptr<QNetworkAccessManager> manager_;
};

}  // namespace desktop
