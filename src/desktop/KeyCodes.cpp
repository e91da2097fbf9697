#include "desktop/KeyCodes.h"

#include <QtCore/Qt>
#include <algorithm>
#include <array>
#include <utility>

namespace desktop {

namespace {

// For a virtual key with several Qt keys the usual one stands first.
constexpr std::array kKeys{
    std::pair{0x08, Qt::Key_Backspace}, std::pair{0x09, Qt::Key_Tab},      std::pair{0x09, Qt::Key_Backtab},
    std::pair{0x0D, Qt::Key_Return},    std::pair{0x0D, Qt::Key_Enter},    std::pair{0x10, Qt::Key_Shift},
    std::pair{0x11, Qt::Key_Control},   std::pair{0x12, Qt::Key_Alt},      std::pair{0x13, Qt::Key_Pause},
    std::pair{0x14, Qt::Key_CapsLock},  std::pair{0x1B, Qt::Key_Escape},   std::pair{0x20, Qt::Key_Space},
    std::pair{0x21, Qt::Key_PageUp},    std::pair{0x22, Qt::Key_PageDown}, std::pair{0x23, Qt::Key_End},
    std::pair{0x24, Qt::Key_Home},      std::pair{0x25, Qt::Key_Left},     std::pair{0x26, Qt::Key_Up},
    std::pair{0x27, Qt::Key_Right},     std::pair{0x28, Qt::Key_Down},     std::pair{0x29, Qt::Key_Select},
    std::pair{0x2A, Qt::Key_Printer},   std::pair{0x2C, Qt::Key_Print},    std::pair{0x2D, Qt::Key_Insert},
    std::pair{0x2E, Qt::Key_Delete},    std::pair{0x2F, Qt::Key_Help},     std::pair{0x90, Qt::Key_NumLock},
    std::pair{0x91, Qt::Key_ScrollLock}};

constexpr int kF1 = 0x70;
constexpr int kFunctionKeys = 24;

bool letter_or_digit(int code) { return (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9'); }

}  // namespace

int virtual_key(int qt_key) {
    if (letter_or_digit(qt_key)) return qt_key;
    if (qt_key >= Qt::Key_F1 && qt_key < Qt::Key_F1 + kFunctionKeys) return qt_key - Qt::Key_F1 + kF1;
    const auto found = std::ranges::find_if(kKeys, [&](const auto& key) { return key.second == qt_key; });
    return found == kKeys.end() ? 0 : found->first;
}

int qt_key(int virtual_key) {
    if (letter_or_digit(virtual_key)) return virtual_key;
    if (virtual_key >= kF1 && virtual_key < kF1 + kFunctionKeys) return virtual_key - kF1 + Qt::Key_F1;
    const auto found = std::ranges::find_if(kKeys, [&](const auto& key) { return key.first == virtual_key; });
    return found == kKeys.end() ? 0 : found->second;
}

}  // namespace desktop
