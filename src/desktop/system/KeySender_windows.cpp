#include <windows.h>

#include <QGuiApplication>
#include <QWidget>

#include "desktop/system/KeySender.h"

namespace desktop::system {

namespace {

INPUT input_of(const platform::KeyRecord& record) {
    INPUT input{};
    input.type = record.type;
    input.ki = {.wVk = record.virtual_key,
                .wScan = record.scan_code,
                .dwFlags = record.flags,
                .time = record.time,
                .dwExtraInfo = record.extra};
    return input;
}

// Otherwise another program would get them.
bool has_the_keys(const QWidget& receiver) {
    return QGuiApplication::platformName() == QStringLiteral("windows") && receiver.hasFocus() &&
           reinterpret_cast<HWND>(receiver.window()->winId()) == GetForegroundWindow();
}

}  // namespace

void send_keys(QWidget& receiver, const std::vector<platform::KeyRecord>& records) {
    if (!has_the_keys(receiver)) return hand_keys(receiver, records);
    std::vector<INPUT> inputs;
    for (const platform::KeyRecord& record : records)
        inputs.push_back(input_of(record));
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

}  // namespace desktop::system
