// Paints the program's icon in all sizes of a desktop's icon theme and as a drawing for any size, as the one file that
// Windows has it in, or on the picture that stands beside the first and the last page of an installer.
//   zandolin_icons FOLDER     FOLDER then has 16x16/apps/zandolin.png, the others, and scalable/apps/zandolin.svg
//   zandolin_icons FILE.ico
//   zandolin_icons FILE.bmp
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextStream>
#include <algorithm>
#include <cstdlib>
#include <iostream>

#include "desktop/IconGroup.h"
#include "desktop/Look.h"
#include "desktop/PictureCache.h"
#include "desktop/ProgramIcon.h"
#include "resources/Icon.h"

namespace {

constexpr int kSizes[] = {16, 22, 24, 32, 36, 48, 64, 72, 96, 128, 192, 256, 512};
constexpr int kLargest = 256;
constexpr QSize kSidePicture(164, 314);
constexpr int kSidePictureIcon = 128;

// A size that the group lacks is painted from its largest drawing.
QImage icon_of(int size) {
    const auto& drawn = resources::kIconSizes;
    if (std::ranges::find(drawn, size) != std::end(drawn)) return desktop::icon_image(size, resources::kIconDepths[1]);
    return desktop::PictureCache::render(resources::draw_icon(kLargest), QSize(size, size), 1).toImage();
}

QString colour_word(const std::optional<base::Colour>& colour) {
    return colour ? desktop::colour(*colour).name() : QStringLiteral("none");
}

// The commands of an SVG path.
QString path_words(const resources::drawing::Path& path) {
    using Verb = resources::drawing::Path::Verb;
    QString words;
    QTextStream out(&words);
    auto next = path.points().begin();
    const auto point = [&] {
        out << ' ' << next->x << ' ' << next->y;
        ++next;
    };
    for (const Verb verb : path.verbs()) {
        out << (verb == Verb::Move ? 'M' : verb == Verb::Line ? 'L' : verb == Verb::Cubic ? 'C' : 'Z');
        const int points = verb == Verb::Cubic ? 3 : verb == Verb::Close ? 0 : 1;
        for (int i = 0; i < points; ++i)
            point();
    }
    return words;
}

bool write_svg(const QString& name) {
    const resources::drawing::Drawing drawing = resources::draw_icon(kLargest);
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly)) return false;
    QTextStream out(&file);
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << kLargest << "\" height=\"" << kLargest
        << "\" viewBox=\"0 0 " << drawing.width << ' ' << drawing.height
        << "\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n";
    for (const resources::drawing::Shape& shape : drawing.shapes) {
        const bool even_odd = shape.rule == resources::drawing::FillRule::EvenOdd;
        out << "<path fill=\"" << colour_word(shape.fill) << (even_odd ? "\" fill-rule=\"evenodd" : "") << '"';
        if (shape.stroke)
            out << " stroke=\"" << colour_word(shape.stroke->colour) << "\" stroke-width=\"" << shape.stroke->width
                << '"';
        out << " d=\"" << path_words(shape.path) << "\"/>\n";
    }
    out << "</svg>\n";
    out.flush();
    return file.error() == QFileDevice::NoError;
}

bool write_theme(const QString& target) {
    const QString drawings = QStringLiteral("%1/scalable/apps").arg(target);
    if (!QDir().mkpath(drawings) || !write_svg(drawings + "/zandolin.svg")) return false;
    return std::ranges::all_of(kSizes, [&](int size) {
        const QString folder = QStringLiteral("%1/%2x%2/apps").arg(target).arg(size);
        return QDir().mkpath(folder) && icon_of(size).save(folder + "/zandolin.png");
    });
}

bool write_group(const QString& target) {
    QFile file(target);
    const QByteArray bytes = desktop::icon_group();
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
}

bool write_side_picture(const QString& target) {
    QImage picture(kSidePicture, QImage::Format_RGB32);
    picture.fill(QColor(24, 42, 92));
    QRect place({}, QSize(kSidePictureIcon, kSidePictureIcon));
    place.moveCenter(picture.rect().center());
    QPainter(&picture).drawImage(place, icon_of(kSidePictureIcon));
    return picture.save(target);
}

bool write(const QString& target) {
    if (target.endsWith(".ico")) return write_group(target);
    return target.endsWith(".bmp") ? write_side_picture(target) : write_theme(target);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: zandolin_icons FOLDER|FILE.ico|FILE.bmp\n";
        return EXIT_FAILURE;
    }
    const QString target = QString::fromLocal8Bit(argv[1]);
    if (!write(target)) {
        std::cerr << "cannot write " << argv[1] << "\n";
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
