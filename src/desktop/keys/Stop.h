#pragma once

#include <QRect>
#include <QString>
#include <QWidget>

#include "forms/Control.h"

namespace desktop::keys {

// A tab stop that only the keyboard knows, with a cursor on something that can be clicked. The core never learns that
// the keyboard is there; it sees a click such as the mouse makes.
class Stop {
public:
    virtual ~Stop() = default;

    // Whether there is something to click now.
    virtual bool usable() const = 0;
    // Moves the cursor on an arrow key, Home or End; at an edge it stays. False for another key.
    virtual bool move(int key) = 0;
    // Clicks what the cursor stands on, as an event of the core.
    virtual void click() = 0;
    // Where the cursor is, in the coordinates of `canvas`, on which the stop stands.
    virtual QRect mark(const QWidget& canvas) = 0;
    // What the cursor stands on, for a screen reader; empty for nothing.
    virtual QString spoken() = 0;
};

}  // namespace desktop::keys
