#pragma once

#include <string>

#include "desktop/system/QtPlatform.h"
#include "script/ScriptPlatform.h"

namespace script_desktop {

// What is there is told by commands, as in the other host; message boxes, sent keys and the clipboard are real.
class DesktopPlatform final : public script::ScriptPlatform {
public:
    DesktopPlatform(desktop::QtHost& host, const std::string& program_folder);

    platform::Answer message_box(int style, const std::string& title, const std::string& text) override;
    void set_clipboard(const std::string& text) override;
    void send_keys(const std::vector<platform::KeyRecord>& records) override;

    // What was wrong with the boxes since the last time; empty for nothing.
    std::string take_difference() { return std::exchange(difference_, {}); }

private:
    void answer_by_key(const Box& wanted, int tries);

    desktop::QtHost& host_;
    desktop::system::QtPlatform real_;
    std::string difference_;
};

}  // namespace script_desktop
