#pragma once

#include <QByteArray>

namespace desktop {

// All images of the program's icon as one file of Windows: sizes and depths as in resources/Icon.h, the largest at 32
// bits as PNG, the others as bitmaps with a mask.
QByteArray icon_group();

}  // namespace desktop
