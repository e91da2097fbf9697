#pragma once

#include <QString>
#include <functional>

namespace desktop::system {

// Shows the manual: in the desktop's viewer for such files where one is installed, otherwise its pages, help/index.html
// beside the file, in the browser. `failed` is called, later, where neither opens.
void show_manual(const QString& file, const std::function<void()>& failed);

}  // namespace desktop::system
