#pragma once

#include <map>

#include "forms/Windows.h"

namespace forms {
class Timer;
}

namespace script {

// A virtual clock: timers pass only by `wait`.
class Clock {
public:
    // Looks which timers run. One that was switched on, or got another interval, starts its time anew.
    void follow(const forms::Windows& windows);
    // Lets milliseconds pass: all timers that fall due fire in order.
    void wait(forms::Windows& windows, long milliseconds);

private:
    struct Running {
        int interval;
        long due;  // milliseconds of the virtual clock
    };

    long now_ = 0;
    std::map<forms::Timer*, Running> running_;
};

}  // namespace script
