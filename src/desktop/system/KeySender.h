#pragma once

#include <vector>

#include "platform/Platform.h"

class QWidget;

namespace desktop::system {

// Transitions of keys as if they came from the keyboard. Where the system takes them, and the widget has the keys, they
// go to the system and come back behind what is under way; otherwise they are handed to the widget at once.
void send_keys(QWidget& receiver, const std::vector<platform::KeyRecord>& records);
void hand_keys(QWidget& receiver, const std::vector<platform::KeyRecord>& records);

}  // namespace desktop::system
