#pragma once

class QWidget;

namespace desktop::system {

// Puts a window that is about to go in front of all others without making it the active one, so that it stays in sight
// until another takes its place. Where the window manager decides that, it does nothing.
void put_in_front(const QWidget& window);

}  // namespace desktop::system
