#include "desktop/Ticker.h"

#include "desktop/FormWindow.h"
#include "desktop/QtHost.h"
#include "forms/User.h"

namespace desktop {

Ticker::Ticker(FormWindow& window, forms::Timer& timer) : window_(window), timer_(timer) {
    setTimerType(Qt::PreciseTimer);
    connect(this, &QTimer::timeout, this, [this, &window] { window.act([this] { forms::user::tick(timer_); }); });
}

void Ticker::refresh() {
    if (timer_.running() && window_.host().own_time) {
        start(timer_.Interval());
    } else {
        stop();
    }
}

}  // namespace desktop
