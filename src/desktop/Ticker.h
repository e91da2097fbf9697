#pragma once

#include <QTimer>

#include "forms/Timer.h"

namespace desktop {

class FormWindow;

// Lets time pass for a timer of the core. A tick that falls into a running event, or into the time of a message box,
// is lost.
class Ticker final : public QTimer {
public:
    Ticker(FormWindow& window, forms::Timer& timer);
    // Starts the time anew, or stops it.
    void refresh();

private:
    const FormWindow& window_;
    forms::Timer& timer_;
};

}  // namespace desktop
