#include "script/Clock.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "forms/Form.h"
#include "forms/Timer.h"
#include "forms/User.h"

namespace script {

namespace {

std::vector<forms::Timer*> running_timers(const forms::Windows& windows) {
    std::vector<forms::Timer*> timers;
    for (forms::Form* form : windows.loaded()) {
        for (forms::Control* control : form->controls()) {
            auto* timer = dynamic_cast<forms::Timer*>(control);
            if (timer && timer->running()) timers.push_back(timer);
        }
    }
    return timers;
}

}  // namespace

void Clock::follow(const forms::Windows& windows) {
    std::map<forms::Timer*, Running> now_running;
    for (forms::Timer* timer : running_timers(windows)) {
        const auto before = running_.find(timer);
        const bool goes_on = before != running_.end() && before->second.interval == timer->Interval();
        now_running[timer] = goes_on ? before->second : Running{timer->Interval(), now_ + timer->Interval()};
    }
    running_ = std::move(now_running);
}

void Clock::wait(forms::Windows& windows, long milliseconds) {
    const long end = now_ + milliseconds;
    while (!windows.ended()) {
        const auto next = std::ranges::min_element(running_, {}, [](const auto& entry) { return entry.second.due; });
        if (next == running_.end() || next->second.due > end) break;
        now_ = next->second.due;
        next->second.due += next->second.interval;
        forms::user::tick(*next->first);
    }
    now_ = end;
}

}  // namespace script
