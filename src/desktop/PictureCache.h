#pragma once

#include <QPixmap>
#include <QSizeF>
#include <map>
#include <string>
#include <tuple>
#include <utility>

#include "forms/Picture.h"
#include "resources/drawing/Drawing.h"

namespace desktop {

// The drawings of the program as pixmaps, each rendered once for every size in physical pixels that is asked for.
class PictureCache {
public:
    // Size in logical pixels at zoom 1; empty for a picture that does not exist.
    QSizeF size_of(const forms::Picture& picture);

    // The picture in that many physical pixels, for a widget with that ratio of physical to logical pixels. Null for a
    // picture that does not exist.
    QPixmap pixmap(const forms::Picture& picture, const QSize& physical, double pixel_ratio);

    // Any drawing, not kept.
    static QPixmap render(const resources::drawing::Drawing& drawing, const QSize& physical, double pixel_ratio);

private:
    using Key = std::tuple<int, std::string, int, int, double>;  // number, name, physical width and height, ratio
    const resources::drawing::Drawing* drawing_of(const forms::Picture& picture);

    std::map<Key, QPixmap> pixmaps_;
    std::map<std::pair<int, std::string>, resources::drawing::Drawing> drawings_;
};

}  // namespace desktop
