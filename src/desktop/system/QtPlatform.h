#pragma once

#include <QLockFile>
#include <memory>

#include "desktop/system/CapsLock.h"
#include "desktop/system/KeyboardLayout.h"
#include "desktop/system/Network.h"
#include "platform/Platform.h"

class QWidget;

namespace desktop {
class QtHost;
}

namespace desktop::system {

// The operating system by way of Qt.
class QtPlatform : public platform::Platform {
public:
    QtPlatform(QtHost& host, std::string program_folder, std::string settings_file);

    std::string program_folder() const override { return program_folder_; }
    std::string special_folder(int number) const override;
    bool another_instance_runs() override;

    platform::Answer message_box(int style, const std::string& title, const std::string& text) override;
    void set_clipboard(const std::string& text) override;
    // An address goes to the browser; a program is started, a file opened by what the desktop has for it.
    void open(const std::string& file, const std::string& parameters, const std::string& folder) override;
    // In the viewer, or its pages in the browser; says so where nothing opens either.
    void show_help(const std::string& file) override;

    bool connected() override { return Network::connected(); }
    bool download(const std::string& url, const std::string& path) override { return network_.download(url, path); }

    // The sticks that the settings file names stand first, so that they go before what the system tells.
    std::vector<std::string> drives() override;
    int drive_type(const std::string& root) override;
    std::string volume_label(const std::string& root) override;

    void send_keys(const std::vector<platform::KeyRecord>& records) override;
    bool caps_lock() const override { return caps_lock_is_on(); }
    std::optional<platform::key_layout::KeyStroke> stroke_for(char character) const override {
        return system::stroke_for(character);
    }
    std::uint16_t scan_code(std::uint16_t key) const override { return system::scan_code(key); }

private:
    void tell_no_help(const QString& file);

    QtHost& host_;
    const std::string program_folder_;
    const std::string settings_file_;
    std::unique_ptr<QLockFile> lock_;
    Network network_;
};

}  // namespace desktop::system
