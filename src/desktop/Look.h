#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <string>
#include <string_view>

#include "base/Colour.h"
#include "forms/Control.h"

// How sizes, fonts and colours of the core become those of widgets.
namespace desktop {

// Twips to logical pixels, times a zoom for small screens.
class Scale {
public:
    explicit Scale(double zoom) : zoom_(zoom) {}
    double zoom() const { return zoom_; }
    int pixels(double twips) const;
    double twips(int pixels) const;
    // Two controls of one size keep one size wherever they stand.
    QRect rect(const forms::Control& control) const;
    QRect rect(const forms::Rect& place) const;

private:
    double zoom_;
};

QColor colour(base::Colour colour);

// The size of words that no control gives: in message boxes and beside the pointer.
inline constexpr double kUsualPoints = 8.25;

// Verdana where it is installed, otherwise DejaVu Sans; sized as at 96 dpi whatever the screen's own value is.
QFont screen_font(double points, bool bold, double zoom);
QFont screen_font(const forms::Control& control, double zoom);
// Finds the font; the first that asks waits for the machine's fonts to be looked through. May run beside the main
// thread.
void find_screen_font();

// The width in logical pixels that the core counts for one line; a mark `&` has no width.
double core_width(std::string_view line, const forms::Control& control, double zoom);
// The font with its letters moved together or apart, so that the line gets that width.
QFont fitted_to(const QFont& font, const QString& line, double width);

// The line without the `&` of its accelerator letter.
std::string without_mark(std::string_view line);

}  // namespace desktop
