#pragma once

#include <map>

#include "forms/Windows.h"

namespace forms {
class Timer;
}

namespace script {

// Carries the forms without showing them; its clock is virtual.
class ScriptHost final : public forms::Host {
public:
    forms::Size screen{28800, 15600};  // 1920 by 1040 pixels: a common screen less its task bar

    forms::Size screen_size() const override { return screen; }
    void dispatch_ended(forms::Windows& windows) override;

    // Lets time pass: all timers that fall due fire in order.
    void wait(forms::Windows& windows, long milliseconds);

private:
    struct Running {
        int interval;
        long due;  // milliseconds of the virtual clock
    };
    void follow_timers(forms::Windows& windows);

    long now_ = 0;
    std::map<forms::Timer*, Running> running_;
};

}  // namespace script
