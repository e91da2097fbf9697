#include "desktop/ProgramIcon.h"

#include "desktop/Look.h"
#include "desktop/PictureCache.h"
#include "resources/Icon.h"

namespace desktop {

namespace {

constexpr int kLowDepth = 8;
constexpr int kHalfOpaque = 128;

QRgb palette_pixel(QRgb pixel) {
    if (qAlpha(pixel) < kHalfOpaque) return qRgba(0, 0, 0, 0);
    const base::Colour exact = base::Colour::rgb(
        static_cast<unsigned>(qRed(pixel)), static_cast<unsigned>(qGreen(pixel)), static_cast<unsigned>(qBlue(pixel)));
    return colour(resources::icon_palette_colour(exact)).rgb();
}

}  // namespace

QImage icon_image(int size, int depth) {
    QImage image = PictureCache::render(resources::draw_icon(size), QSize(size, size), 1).toImage();
    image.convertTo(QImage::Format_ARGB32);
    if (depth > kLowDepth) return image;
    QImage low(image.size(), QImage::Format_Indexed8);
    QList<QRgb> palette;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = palette_pixel(image.pixel(x, y));
            qsizetype index = palette.indexOf(pixel);
            if (index < 0) {
                index = palette.size();
                palette.append(pixel);
                low.setColorTable(palette);
            }
            low.setPixel(x, y, static_cast<unsigned>(index));
        }
    }
    return low;
}

QIcon program_icon(int screen_depth) {
    const auto [low, high] = resources::kIconDepths;
    QIcon icon;
    for (const int size : resources::kIconSizes)
        icon.addPixmap(QPixmap::fromImage(icon_image(size, screen_depth <= low ? low : high)));
    return icon;
}

}  // namespace desktop
