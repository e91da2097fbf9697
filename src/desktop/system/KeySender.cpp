#include "desktop/system/KeySender.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

#include "desktop/KeyCodes.h"

namespace desktop::system {

namespace {

constexpr std::uint32_t kKeyUp = 2;
constexpr std::uint32_t kUnicode = 4;

Qt::KeyboardModifier modifier_of(int key) {
    switch (key) {
        case Qt::Key_Shift:
            return Qt::ShiftModifier;
        case Qt::Key_Control:
            return Qt::ControlModifier;
        case Qt::Key_Alt:
            return Qt::AltModifier;
        default:
            return Qt::NoModifier;
    }
}

// What a key types while those modifiers are held.
QString text_of(int key, Qt::KeyboardModifiers held) {
    const bool letter = key >= Qt::Key_A && key <= Qt::Key_Z;
    const bool digit_or_blank = (key >= Qt::Key_0 && key <= Qt::Key_9) || key == Qt::Key_Space;
    if (held & (Qt::ControlModifier | Qt::AltModifier)) return {};
    if (!letter && !digit_or_blank) return {};
    const QString text = QChar(static_cast<char16_t>(key));
    return letter && !(held & Qt::ShiftModifier) ? text.toLower() : text;
}

}  // namespace

void hand_keys(QWidget& receiver, const std::vector<platform::KeyRecord>& records) {
    const QPointer<QWidget> alive(&receiver);
    Qt::KeyboardModifiers held;
    for (const platform::KeyRecord& record : records) {
        if (!alive) return;
        const bool up = record.flags & kKeyUp;
        const bool unicode = record.flags & kUnicode;
        const int key = unicode ? 0 : qt_key(record.virtual_key);
        if (up) held &= ~Qt::KeyboardModifiers(modifier_of(key));
        const QString text = unicode ? QString(QChar(record.scan_code)) : text_of(key, held);
        QKeyEvent event(up ? QEvent::KeyRelease : QEvent::KeyPress, key, held, text);
        QApplication::sendEvent(&receiver, &event);
        if (!up) held |= modifier_of(key);
    }
}

}  // namespace desktop::system
