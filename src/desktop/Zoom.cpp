#include "desktop/Zoom.h"

#include <algorithm>
#include <cmath>
#include <exception>

#include "base/Text.h"
#include "platform/IniFile.h"

namespace desktop {

namespace {

constexpr const char* kTable = "frmTavrin02";
// What the table with its row of buttons needs, logical pixels at zoom 1.
constexpr double kTableWidth = 1290;
constexpr double kTableHeight = 784;
// The height of a display on which a form is comfortable at zoom 1, logical pixels.
constexpr double kComfortable = 840;
constexpr double kGrain = 8;  // eighths, so that sizes stay round

constexpr const char* kSection = "Beeld";
constexpr int kUsual = 100;  // percent
constexpr int kStep = 10;
constexpr int kSmallest = 50;
constexpr int kLargest = 400;

double fitting(const forms::Form& form, const QSize& room) {
    return std::min(room.width() * forms::kTwipsPerPixel / form.Width(),
                    room.height() * forms::kTwipsPerPixel / form.Height());
}

double comfortable(const QSize& room) {
    return std::max(1.0, std::floor(room.height() / kComfortable * kGrain) / kGrain);
}

}  // namespace

double Zooms::of_table(const QSize& room) const {
    return given_ ? *given_ : std::min(room.width() / kTableWidth, room.height() / kTableHeight);
}

double Zooms::of(const forms::Form& form, const QSize& room) const {
    if (given_) return *given_;
    if (form.name() == kTable) return of_table(room) * std::min(kUsual, percent_of(form)) / kUsual;
    return std::min(fitting(form, room), comfortable(room) * percent_of(form) / kUsual);
}

int Zooms::percent_of(const forms::Form& form) const {
    if (const auto chosen = chosen_.find(form.name()); chosen != chosen_.end()) return chosen->second;
    if (file_.empty()) return kUsual;
    try {
        const int kept = base::numeric_value(platform::read_setting(file_, kSection, form.name()));
        return kept == 0 ? kUsual : std::clamp(kept, kSmallest, kLargest);
    } catch (const std::exception&) {
        return kUsual;
    }
}

void Zooms::take(Step step, const forms::Form& form, const QSize& room) {
    const int now = percent_of(form);
    int wanted = kUsual;
    if (step == Step::Smaller) wanted = std::max(kSmallest, now - kStep);
    if (step == Step::Larger) {
        const double most = form.name() == kTable ? 1 : fitting(form, room) / comfortable(room);
        wanted = now >= most * kUsual ? now : std::min(kLargest, now + kStep);
    }
    if (wanted == now) return;
    chosen_[form.name()] = wanted;
    if (file_.empty()) return;
    try {
        platform::write_setting(file_, kSection, form.name(), std::to_string(wanted));
    } catch (const std::exception&) {  // The next run then begins with the size that was kept before.
    }
}

}  // namespace desktop
