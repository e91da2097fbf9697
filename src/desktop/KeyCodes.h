#pragma once

namespace desktop {

// The virtual key code of a Qt key, and the other way round; 0 for a key that has none.
int virtual_key(int qt_key);
int qt_key(int virtual_key);

}  // namespace desktop
