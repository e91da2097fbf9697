#pragma once

#include <QLockFile>
#include <memory>

#include "desktop/system/CapsLock.h"
#include "desktop/system/Network.h"
#include "platform/Platform.h"

class QWidget;

namespace desktop {
class QtHost;
}

namespace desktop::system {

// The operating system by way of Qt.
class QtPlatform : public Platform {
public:
    // An empty folder stands for the folder of the executable.
    QtPlatform(QtHost& host, const std::string& program_folder);

    std::string program_folder() const override { return program_folder_; }
    std::string special_folder(int number) const override;
    bool another_instance_runs() override;

    Answer message_box(int style, const std::string& title, const std::string& text) override;
    void set_clipboard(const std::string& text) override;
    // An address goes to the browser; a program is started, a file opened by what the desktop has for it.
    void open(const std::string& file, const std::string& parameters, const std::string& folder) override;
    // Says so where nothing opens it.
    void show_help(const std::string& file) override;

    bool connected() override { return Network::connected(); }
    bool download(const std::string& url, const std::string& path) override { return network_.download(url, path); }

    std::vector<std::string> drives() override;
    int drive_type(const std::string& root) override;
    std::string volume_label(const std::string& root) override;

    void send_keys(const std::vector<KeyRecord>& records) override;
    bool caps_lock() const override { return caps_lock_is_on(); }

private:
    void tell_no_help(const QString& file);

    QtHost& host_;
    std::string program_folder_;
    std::unique_ptr<QLockFile> lock_;
    Network network_;
};

}  // namespace desktop::system
