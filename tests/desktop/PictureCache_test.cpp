#include "desktop/PictureCache.h"

#include <gtest/gtest.h>

#include "resources/Plaatje.h"

namespace {

TEST(PictureCache, LetsGoOfPicturesThatWereNotAskedForLongest) {
    const forms::Picture heart{resources::plaatje::kHarten, {}};
    desktop::PictureCache pictures(100'000);
    const qint64 first = pictures.pixmap(heart, {50, 50}, 1).cacheKey();
    for (int size = 60; size < 120; ++size) {
        EXPECT_EQ(pictures.pixmap(heart, {size, size}, 1).size(), QSize(size, size));
        EXPECT_EQ(pictures.pixmap(heart, {50, 50}, 1).cacheKey(), first) << "it was asked for just now";
        EXPECT_LE(pictures.bytes(), 100'000);
    }
    EXPECT_FALSE(pictures.pixmap(heart, {500, 500}, 1).isNull()) << "what is larger than all room is drawn each time";
    EXPECT_FALSE(pictures.pixmap(heart, {500, 500}, 2).isNull());
}

}  // namespace
