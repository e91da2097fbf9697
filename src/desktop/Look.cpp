#include "desktop/Look.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "desktop/Text.h"
#include "forms/Geometry.h"
#include "forms/TextMeasure.h"

namespace desktop {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;

// A portable copy brings fonts for a machine that has none of the wanted.
void add_own_fonts() {
    const QDir fonts(QCoreApplication::applicationDirPath() + QStringLiteral("/lib/fonts"));
    for (const QString& name : fonts.entryList({QStringLiteral("*.ttf")}, QDir::Files))
        QFontDatabase::addApplicationFont(fonts.filePath(name));
}

// The screens are laid out for the first; the others are those that come nearest on the two systems.
QString found_family() {
    const QString wanted[] = {QStringLiteral("Verdana"), QStringLiteral("Segoe UI"), QStringLiteral("DejaVu Sans")};
    const auto found = [&] {
        return std::ranges::find_if(wanted, [](const QString& n) { return QFontDatabase::hasFamily(n); });
    };
    if (found() == std::end(wanted)) add_own_fonts();
    if (const QString* const name = found(); name != std::end(wanted)) return *name;
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

const QString& family() {
    static const QString name = found_family();
    return name;
}

}  // namespace

int Scale::pixels(double twips) const { return static_cast<int>(std::lround(twips / forms::kTwipsPerPixel * zoom_)); }
double Scale::twips(int pixels) const { return pixels * forms::kTwipsPerPixel / zoom_; }

QRect Scale::rect(const forms::Control& control) const {
    return rect({control.Left, control.Top, control.Width, control.Height});
}
QRect Scale::rect(const forms::Rect& place) const {
    return {pixels(place.left), pixels(place.top), pixels(place.width), pixels(place.height)};
}

QColor colour(base::Colour colour) { return {colour.red(), colour.green(), colour.blue()}; }

QFont screen_font(double points, bool bold, double zoom) {
    QFont font(family());
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * kPixelsPerPoint * zoom))));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void find_screen_font() { family(); }

QFont screen_font(const forms::Control& control, double zoom) {
    return screen_font(control.FontSize, control.FontBold, zoom);
}

double core_width(std::string_view line, const forms::Control& control, double zoom) {
    const forms::Font font{control.FontSize, control.FontBold};
    return forms::text_width_in_pixels(without_mark(line), font) * zoom;
}

QFont fitted_to(const QFont& font, const QString& line, double width) {
    if (line.isEmpty()) return font;
    QFont fitted = font;
    const double spare = width - QFontMetricsF(font).horizontalAdvance(line);
    fitted.setLetterSpacing(QFont::AbsoluteSpacing, spare / static_cast<double>(line.size()));
    return fitted;
}

std::string without_mark(std::string_view line) {
    std::string result;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] == '&' && at + 1 < line.size()) ++at;
        result += line[at];
    }
    return result;
}

}  // namespace desktop
