#pragma once

#include <vector>

#include "platform/Platform.h"

class QWidget;

namespace desktop::system {

// Hands the transitions of keys to the widget as if they came from the keyboard.
void send_keys(QWidget& receiver, const std::vector<platform::KeyRecord>& records);

}  // namespace desktop::system
