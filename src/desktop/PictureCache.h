#pragma once

#include <QCache>
#include <QPixmap>
#include <QSizeF>
#include <map>
#include <string>
#include <utility>

#include "forms/Picture.h"
#include "resources/drawing/Drawing.h"

namespace desktop {

// The drawings of the program as pixmaps, each rendered once for every size in physical pixels that is asked for. Holds
// so many bytes of them, and lets go of those first that were not asked for longest.
class PictureCache {
public:
    // Enough for all cards of the largest table twice.
    static constexpr qsizetype kMostBytes = qsizetype{128} << 20;
    explicit PictureCache(qsizetype most_bytes = kMostBytes) : pixmaps_(most_bytes) {}

    // Size in logical pixels at zoom 1; empty for a picture that does not exist.
    QSizeF size_of(const forms::Picture& picture);

    // The picture in that many physical pixels, for a widget with that ratio of physical to logical pixels. Null for a
    // picture that does not exist.
    QPixmap pixmap(const forms::Picture& picture, const QSize& physical, double pixel_ratio);

    qsizetype bytes() const { return pixmaps_.totalCost(); }

    // Any drawing, not kept.
    static QPixmap render(const resources::drawing::Drawing& drawing, const QSize& physical, double pixel_ratio);

private:
    struct Key {
        forms::Picture picture;
        QSize physical;
        double pixel_ratio;

        friend bool operator==(const Key&, const Key&) = default;
        friend size_t qHash(const Key& key, size_t seed) {
            return qHashMulti(seed, key.picture.number, std::hash<std::string>()(key.picture.name),
                              key.physical.width(), key.physical.height(), key.pixel_ratio);
        }
    };
    const resources::drawing::Drawing* drawing_of(const forms::Picture& picture);

    QCache<Key, QPixmap> pixmaps_;
    std::map<std::pair<int, std::string>, resources::drawing::Drawing> drawings_;
};

}  // namespace desktop
