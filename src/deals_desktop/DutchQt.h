#pragma once

namespace deals_desktop {

// Has the boxes that Qt brings along speak Dutch: by its own translation where the system or the program's folder has
// it, and by ours in front of that for what these boxes show. To be called once, after the application is made.
void teach_qt_dutch();

}  // namespace deals_desktop
