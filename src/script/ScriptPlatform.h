#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/Platform.h"

namespace script {

// A platform without a window system, network, sticks or viewers: what is there is told to it, and what was asked of
// it can be looked at.
class ScriptPlatform : public platform::Platform {
public:
    explicit ScriptPlatform(std::string program_folder) : program_folder_(std::move(program_folder)) {}

    struct Box {
        int style;
        std::string title;
        std::string text;
        platform::Answer answer;
    };
    struct Opened {
        std::string file;
        std::string parameters;
        std::string folder;
    };
    struct Drive {
        std::string root;
        int type;
        std::string label;
    };
    // Thrown when a question is asked and no answer was queued. It is no std::exception: a fault of the script is no
    // failure of the routine that asked.
    struct NoAnswer {
        std::string question;
    };

    std::deque<platform::Answer> answers;
    std::vector<Box> boxes;
    std::vector<Opened> opened;
    std::vector<platform::KeyRecord> keys;
    std::vector<Drive> drive_list;
    std::map<std::string, std::string> served;  // URL to file; an empty file name for a download that fails
    std::map<int, std::string> special_folders;
    std::string clipboard;
    bool online = false;
    bool other_instance = false;
    bool caps_lock_on = false;
    // Called before a box is answered; for tests that act while one stands.
    std::function<void()> while_box_stands;
    // What the keys that the program sends do.
    std::function<void(const std::vector<platform::KeyRecord>&)> KeysSent;

    std::string program_folder() const override { return program_folder_; }
    std::string special_folder(int number) const override;
    bool another_instance_runs() override { return other_instance; }
    platform::Answer message_box(int style, const std::string& title, const std::string& text) override;
    void set_clipboard(const std::string& text) override { clipboard = text; }
    void open(const std::string& file, const std::string& parameters, const std::string& folder) override;
    void show_help(const std::string& file) override { open(file, "", ""); }
    bool connected() override { return online; }
    bool download(const std::string& url, const std::string& path) override;
    std::vector<std::string> drives() override;
    int drive_type(const std::string& root) override;
    std::string volume_label(const std::string& root) override;
    void send_keys(const std::vector<platform::KeyRecord>& records) override;
    bool caps_lock() const override { return caps_lock_on; }

private:
    const Drive* find_drive(const std::string& root) const;

    std::string program_folder_;
};

}  // namespace script
