#include "desktop/system/KeySender.h"

namespace desktop::system {

void send_keys(QWidget& receiver, const std::vector<platform::KeyRecord>& records) { hand_keys(receiver, records); }

}  // namespace desktop::system
