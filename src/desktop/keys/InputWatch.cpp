#include "desktop/keys/InputWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace desktop::keys {

InputWatch::InputWatch() { QCoreApplication::instance()->installEventFilter(this); }

bool InputWatch::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyPress && event->spontaneous()) set_by_key(true);  // not one that the program sends
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick) {
        set_by_key(false);
        const auto* widget = qobject_cast<const QWidget*>(watched);
        if (widget && Pressed) Pressed(*widget);
    }
    return false;
}

void InputWatch::set_by_key(bool by_key) {
    if (by_key_ == by_key) return;
    by_key_ = by_key;
    if (Changed) Changed();
}

}  // namespace desktop::keys
