#pragma once

#include <QIcon>
#include <QImage>

namespace desktop {

// One image of the program's icon: a size and a depth of the group in resources/Icon.h. At 8 bits a pixel is one of the
// palette's colours or nothing at all.
QImage icon_image(int size, int depth);

// The group's images for a screen of that depth.
QIcon program_icon(int screen_depth);

}  // namespace desktop
