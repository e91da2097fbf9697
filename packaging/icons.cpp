// Paints the program's icon in all sizes of a desktop's icon theme.
//   zandolin_icons FOLDER     FOLDER then has 16x16/apps/zandolin.png and the others
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <algorithm>
#include <cstdlib>
#include <iostream>

#include "desktop/PictureCache.h"
#include "desktop/ProgramIcon.h"
#include "resources/Icon.h"

namespace {

constexpr int kSizes[] = {16, 24, 32, 48, 64, 128, 256, 512};
constexpr int kLargest = 256;

// A size that the group lacks is painted from its largest drawing.
QImage icon_of(int size) {
    const auto& drawn = resources::kIconSizes;
    if (std::ranges::find(drawn, size) != std::end(drawn)) return desktop::icon_image(size, resources::kIconDepths[1]);
    return desktop::PictureCache::render(resources::draw_icon(kLargest), QSize(size, size), 1).toImage();
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: zandolin_icons FOLDER\n";
        return EXIT_FAILURE;
    }
    for (const int size : kSizes) {
        const QString folder = QStringLiteral("%1/%2x%2/apps").arg(argv[1]).arg(size);
        if (!QDir().mkpath(folder) || !icon_of(size).save(folder + "/zandolin.png")) {
            std::cerr << "cannot write into " << folder.toStdString() << "\n";
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
