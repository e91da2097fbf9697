#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/KeyLayout.h"

namespace platform {

// One transition of a key, as it is handed to the operating system: 28 bytes.
struct KeyRecord {
    std::uint32_t type = 0;  // 1 keyboard
    std::uint16_t virtual_key = 0;
    std::uint16_t scan_code = 0;
    std::uint32_t flags = 0;  // 1 extended, 2 key up, 4 Unicode
    std::uint32_t time = 0;
    std::uint32_t extra = 0;
    std::array<std::uint32_t, 2> padding{};

    friend bool operator==(const KeyRecord&, const KeyRecord&) = default;
};
static_assert(sizeof(KeyRecord) == 28);

enum class Answer { Ok = 1, Yes = 6, No = 7 };

// Style of a message box: its buttons and its icon.
namespace box_style {
inline constexpr int kQuestion = 36;          // Yes and No, question icon
inline constexpr int kInformation = 64;       // OK, information icon
inline constexpr int kInformationYesNo = 68;  // Yes and No, information icon
}  // namespace box_style

// What is asked of the operating system. Texts are Windows-1252, paths without a separator at their end.
class Platform {
public:
    virtual ~Platform() = default;

    // The folder of the executable, where all data of the program lives.
    virtual std::string program_folder() const = 0;
    // 38: program files, 42: program files x86; empty on failure.
    virtual std::string special_folder(int number) const = 0;
    virtual bool another_instance_runs() = 0;

    // Asks or tells something and waits for the answer.
    virtual Answer message_box(int style, const std::string& title, const std::string& text) = 0;
    virtual void set_clipboard(const std::string& text) = 0;  // an empty text clears it
    // Opens a file or an address with what the user has for it; the result is not looked at.
    virtual void open(const std::string& file, const std::string& parameters, const std::string& folder) = 0;
    virtual void show_help(const std::string& file) = 0;

    virtual bool connected() = 0;
    // True when the whole file was fetched to the path; a part of it may stay after a failure.
    virtual bool download(const std::string& url, const std::string& path) = 0;

    // Roots of all drives or mounted volumes, in the order of their names.
    virtual std::vector<std::string> drives() = 0;
    virtual int drive_type(const std::string& root) = 0;  // 2 removable, 3 fixed, 4 remote, 5 CD, 6 RAM
    virtual std::string volume_label(const std::string& root) = 0;

    virtual void send_keys(const std::vector<KeyRecord>& records) = 0;
    virtual bool caps_lock() const = 0;
    // Of the user's keyboard; without one that the system tells, of the standard one.
    virtual std::optional<key_layout::KeyStroke> stroke_for(char character) const {
        return key_layout::stroke_for(character);
    }
    virtual std::uint16_t scan_code(std::uint16_t key) const { return key_layout::scan_code(key); }
};

}  // namespace platform
