#pragma once

#include <QPoint>
#include <QRect>
#include <QString>
#include <Qt>

class QScrollBar;
class QWidget;

// Mouse and keys, as they come from the window system to a window.
namespace script_desktop::input {

// Presses and releases the left button on the part of the widget, at a point where nothing else lies over it, the
// middle if it is free. False if there is no such point.
bool click(QWidget& widget, const QRect& part);

void key(QWidget& window, Qt::Key key, Qt::KeyboardModifiers held = {});
// One character, to what has the focus.
void type(QWidget& window, QChar character);

// Moves the bar by its arrow where that is one step, otherwise by its slider.
void scroll(QScrollBar& bar, int value);

// Lets all events happen that are due.
void settle();

}  // namespace script_desktop::input
