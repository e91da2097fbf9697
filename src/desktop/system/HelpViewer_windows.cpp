#include <QFileInfo>

#include "desktop/system/HelpViewer.h"
#include "desktop/system/Opener.h"

namespace desktop::system {

// The system's own viewer has no word for a manual that it shows empty, as it does with one that came from the
// internet and is still marked so: the installer's is not.
void show_manual(const QString& file, const std::function<void()>& failed) {
    if (open_by_system(file)) return;
    const QString pages = QFileInfo(file).absolutePath() + QStringLiteral("/help/index.html");
    if (!QFileInfo::exists(pages) || !open_by_system(pages)) failed();
}

}  // namespace desktop::system
