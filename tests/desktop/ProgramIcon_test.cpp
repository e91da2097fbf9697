#include "desktop/ProgramIcon.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImageReader>
#include <string>

#include "desktop/IconGroup.h"
#include "resources/Icon.h"

namespace {

TEST(ProgramIcon, IsAGroupOfTenImages) {
    for (const int size : resources::kIconSizes) {
        for (const int depth : resources::kIconDepths) {
            const QImage image = desktop::icon_image(size, depth);
            SCOPED_TRACE(std::to_string(size) + " pixels at " + std::to_string(depth));
            EXPECT_EQ(image.size(), QSize(size, size));
            EXPECT_EQ(image.depth(), depth);
            EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0) << "the corners are round";
            EXPECT_EQ(qAlpha(image.pixel(size / 2, size / 2)), 255);
            const QColor edge = image.pixelColor(size / 2, 0);
            EXPECT_GT(edge.red(), edge.blue() + 100) << "a golden frame";
            if (depth != 8) continue;
            for (const QRgb colour : image.colorTable()) {
                const bool on_a_step = qRed(colour) % 51 == 0 && qGreen(colour) % 51 == 0 && qBlue(colour) % 51 == 0;
                EXPECT_TRUE(on_a_step && (qAlpha(colour) == 0 || qAlpha(colour) == 255)) << std::hex << colour;
            }
        }
    }
}

TEST(ProgramIcon, HoldsEverySizeOnAnyScreen) {
    for (const int depth : {8, 16, 24, 32})
        EXPECT_EQ(desktop::program_icon(depth).availableSizes().size(), std::ssize(resources::kIconSizes));
    EXPECT_NE(desktop::program_icon(8).pixmap(32).toImage(), desktop::program_icon(24).pixmap(32).toImage());
}

// Read back by a reader of such files that others wrote.
TEST(ProgramIcon, StandsInOneFileForWindows) {
    QByteArray bytes = desktop::icon_group();
    QBuffer file(&bytes);
    QImageReader reader(&file, "ico");
    ASSERT_EQ(reader.imageCount(), std::ssize(resources::kIconSizes) * std::ssize(resources::kIconDepths));
    for (const int size : resources::kIconSizes) {
        for (const int depth : resources::kIconDepths) {
            SCOPED_TRACE(std::to_string(size) + " pixels at " + std::to_string(depth));
            const QImage wanted = desktop::icon_image(size, depth).convertToFormat(QImage::Format_ARGB32);
            EXPECT_EQ(reader.read().convertToFormat(QImage::Format_ARGB32), wanted);
            reader.jumpToNextImage();
        }
    }
}

}  // namespace
