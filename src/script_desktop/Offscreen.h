#pragma once

#include <QTemporaryDir>

namespace script_desktop {

// Has Qt draw on a screen in memory, as large as a stage's; made before the QApplication, destroyed after it. Another
// platform that the environment asks for is left alone.
class Offscreen {
public:
    Offscreen();

private:
    QTemporaryDir folder_;
};

// The look of the program's windows, for the QApplication that was just made.
void dress_application();

}  // namespace script_desktop
