#include "deals_desktop/TextSize.h"

#include <QApplication>
#include <QFont>
#include <QProxyStyle>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <exception>

#include "base/Text.h"
#include "platform/IniFile.h"

namespace deals_desktop {

namespace {

constexpr const char* kSection = "Beeld";
constexpr const char* kKey = "SpellenEnLessen";
constexpr int kUsual = 100;  // percent
constexpr int kStep = 10;
constexpr int kSmallest = 50;
constexpr int kLargest = 400;
// The height of a screen on which the desktop's letters are comfortable, logical pixels.
constexpr double kComfortable = 1080;
constexpr double kGrain = 8;  // eighths

// As the desktop has it.
const QFont& usual_font() {
    static const QFont font = QApplication::font();
    return font;
}

double of_screen() {
    const int height = QGuiApplication::primaryScreen()->size().height();
    return std::max(1.0, std::floor(height / kComfortable * kGrain) / kGrain);
}

int kept_percent(const std::string& file) {
    try {
        const int kept = base::numeric_value(platform::read_setting(file, kSection, kKey));
        return kept == 0 ? kUsual : std::clamp(kept, kSmallest, kLargest);
    } catch (const std::exception&) {
        return kUsual;
    }
}

// Boxes to tick, scroll bars and pictures grow with the letters.
class Style final : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        switch (metric) {
            case PM_IndicatorWidth:
            case PM_IndicatorHeight:
            case PM_ExclusiveIndicatorWidth:
            case PM_ExclusiveIndicatorHeight:
            case PM_ScrollBarExtent:
            case PM_SmallIconSize:
            case PM_ButtonIconSize:
            case PM_ListViewIconSize:
            case PM_HeaderMarkSize:
            case PM_TreeViewIndentation:
                return static_cast<int>(usual * QApplication::font().pointSizeF() / usual_font().pointSizeF());
            default:
                return usual;
        }
    }
};

}  // namespace

TextSize::TextSize(std::string settings_file)
    : settings_file_(std::move(settings_file)), percent_(kept_percent(settings_file_)) {
    usual_font();
    apply();
}

void TextSize::let_controls_grow() { QApplication::setStyle(new Style); }

double TextSize::factor() const { return of_screen() * percent_ / kUsual; }

void TextSize::apply() const {
    QFont font = usual_font();
    font.setPointSizeF(font.pointSizeF() * factor());
    if (font != QApplication::font()) QApplication::setFont(font);
}

void TextSize::take(Step step) {
    int wanted = kUsual;
    if (step == Step::Smaller) wanted = std::max(kSmallest, percent_ - kStep);
    if (step == Step::Larger) wanted = std::min(kLargest, percent_ + kStep);
    if (wanted == percent_) return;
    percent_ = wanted;
    apply();
    try {
        platform::write_setting(settings_file_, kSection, kKey, std::to_string(wanted));
    } catch (const std::exception&) {  // The size then is the usual one the next time.
    }
}

}  // namespace deals_desktop
