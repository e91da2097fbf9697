#include "desktop/IconGroup.h"

#include <QBuffer>
#include <QDataStream>
#include <QImage>

#include "desktop/ProgramIcon.h"
#include "resources/Icon.h"

namespace desktop {

namespace {

constexpr int kLargest = 256;
constexpr int kPaletteSize = 256;
constexpr int kFileHeader = 6;
constexpr int kFileEntry = 16;
constexpr quint32 kBitmapHeader = 40;
constexpr quint16 kIconFile = 1;

// Rows are filled up to whole units of four bytes.
void fill_up(QByteArray& row) {
    while (row.size() % 4 != 0)
        row.append('\0');
}

void append_colours(QDataStream& out, const QImage& image) {
    for (qsizetype i = 0; i < kPaletteSize; ++i)
        out << (i < image.colorCount() ? image.color(static_cast<int>(i)) & RGB_MASK : 0U);
}

QByteArray pixels_of(const QImage& image, int y) {
    QByteArray row(reinterpret_cast<const char*>(image.constScanLine(y)), image.width() * image.depth() / 8);
    fill_up(row);
    return row;
}

// A bit is set where nothing is painted.
QByteArray mask_of(const QImage& image, int y) {
    QByteArray row((image.width() + 7) / 8, '\0');
    for (int x = 0; x < image.width(); ++x) {
        if (qAlpha(image.pixel(x, y)) == 0) row[x / 8] = static_cast<char>(row[x / 8] | 0x80 >> x % 8);
    }
    fill_up(row);
    return row;
}

// The bitmap says twice its height: its mask stands behind it.
QByteArray bitmap_of(const QImage& image) {
    QByteArray bytes;
    QDataStream out(&bytes, QDataStream::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    constexpr quint16 kPlanes = 1;
    out << kBitmapHeader << image.width() << image.height() * 2 << kPlanes << static_cast<quint16>(image.depth());
    for (int unused = 0; unused < 6; ++unused)
        out << 0U;
    if (image.depth() == 8) append_colours(out, image);
    for (int y = image.height(); y-- > 0;)
        bytes += pixels_of(image, y);
    for (int y = image.height(); y-- > 0;)
        bytes += mask_of(image, y);
    return bytes;
}

QByteArray png_of(const QImage& image) {
    QBuffer bytes;
    image.save(&bytes, "PNG");
    return bytes.data();
}

}  // namespace

QByteArray icon_group() {
    QList<QImage> images;
    for (const int size : resources::kIconSizes) {
        for (const int depth : resources::kIconDepths)
            images << icon_image(size, depth);
    }
    QByteArray head;
    QByteArray body;
    QDataStream out(&head, QDataStream::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << kIconFile << static_cast<quint16>(images.size());
    const qsizetype body_begins = kFileHeader + kFileEntry * images.size();
    for (const QImage& image : images) {
        const bool as_png = image.width() == kLargest && image.depth() > 8;
        const QByteArray bytes = as_png ? png_of(image) : bitmap_of(image);
        const auto side = static_cast<quint8>(image.width() % kLargest);  // 0 stands for 256
        out << side << side << quint8(0) << quint8(0) << quint16(1) << static_cast<quint16>(image.depth())
            << static_cast<quint32>(bytes.size()) << static_cast<quint32>(body_begins + body.size());
        body += bytes;
    }
    return head + body;
}

}  // namespace desktop
