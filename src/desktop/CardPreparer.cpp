#include "desktop/CardPreparer.h"

#include "desktop/QtHost.h"
#include "resources/Plaatje.h"

namespace desktop {

namespace {
// The large faces and, behind them, the back.
constexpr int kFirst = resources::plaatje::kGroteKaarten + 1;
constexpr int kLast = resources::plaatje::kKaartRug;
constexpr int kMilliseconds = 15;  // between two of them
}  // namespace

CardPreparer::CardPreparer(QtHost& host) : host_(host), next_(kLast) {
    connect(this, &QTimer::timeout, this, [this] { prepare_next(); });
    connect(&host.first_painted(), &QTimer::timeout, this, [this] { start(kMilliseconds); });
}

void CardPreparer::prepare_next() {
    const forms::Picture picture{next_, {}};
    const double ratio = host_.next_screen().devicePixelRatio();
    const QSizeF size = host_.pictures().size_of(picture) * host_.table_zoom() * ratio;
    host_.pictures().pixmap(picture, size.toSize(), ratio);
    if (--next_ < kFirst) stop();
}

}  // namespace desktop
